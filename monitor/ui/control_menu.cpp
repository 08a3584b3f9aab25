#include <zor/monitor/ui/control_menu.h>
#include <zor/platform/qt/container.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

#include <memory>

namespace zor::monitor {

ControlMenu::ControlMenu(QWidget& window) : QObject(&window), m_window(window) { qApp->installEventFilter(this); }

Binding* ControlMenu::bindingAt(const QWidget& widget) const
{
    for (const auto& binding : bindings()) {
        const QWidget& surface = platform::qt::widgetOf(binding->control().surface());
        if (&surface == &widget || surface.isAncestorOf(&widget))
            return binding.get();
    }
    return nullptr;
}

bool ControlMenu::triesLocked(QWidget& widget, const QEvent& event) const
{
    const bool tries =
        (event.type() == QEvent::MouseButtonPress &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton) ||
        (event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Space);
    if (!tries || !m_window.isAncestorOf(&widget))
        return false;
    const bool chooses = qobject_cast<QAbstractButton*>(&widget) != nullptr ||
                         qobject_cast<QComboBox*>(&widget) != nullptr ||
                         qobject_cast<QAbstractSlider*>(&widget) != nullptr ||
                         qobject_cast<QAbstractItemView*>(&widget) != nullptr ||
                         qobject_cast<QAbstractItemView*>(widget.parentWidget()) != nullptr;
    const Binding* binding = chooses ? bindingAt(widget) : nullptr;
    if (binding == nullptr || binding->parameter() == nullptr || !binding->has("ModifiedValue"))
        return false;
    const core::Control& control = binding->control();
    return !widget.isEnabled() || control.CFail() || control.WaitingForData() || !binding->parameter()->writable ||
           binding->getIfThere("ReadOnly").value_or(Variant(false)).toBoolean();
}

bool ControlMenu::eventFilter(QObject* object, QEvent* event)
{
    if (onLocked && object->isWidgetType() && triesLocked(*static_cast<QWidget*>(object), *event))
        onLocked();
    if (event->type() != QEvent::ContextMenu || !object->isWidgetType())
        return false;
    auto* widget = static_cast<QWidget*>(object);
    if (!m_window.isAncestorOf(widget))
        return false;
    Binding* binding = bindingAt(*widget);
    if (binding == nullptr || binding->isModified())
        return false;
    auto* field = qobject_cast<QLineEdit*>(widget);
    auto menu = std::unique_ptr<QMenu>(field != nullptr ? field->createStandardContextMenu() : new QMenu(widget));
    const qsizetype before = menu->actions().size();
    if (before > 0)
        menu->addSeparator();
    for (const Fill& fill : m_fills)
        fill(*menu, *binding);
    if (menu->actions().size() <= before + (before > 0 ? 1 : 0))
        return false;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu.release()->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
    event->accept();
    return true;
}

} // namespace zor::monitor
