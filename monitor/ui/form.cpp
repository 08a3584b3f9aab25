#include <zor/core/control.h>
#include <zor/monitor/ui/form.h>

#include <QRubberBand>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>

namespace zor::monitor {
namespace {

constexpr int kMarkFrame = 4; ///< around what is marked
constexpr int kAgain = 50;    ///< milliseconds until a control is asked again whether it can be edited

/// Brings every page and tab on which a widget lies to the front.
void turnTo(QWidget& widget)
{
    for (QWidget* child = &widget; child->parentWidget() != nullptr; child = child->parentWidget()) {
        auto* stack = qobject_cast<QStackedWidget*>(child->parentWidget());
        if (stack == nullptr)
            continue;
        if (auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget()))
            tabs->setCurrentWidget(child);
        else
            stack->setCurrentWidget(child);
    }
}

/// The first widget on the surface that takes the keys.
QWidget* entryOf(QWidget& surface)
{
    for (QWidget* child : surface.findChildren<QWidget*>()) {
        if (child->isVisible() && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus) != 0)
            return child;
    }
    return nullptr;
}

/// Gives it the focus: at once, or when its first value has come, unless the operator has gone elsewhere. Tries as
/// long as the mark is there.
void focusOn(QWidget& surface, QObject& mark)
{
    if (QWidget* entry = entryOf(surface))
        return entry->setFocus(Qt::ShortcutFocusReason);
    auto* again = new QTimer(&mark);
    QObject::connect(again, &QTimer::timeout, &surface,
                     [&surface, again, before = QPointer(surface.window()->focusWidget())] {
                         QWidget* entry = entryOf(surface);
                         const bool elsewhere = surface.window()->focusWidget() != before;
                         if (entry != nullptr && !elsewhere)
                             entry->setFocus(Qt::ShortcutFocusReason);
                         if (entry != nullptr || elsewhere)
                             again->stop();
                     });
    again->start(kAgain);
}

void showMarked(QWidget& surface)
{
    constexpr int kMilliseconds = 2500;
    constexpr int kMargin = 40;
    for (QWidget* parent = surface.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent))
            area->ensureWidgetVisible(&surface, kMargin, kMargin);
    }
    auto* mark = new QRubberBand(QRubberBand::Rectangle, surface.parentWidget());
    mark->setGeometry(surface.geometry().adjusted(-kMarkFrame, -kMarkFrame, kMarkFrame, kMarkFrame));
    mark->setAttribute(Qt::WA_TransparentForMouseEvents);
    mark->show();
    focusOn(surface, *mark);
    QTimer::singleShot(kMilliseconds, mark, [mark] { mark->deleteLater(); });
}

} // namespace

void Form::mark(int page, const QIcon& icon, const QString& tip)
{
    tabs()->setTabIcon(page, icon);
    tabs()->setTabToolTip(page, tip);
}

void Form::reveal(core::Control& control)
{
    QWidget& surface = platform::qt::widgetOf(control.surface());
    turnTo(surface);
    arrange();
    // Only then is a page that has just come to the front laid out.
    QTimer::singleShot(0, &surface, [&surface] { showMarked(surface); });
}

bool isInSight(core::Control& control)
{
    const QWidget& widget = platform::qt::widgetOf(control.surface());
    return widget.isVisible() && !widget.window()->isMinimized();
}

} // namespace zor::monitor
