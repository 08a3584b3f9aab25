#include <zor/platform/headless/keys.h>
#include <zor/platform/headless/menu.h>
#include <zor/platform/headless/operator.h>
#include <zor/platform/headless/simple_widgets.h>
#include <zor/platform/temporarily.h>
#include <zor/platform/text.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace zor::platform::headless {
namespace {

HeadlessWidget& base(Widget& widget) { return dynamic_cast<HeadlessWidget&>(widget); }

/// A handler may have frozen or hidden the widget under the operator's hands: then it hears of no key any more.
bool isReachable(const Widget& widget) { return widget.isVisible() && widget.isEnabled(); }

/// On the mark or the text of an entry, with the rows as high as on a screen in the usual font; one that lies
/// below is scrolled to.
Spot spotOnEntry(const ListBox& list, std::int32_t index, bool isMark)
{
    constexpr Twips kRowHeight = 270;
    constexpr Twips kFirstRow = 120;
    constexpr Twips kMark = 135;
    const auto last = std::max(static_cast<std::int32_t>(list.height() / kRowHeight), 1) - 1;
    return {isMark ? kMark : kListText, kFirstRow + kRowHeight * std::min(index, last)};
}

Spot spotOfClick(const Widget& widget)
{
    const auto* list = dynamic_cast<const ListBox*>(&widget);
    if (list == nullptr)
        return spotOn(widget);
    return list->count() > 0 ? spotOnEntry(*list, std::max(list->current(), 0), false) : Spot{};
}

void reportMouse(Widget& widget, Notice notice, std::int16_t button, Spot spot)
{
    // A click may hide what it acknowledges, and is one all the same; what it freezes hears of nothing more.
    if (!widget.isEnabled())
        return;
    std::int16_t shift = 0;
    auto x = static_cast<float>(spot.x);
    auto y = static_cast<float>(spot.y);
    const std::array<ArgRef, 4> args{&button, &shift, &x, &y};
    base(widget).report(notice, args);
}

/// Choosing the entry that is chosen already is a click all the same.
void clickEntry(EntryWidget& list, std::int32_t index)
{
    if (list.current() == index)
        base(list).report(Notice::Click);
    else
        list.setCurrent(index);
}

/// A press and release; whether the mouse was still over the widget then. What it does to the widget follows.
bool pressAndRelease(Widget& widget, Spot spot)
{
    constexpr Twips kLeast = 15; // what is narrower can still be clicked
    if (auto* field = dynamic_cast<TextField*>(&widget))
        field->select(characterCount(field->text()), 0);
    reportMouse(widget, Notice::MouseDown, kLeftButton, spot);
    const Rect area = widget.geometry();
    reportMouse(widget, Notice::MouseUp, kLeftButton, spot);
    return spot.x < std::max(area.width, kLeast) && spot.y < std::max(area.height, kLeast);
}

void click(Widget& widget, Spot spot)
{
    const bool isOver = pressAndRelease(widget, spot);
    if (!widget.isEnabled())
        return;
    if (auto* button = dynamic_cast<ToggleButton*>(&widget)) {
        pushToggle(*button);
    } else if (auto* list = dynamic_cast<EntryWidget*>(&widget)) {
        // On the text of the current entry; an empty list has nothing to click on.
        if (list->count() > 0)
            clickEntry(*list, std::max(list->current(), 0));
    } else if (isOver) {
        base(widget).report(Notice::Click);
    }
}

bool isBlank(char byte) { return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n'; }

bool isWord(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 || (value >= '0' && value <= '9') || (value >= 'A' && value <= 'Z') ||
           (value >= 'a' && value <= 'z') || value == '_';
}

/// The second click on a text field selects the word under it, which is the last one, with the blanks behind it.
void selectLastWord(TextField& field)
{
    const std::string& text = field.text();
    std::size_t from = text.size();
    while (from > 0 && isBlank(text[from - 1]))
        --from;
    const bool word = from > 0 && isWord(text[from - 1]);
    while (from > 0 && !isBlank(text[from - 1]) && isWord(text[from - 1]) == word)
        --from;
    const std::size_t first = characterCount(std::string_view(text).substr(0, from));
    field.select(first, characterCount(text) - first);
}

/// Key down and key up around `action`, which gets what handlers have made of the key.
template <class Action>
void strike(Widget& widget, Stroke stroke, Action&& action)
{
    const auto isThere = [&] { return isReachable(widget); };
    if (!isThere())
        return;
    std::int16_t up = stroke.code;
    if (isHeard(
            stroke, 0, [&](Notice notice, EventArgs args) { base(widget).report(notice, args); }, isThere))
        action(stroke);
    if (!isThere())
        return;
    std::int16_t shift = 0;
    base(widget).report(Notice::KeyUp, std::array<ArgRef, 2>{&up, &shift});
}

} // namespace

void HeadlessOperator::holding(Widget& widget, const std::function<void()>& action)
{
    const Host& host = base(widget).host();
    const Hold hold(host.listener());
    host.failures().during(action);
}

void HeadlessOperator::closePopUps()
{
    if (PopupMenu* menu = m_container.openMenu())
        menu->close();
}

bool HeadlessOperator::moveFocus(Host& window, Widget* widget)
{
    const Hold held(window.listener());
    Widget* old = window.focused();
    if (old == widget)
        return true;
    if (old != nullptr) {
        // Who asks for another focus while he is asked whether this one may go has to wait for his own answer.
        if (m_validating)
            return false;
        const Hold hold(base(*old).host().listener());
        // The selection ends with the focus, or a form would show one in every field.
        if (auto* field = dynamic_cast<TextField*>(old))
            field->select(field->selectionStart() + field->selectionLength(), 0);
        bool cancel = false;
        {
            const Temporarily validating(m_validating, true);
            base(*old).report(Notice::Validate, std::array<ArgRef, 1>{&cancel});
        }
        // Nobody can go on working in what is hidden: that is left, whatever the host says.
        if (cancel && old->isVisible())
            return false;
        window.setFocused(nullptr);
        base(*old).report(Notice::LostFocus);
    }
    if (widget != nullptr) {
        window.setFocused(widget);
        base(*widget).report(Notice::GotFocus);
    }
    return window.focused() == widget;
}

bool HeadlessOperator::takeFocus(Widget& widget)
{
    return moveFocus(base(widget).host(), &widget) && isReachable(widget);
}

void HeadlessOperator::dropFocus(Widget& widget)
{
    Host& window = base(widget).host();
    if (window.focused() == &widget)
        moveFocus(window, nullptr);
}

void HeadlessOperator::point(Widget& widget, Pointer action)
{
    // The hand stays where it is, whatever a handler makes of the widget under it.
    const Spot spot = spotOfClick(widget);
    if (action == Pointer::RightClick) {
        reportMouse(widget, Notice::MouseDown, kRightButton, spot);
        reportMouse(widget, Notice::MouseUp, kRightButton, spot);
        return;
    }
    click(widget, spot);
    if (action == Pointer::DoubleClick && widget.isEnabled()) {
        if (auto* field = dynamic_cast<TextField*>(&widget))
            selectLastWord(*field);
        base(widget).report(Notice::DblClick);
        reportMouse(widget, Notice::MouseUp, kLeftButton, spot);
        // The second press is one more for a button, and no click of its own for anything else.
        if (auto* button = dynamic_cast<ToggleButton*>(&widget); button != nullptr && button->isEnabled())
            pushToggle(*button);
    }
}

bool HeadlessOperator::typeCharacter(TextField& field, std::string_view character)
{
    const std::int16_t ascii = codeOf(character);
    const bool isBeyond = ascii == '?' && character != "?";
    const Stroke struck{isBeyond ? kCharacterKey : keyCodeOf(ascii), ascii};
    strike(field, struck, [&](const Stroke& stroke) {
        if (stroke != struck)
            applyKey(field, stroke);
        else if (isTyped(ascii) && !field.isLocked())
            field.replaceSelection(character);
    });
    return isReachable(field);
}

void HeadlessOperator::replace(TextField& field, std::string_view text) { field.replaceSelection(text); }

void HeadlessOperator::stroke(Widget& widget, std::int16_t code, std::int16_t character)
{
    strike(widget, {code, character}, [&](const Stroke& stroke) { applyKey(widget, stroke); });
}

void HeadlessOperator::step(SpinButton& button, bool up) { dynamic_cast<HeadlessSpinButton&>(button).step(up); }

void HeadlessOperator::drag(Track& track, std::int32_t position)
{
    const std::int32_t target = std::clamp(position, track.minimum(), std::max(track.minimum(), track.maximum()));
    const std::int32_t before = track.value();
    if (before == target)
        return;
    base(track).report(Notice::Scroll);
    // Who hears of it may show another value, or freeze the track: then the hand has lost the handle.
    if (track.value() == before && isReachable(track))
        track.setValue(target);
}

void HeadlessOperator::open(ComboBox& box)
{
    // Who heard of the focus may have locked it.
    if (!box.isLocked())
        base(box).report(Notice::DropDown);
}

void HeadlessOperator::pick(ComboBox& box, std::int32_t index)
{
    if (base(box).host().focused() == &box && isReachable(box) && !box.isLocked())
        clickEntry(box, index);
}

void HeadlessOperator::clickMark(ListBox& box, std::int32_t index)
{
    using Entry = std::pair<std::string, std::int32_t>;
    const auto entry = [&] {
        return index < box.count() ? std::optional(Entry(box.entryText(index), box.datum(index))) : std::nullopt;
    };
    const std::optional<Entry> pressed = entry();
    pressAndRelease(box, spotOnEntry(box, index, true));
    // Where a handler has put another entry under the hand, it has not been clicked.
    if (box.isEnabled() && pressed && entry() == pressed)
        box.setSelected(index, !box.isSelected(index));
}

void HeadlessOperator::clickItem(PopupMenu& menu, std::size_t item)
{
    const Host& host = dynamic_cast<HeadlessMenu&>(menu).host();
    WidgetListener& listener = host.listener();
    const Hold hold(listener);
    const int number = menu.items()[item].widget;
    menu.close();
    listener.notice(number, Notice::Click, {});
}

} // namespace zor::platform::headless
