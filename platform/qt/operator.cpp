#include <zor/platform/error.h>
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

bool takesFocus(const Widget& widget)
{
    return dynamic_cast<const Label*>(&widget) == nullptr && dynamic_cast<const Image*>(&widget) == nullptr &&
           dynamic_cast<const Surface*>(&widget) == nullptr && dynamic_cast<const SpinButton*>(&widget) == nullptr;
}

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

QString characterOf(std::int16_t code)
{
    constexpr std::array<std::int16_t, 3> kControlCharacters{8, 13, 27};
    const bool control = std::ranges::find(kControlCharacters, code) != kControlCharacters.end();
    const bool printable = code >= ' ' && code <= 'Z' && keyCodeOf(code) == code;
    return control || printable ? QString(QChar(static_cast<char16_t>(code))) : QString();
}

} // namespace

/// An open menu or drop-down list closes when the operator goes on with something else.
void QtOperator::leavePopUps()
{
    if (PopupMenu* menu = m_container.openMenu())
        menu->close();
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

Refusal QtOperator::reach(Widget& widget)
{
    leavePopUps();
    if (!widget.isVisible())
        return Refusal::Hidden;
    return widget.isEnabled() ? Refusal::None : Refusal::Disabled;
}

Refusal QtOperator::approach(Widget& widget, bool& there)
{
    const Refusal refusal = reach(widget);
    there = refusal == Refusal::None;
    if (!there || !takesFocus(widget))
        return refusal;
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
        return refusal;
    if (!base(widget).focusReported)
        alive->setFocus(Qt::MouseFocusReason);
    // A handler that freezes or hides the widget when the focus comes ends the action.
    there = alive && base(widget).focusReported && base(widget).isReachable();
    return refusal;
}

Refusal QtOperator::focus(Widget& widget)
{
    if (!takesFocus(widget))
        raiseError(ErrorNumber::NoSuchMember);
    const EventScope scope(base(widget).context());
    bool there = false;
    return approach(widget, there);
}

Refusal QtOperator::blur(Widget& widget)
{
    if (!takesFocus(widget))
        raiseError(ErrorNumber::NoSuchMember);
    const EventScope scope(base(widget).context());
    leavePopUps();
    QWidget& target = base(widget).qwidget();
    const bool hadFocus = target.hasFocus();
    target.clearFocus();
    // A host that kept the focus could not get it back into a field that is frozen or hidden.
    if (!hadFocus)
        leave(target);
    return Refusal::None;
}

Refusal QtOperator::pointer(Widget& widget, Pointer action)
{
    const EventScope scope(base(widget).context());
    bool there = false;
    const Refusal refusal = approach(widget, there);
    if (!there)
        return refusal;
    const auto [target, at] = aimAt(widget);
    const QPointer<QWidget> alive = &target;
    const Qt::MouseButton button = action == Pointer::RightClick ? Qt::RightButton : Qt::LeftButton;
    click(target, button, at);
    if (action == Pointer::DoubleClick && alive) {
        sendMouse(target, QEvent::MouseButtonDblClick, button, at);
        if (alive)
            sendMouse(target, QEvent::MouseButtonRelease, button, at);
        if (alive)
            letTimePass(target);
    }
    return refusal;
}

Refusal QtOperator::type(TextField& field, std::string_view text)
{
    const EventScope scope(base(field).context());
    bool there = false;
    Refusal refusal = reach(field);
    if (refusal == Refusal::None && field.isLocked())
        refusal = Refusal::Locked;
    if (refusal != Refusal::None || approach(field, there) != Refusal::None || !there)
        return refusal;
    const QPointer<QWidget> alive = &base(field).qwidget();
    while (!text.empty() && alive) {
        const std::string_view character = text.substr(0, byteOffset(text, 1));
        text.remove_prefix(character.size());
        const QString shown = QString::fromStdString(validUtf8(character));
        const char16_t unit = shown.at(0).unicode();
        const std::int16_t code = unit < 256 ? keyCodeOf(static_cast<std::int16_t>(unit)) : std::int16_t{0};
        sendKey(*alive, keyOf(code), shown);
    }
    return refusal;
}

Refusal QtOperator::paste(TextField& field, std::string_view text)
{
    const EventScope scope(base(field).context());
    bool there = false;
    Refusal refusal = reach(field);
    if (refusal == Refusal::None && field.isLocked())
        refusal = Refusal::Locked;
    if (refusal == Refusal::None && approach(field, there) == Refusal::None && there) {
        // As the menu's "Paste": no key is pressed.
        QGuiApplication::clipboard()->setText(shownText(text, std::numeric_limits<int>::max()));
        dynamic_cast<QLineEdit&>(base(field).qwidget()).paste();
    }
    return refusal;
}

Refusal QtOperator::select(TextField& field, std::size_t start, std::size_t length)
{
    const EventScope scope(base(field).context());
    bool there = false;
    const Refusal refusal = approach(field, there);
    if (there)
        field.select(start, length);
    return refusal;
}

Refusal QtOperator::key(Widget& widget, std::int16_t code)
{
    if (!takesFocus(widget))
        raiseError(ErrorNumber::NoSuchMember);
    const EventScope scope(base(widget).context());
    bool there = false;
    const Refusal refusal = approach(widget, there);
    if (there)
        sendKey(base(widget).qwidget(), keyOf(code), characterOf(code));
    return refusal;
}

Refusal QtOperator::spin(SpinButton& button, bool up)
{
    const EventScope scope(base(button).context());
    const Refusal refusal = reach(button);
    if (refusal == Refusal::None) {
        QWidget& target = dynamic_cast<QtSpinButton&>(button).button(up);
        click(target, Qt::LeftButton, centre(target));
    }
    return refusal;
}

Refusal QtOperator::moveTo(Track& track, std::int32_t position)
{
    const EventScope scope(base(track).context());
    bool there = false;
    const Refusal refusal = approach(track, there);
    if (there) {
        // A position between two pixels has no mouse event: the slider's own way of being dragged.
        auto& slider = dynamic_cast<QSlider&>(base(track).qwidget());
        const QPointer<QSlider> alive = &slider;
        slider.setSliderDown(true);
        if (alive)
            slider.setSliderPosition(position);
        if (alive)
            slider.setSliderDown(false);
    }
    return refusal;
}

Refusal QtOperator::dropDown(ComboBox& box)
{
    const EventScope scope(base(box).context());
    bool there = false;
    Refusal refusal = reach(box);
    if (refusal == Refusal::None && box.isLocked())
        refusal = Refusal::Locked;
    if (refusal == Refusal::None && approach(box, there) == Refusal::None && there)
        dynamic_cast<QComboBox&>(base(box).qwidget()).showPopup();
    return refusal;
}

Refusal QtOperator::choose(ComboBox& box, std::int32_t index)
{
    const EventScope scope(base(box).context());
    static_cast<void>(box.entryText(index));
    const Refusal refusal = dropDown(box);
    const QPointer<QComboBox> combo = dynamic_cast<QComboBox*>(&base(box).qwidget());
    // A handler may have emptied or locked the list when it opened.
    if (refusal == Refusal::None && combo && combo->view()->isVisible() && index < box.count()) {
        combo->view()->setCurrentIndex(combo->model()->index(index, 0));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(combo->view(), &enter);
    }
    return refusal;
}

Refusal QtOperator::toggle(ListBox& box, std::int32_t index)
{
    const EventScope scope(base(box).context());
    static_cast<void>(box.entryText(index));
    bool there = false;
    const Refusal refusal = approach(box, there);
    if (there && index < box.count()) {
        auto& list = dynamic_cast<QtListBox&>(box);
        click(list.viewport(), Qt::LeftButton, list.markOf(index));
    }
    return refusal;
}

Refusal QtOperator::press(ToggleButton& button)
{
    const EventScope scope(base(button).context());
    bool there = false;
    const Refusal refusal = approach(button, there);
    if (there) {
        const auto [target, at] = aimAt(button);
        click(target, Qt::LeftButton, at);
    }
    return refusal;
}

Refusal QtOperator::chooseItem(PopupMenu& menu, std::size_t item)
{
    if (!menu.isOpen())
        return Refusal::Closed;
    if (item >= menu.items().size())
        raiseError(ErrorNumber::SubscriptOutOfRange);
    dynamic_cast<MenuHands&>(menu).trigger(item);
    return Refusal::None;
}

} // namespace zor::platform::qt
