#pragma once

/// Marks that are seen in every theme.

#include <QWidget>

namespace zor::monitor {

/// Styles frame an empty mark with a darker shade of the window, which in a dark theme is none. A button, or a
/// list of entries with marks, gets another colour to shade for as long as it lives, whatever theme comes.
class FramedMarks final : public QObject {
public:
    static void on(QWidget& widget) { new FramedMarks(widget); }

protected:
    bool eventFilter(QObject* widget, QEvent* event) override;

private:
    explicit FramedMarks(QWidget& widget);
    void apply();

    QWidget& m_widget;
    bool m_isApplying = false;
};

} // namespace zor::monitor
