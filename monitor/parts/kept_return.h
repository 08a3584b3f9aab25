#pragma once

/// Return in a field that filters.

#include <QKeyEvent>
#include <QWidget>

namespace zor::monitor {

/// In a dialog Return presses the default button, wherever the focus is. Who has typed a filter means to see what
/// it leaves: the field keeps the key.
class KeptReturn final : public QObject {
public:
    static void on(QWidget& field) { field.installEventFilter(new KeptReturn(field)); }

protected:
    bool eventFilter(QObject* /*field*/, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter;
    }

private:
    explicit KeptReturn(QWidget& field) : QObject(&field) {}
};

} // namespace zor::monitor
