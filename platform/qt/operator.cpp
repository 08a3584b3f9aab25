#include <zor/platform/key_codes.h>
#include <zor/platform/qt/entry_lists.h>
#include <zor/platform/qt/keys.h>
#include <zor/platform/qt/operator.h>
#include <zor/platform/qt/range_widgets.h>
#include <zor/platform/qt/simple_widgets.h>
#include <zor/platform/qt/text_field.h>
#include <zor/platform/text.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>

#include <limits>

namespace zor::platform::qt {
namespace {

QtWidget& base(Widget& widget) { return dynamic_cast<QtWidget&>(widget); }

/// The event goes straight to the widget: it may lie beyond the edge of its form, where no screen shows it.
void sendMouse(QWidget& widget, QEvent::Type type, Qt::MouseButton button, QPointF at)
{
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void click(QWidget& widget, Qt::MouseButton button, QPointF at)
{
    const QPointer<QWidget> alive = &widget;
    sendMouse(widget, QEvent::MouseButtonPress, button, at);
    if (alive && widget.isEnabled())
        sendMouse(widget, QEvent::MouseButtonRelease, button, at);
}

QPointF centre(const QWidget& widget) { return QRectF(widget.rect()).center(); }

/// Where a person points who means the widget.
struct Aim {
    QWidget& target;
    QPointF at;
};

Aim aimAt(Widget& widget)
{
    QWidget& target = base(widget).qwidget();
    if (auto* list = dynamic_cast<QtListBox*>(&widget)) {
        const bool hasEntries = list->count() > 0;
        return {list->viewport(), hasEntries ? list->textOf(std::max(list->current(), 0)) : QPoint(0, 0)};
    }
    const Spot spot = spotOn(widget);
    return {target, QPointF(spot.x, spot.y) / base(widget).scale().twips(1)};
}

/// Actions follow one another faster than a person's: the next click is not the third of a triple click.
void letTimePass(QWidget& widget)
{
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&widget)) {
        QTimerEvent over(timer.timerId);
        QApplication::sendEvent(&widget, &over);
    }
}

void sendKey(QWidget& widget, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointer<QWidget> alive = &widget;
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    if (alive)
        QApplication::sendEvent(&widget, &up);
}

/// Tells a widget that it has lost the focus, where Qt does not think that it had it.
void leave(QWidget& widget)
{
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(&widget, &out);
}

} // namespace

void QtOperator::holding(Widget& widget, const std::function<void()>& action)
{
    const EventScope scope(base(widget).context());
    action();
}

void QtOperator::closePopUps()
{
    if (PopupMenu* menu = m_container.openMenu())
        menu->close();
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

bool QtOperator::takeFocus(Widget& widget)
{
    const QPointer<QWidget> alive = &base(widget).qwidget();
    QWidget* window = alive->window();
    if (QApplication::activeWindow() != window) {
        // A window that becomes active gives the focus back, or to its first widget where it cannot: what was
        // frozen or hidden meanwhile is left first.
        const QPointer<QWidget> old = window->focusWidget();
        if (!old || !old->isVisible() || !old->isEnabled()) {
            if (old)
                leave(*old);
            if (alive)
                alive->setFocus(Qt::MouseFocusReason);
        }
        window->activateWindow();
        QApplication::setActiveWindow(window);
    }
    if (!alive)
        return false;
    if (!base(widget).focusReported)
        alive->setFocus(Qt::MouseFocusReason);
    return alive && base(widget).focusReported && base(widget).isReachable();
}

void QtOperator::dropFocus(Widget& widget)
{
    if (!base(widget).focusReported)
        return;
    QWidget& target = base(widget).qwidget();
    const bool hadFocus = target.hasFocus();
    target.clearFocus();
    // One that was hidden with its list open would be given the focus when it is shown, unless somebody else has
    // come between.
    if (target.isHidden() && QApplication::focusWidget() == nullptr) {
        target.window()->setFocus();
        target.window()->clearFocus();
    }
    // A host that kept the focus could not get it back into a field that is frozen or hidden.
    if (!hadFocus)
        leave(target);
}

void QtOperator::point(Widget& widget, Pointer action)
{
    const auto [target, at] = aimAt(widget);
    const QPointer<QWidget> alive = &target;
    // Which character is where is known once the text is painted, as on a screen it always is.
    if (dynamic_cast<TextField*>(&widget) != nullptr)
        target.grab({0, 0, 1, 1});
    const Qt::MouseButton button = action == Pointer::RightClick ? Qt::RightButton : Qt::LeftButton;
    click(target, button, at);
    if (action == Pointer::DoubleClick && alive) {
        sendMouse(target, QEvent::MouseButtonDblClick, button, at);
        if (alive)
            sendMouse(target, QEvent::MouseButtonRelease, button, at);
        if (alive)
            letTimePass(target);
    }
}

bool QtOperator::typeCharacter(TextField& field, std::string_view character)
{
    const QPointer<QWidget> alive = &base(field).qwidget();
    const QString shown = QString::fromStdString(validUtf8(character));
    const char16_t unit = shown.at(0).unicode();
    const std::int16_t code = unit < 256 ? keyCodeOf(static_cast<std::int16_t>(unit)) : kCharacterKey;
    sendKey(*alive, keyOf(code), shown);
    return !alive.isNull();
}

void QtOperator::replace(TextField& field, std::string_view text)
{
    // As the menu's "Paste": no key is pressed.
    QGuiApplication::clipboard()->setText(shownText(text, std::numeric_limits<int>::max()));
    dynamic_cast<QLineEdit&>(base(field).qwidget()).paste();
}

void QtOperator::stroke(Widget& widget, std::int16_t code, std::int16_t character)
{
    const QString text = character == 0 ? QString() : QString(QChar(static_cast<char16_t>(character)));
    sendKey(base(widget).qwidget(), keyOf(code), text);
}

void QtOperator::step(SpinButton& button, bool up)
{
    QWidget& target = dynamic_cast<QtSpinButton&>(button).button(up);
    click(target, Qt::LeftButton, centre(target));
}

void QtOperator::drag(Track& track, std::int32_t position)
{
    // A position between two pixels has no mouse event: the slider's own way of being dragged.
    const QPointer<QSlider> slider = dynamic_cast<QSlider*>(&base(track).qwidget());
    slider->setSliderDown(true);
    if (slider)
        slider->setSliderPosition(position);
    if (slider)
        slider->setSliderDown(false);
}

void QtOperator::open(ComboBox& box) { dynamic_cast<QComboBox&>(base(box).qwidget()).showPopup(); }

void QtOperator::pick(ComboBox& box, std::int32_t index)
{
    auto& combo = dynamic_cast<QComboBox&>(base(box).qwidget());
    if (!combo.view()->isVisible())
        return;
    combo.view()->setCurrentIndex(combo.model()->index(index, 0));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(combo.view(), &enter);
}

void QtOperator::clickMark(ListBox& box, std::int32_t index)
{
    auto& list = dynamic_cast<QtListBox&>(box);
    click(list.viewport(), Qt::LeftButton, list.markOf(index));
}

void QtOperator::clickItem(PopupMenu& menu, std::size_t item) { dynamic_cast<MenuHands&>(menu).trigger(item); }

} // namespace zor::platform::qt
