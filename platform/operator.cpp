#include <zor/platform/error.h>
#include <zor/platform/key_codes.h>
#include <zor/platform/operator.h>
#include <zor/platform/text.h>

#include <array>
#include <string>

namespace zor::platform {
namespace {

bool takesFocus(const Widget& widget)
{
    return dynamic_cast<const Label*>(&widget) == nullptr && dynamic_cast<const Image*>(&widget) == nullptr &&
           dynamic_cast<const Surface*>(&widget) == nullptr && dynamic_cast<const SpinButton*>(&widget) == nullptr;
}

bool isLocked(const Widget& widget)
{
    const auto* field = dynamic_cast<const TextField*>(&widget);
    const auto* box = dynamic_cast<const ComboBox*>(&widget);
    return (field != nullptr && field->isLocked()) || (box != nullptr && box->isLocked());
}

void requireFocus(const Widget& widget)
{
    if (!takesFocus(widget))
        raiseError(ErrorNumber::NoSuchMember, "a label, image, surface or spin button takes no focus");
}

} // namespace

Refusal Operator::act(Widget& widget, const std::function<void()>& action, bool writes)
{
    Refusal refusal = Refusal::None;
    holding(widget, [&] {
        closePopUps();
        if (!widget.isVisible())
            refusal = Refusal::Hidden;
        else if (!widget.isEnabled())
            refusal = Refusal::Disabled;
        else if (writes && isLocked(widget))
            refusal = Refusal::Locked;
        else if (!takesFocus(widget) || takeFocus(widget))
            action();
    });
    return refusal;
}

Refusal Operator::focus(Widget& widget)
{
    requireFocus(widget);
    return act(widget, [] {});
}

Refusal Operator::blur(Widget& widget)
{
    requireFocus(widget);
    holding(widget, [&] {
        closePopUps();
        dropFocus(widget);
    });
    return Refusal::None;
}

Refusal Operator::pointer(Widget& widget, Pointer action)
{
    return act(widget, [&] { point(widget, action); });
}

Refusal Operator::type(TextField& field, std::string_view text)
{
    const auto write = [&] {
        while (!text.empty()) {
            const std::string_view character = text.substr(0, byteOffset(text, 1));
            text.remove_prefix(character.size());
            if (!typeCharacter(field, character))
                return;
        }
    };
    return act(field, write, true);
}

Refusal Operator::paste(TextField& field, std::string_view text)
{
    return act(
        field, [&] { replace(field, text); }, true);
}

Refusal Operator::select(TextField& field, std::size_t start, std::size_t length)
{
    return act(field, [&] { field.select(start, length); });
}

Refusal Operator::key(Widget& widget, std::int16_t code)
{
    requireFocus(widget);
    constexpr std::int16_t kTab = 9;
    if (code == kTab)
        throw RunTimeError(ErrorNumber::InvalidCall, "Tab moves the focus, and is no key of a widget's");
    return act(widget, [&] { stroke(widget, code, characterOfKey(code)); });
}

Refusal Operator::spin(SpinButton& button, bool up)
{
    return act(button, [&] { step(button, up); });
}

Refusal Operator::moveTo(Track& track, std::int32_t position)
{
    return act(track, [&] { drag(track, position); });
}

Refusal Operator::choose(ComboBox& box, std::int32_t index)
{
    static_cast<void>(box.entryText(index));
    const auto choice = [&] {
        open(box);
        // A handler may have emptied or locked the list when it opened.
        if (index < box.count() && !box.isLocked())
            pick(box, index);
    };
    return act(box, choice, true);
}

Refusal Operator::dropDown(ComboBox& box)
{
    return act(
        box, [&] { open(box); }, true);
}

Refusal Operator::toggle(ListBox& box, std::int32_t index)
{
    static_cast<void>(box.entryText(index));
    const auto mark = [&] {
        if (index < box.count())
            clickMark(box, index);
    };
    return act(box, mark);
}

Refusal Operator::press(ToggleButton& button) { return pointer(button, Pointer::Click); }

Refusal Operator::chooseItem(PopupMenu& menu, std::size_t item)
{
    if (!menu.isOpen())
        return Refusal::Closed;
    if (item >= menu.items().size())
        raiseError(ErrorNumber::SubscriptOutOfRange, "item " + std::to_string(item));
    clickItem(menu, item);
    return Refusal::None;
}

} // namespace zor::platform
