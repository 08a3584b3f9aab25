#include <zor/monitor/ui/control_menu.h>
#include <zor/platform/qt/container.h>

#include <QApplication>
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

bool ControlMenu::eventFilter(QObject* object, QEvent* event)
{
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
