#pragma once

/// What was never read must not look like a reading, on a control that always shows some value.

#include <zor/core/control.h>

#include <QCoreApplication>
#include <QWidget>

namespace zor::monitor {

/// Whether a control always shows some value: a track, a mark or a picture cannot be empty.
[[nodiscard]] bool isNeverEmpty(core::Control& control);

/// Whether the operator has set the value that a control shows.
[[nodiscard]] bool isEdited(core::Control& control);

/// Hatches a track, a list or a check box, and says "no value" where that hides nothing else. Lets the mouse
/// through. A picture shows its state instead of a value, and of several option buttons none is pressed.
class NoValueVeil final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(NoValueVeil)
public:
    /// What of a control would be veiled; nullptr for nothing.
    [[nodiscard]] static QWidget* faceOf(core::Control& control);
    /// Puts the veil over a face, or takes it off.
    static void put(QWidget& face, bool veiled);

    bool eventFilter(QObject* face, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit NoValueVeil(QWidget& face);
};

} // namespace zor::monitor
