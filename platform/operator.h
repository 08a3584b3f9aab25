#pragma once

/// The operator's hands: what a person can do to a widget, for the console and for tests. On a platform with
/// real widgets every action arrives as mouse and key events.

#include <zor/platform/macros_aside.h>
#include <zor/platform/widgets.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

namespace zor::platform {

/// Why an action could not be done. Nothing has changed then, but that an open menu or list has closed.
enum class Refusal : std::uint8_t {
    None,     ///< it was done
    Hidden,   ///< nobody sees the widget
    Disabled, ///< the widget is frozen
    Locked,   ///< it can be looked at and not changed
    Closed,   ///< the menu is not open
};

/// Where on a widget the operator points, in twips. One rule for all platforms, because events carry it.
struct Spot {
    /// From the left edge.
    Twips x = 0;
    /// From the top edge.
    Twips y = 0;
};

/// Behind the text of a text field, so that the caret comes to its end; on the indicator of a check box or option
/// button, however wide the caption is; at the start of a label, whose size is a matter of the font; else the
/// centre.
[[nodiscard]] inline Spot spotOn(const Widget& widget)
{
    constexpr Twips kBehindText = 30;
    constexpr Twips kOnIndicator = 120;
    constexpr Twips kOnText = 60;
    if (dynamic_cast<const TextField*>(&widget) != nullptr)
        return {widget.width() - kBehindText, widget.height() / 2};
    if (dynamic_cast<const ToggleButton*>(&widget) != nullptr)
        return {kOnIndicator, widget.height() / 2};
    if (dynamic_cast<const Label*>(&widget) != nullptr)
        return {std::min(kOnText, widget.width() / 2), std::min(kOnText, widget.height() / 2)};
    return {widget.width() / 2, widget.height() / 2};
}

/// How far from the left edge the text of a list box's entries is clicked: behind the mark.
inline constexpr Twips kListText = 450;

/// What the mouse does.
enum class Pointer : std::uint8_t { Click, DoubleClick, RightClick };

/// Each action returns why it was refused, or None. A widget that cannot do what is asked (a label does not
/// take the focus) raises NoSuchMember.
///
/// An action on a text field, combo box, list box, check box, option button or track takes the focus first, as it
/// would for a person; the widget that had it is blurred. A handler that keeps the focus where
/// it is, or freezes or hides the widget, ends the action. `type` sends key down, key press, change and key up
/// for each character; a key press whose code a handler set to 0 changes nothing.
///
/// What is refused, in which order, is the same everywhere and stands here; a platform supplies what a hand does.
class Operator {
public:
    virtual ~Operator() = default;

    /// Gives the widget the focus.
    Refusal focus(Widget& widget);
    /// Moves the focus to nothing; refused by none, without effect when the widget has not the focus.
    Refusal blur(Widget& widget);
    /// Clicks the widget.
    Refusal pointer(Widget& widget, Pointer action);
    /// Types a text, character by character, over the selection or at the caret.
    Refusal type(TextField& field, std::string_view text);
    /// Puts a text in the place of the selection at once.
    Refusal paste(TextField& field, std::string_view text);
    /// Selects characters; both numbers are cut to the text.
    Refusal select(TextField& field, std::size_t start, std::size_t length);
    /// Key down, key press where the key has a character, key up. 8 Backspace, 13 Enter, 27 Escape, 32 Space,
    /// 33 to 40 Page Up, Page Down, End, Home and the arrows, 46 Delete, and the upper-case letters and digits do
    /// what they say. Raises InvalidCall for Tab, which leads elsewhere on every form.
    Refusal key(Widget& widget, std::int16_t code);
    /// One step of a spin button.
    Refusal spin(SpinButton& button, bool up);
    /// Drags the handle to a position, or to the nearer end: Scroll, then Change.
    Refusal moveTo(Track& track, std::int32_t position);
    /// Chooses an entry by its position. Raises SubscriptOutOfRange where there is none.
    Refusal choose(ComboBox& box, std::int32_t index);
    /// Opens the list.
    Refusal dropDown(ComboBox& box);
    /// Clicks the mark of an entry. Raises SubscriptOutOfRange where there is none.
    Refusal toggle(ListBox& box, std::int32_t index);
    /// A click on a check box or an option button.
    Refusal press(ToggleButton& button);
    /// Chooses an item of an open menu by its position. Raises SubscriptOutOfRange where there is none.
    Refusal chooseItem(PopupMenu& menu, std::size_t item);

private:
    /// Does something while the control that the widget belongs to stays, whatever its handlers do.
    virtual void holding(Widget& widget, const std::function<void()>& action) = 0;
    /// An open menu or drop-down list closes when the operator goes on with something else.
    virtual void closePopUps() = 0;
    /// Moves the focus to the widget; false when a handler kept it elsewhere, or froze or hid the widget.
    virtual bool takeFocus(Widget& widget) = 0;
    virtual void dropFocus(Widget& widget) = 0;
    virtual void point(Widget& widget, Pointer action) = 0;
    /// Types one character, in UTF-8; false when no other can follow.
    virtual bool typeCharacter(TextField& field, std::string_view character) = 0;
    virtual void replace(TextField& field, std::string_view text) = 0;
    /// `character` is that of the key, 0 when it has none.
    virtual void stroke(Widget& widget, std::int16_t code, std::int16_t character) = 0;
    virtual void step(SpinButton& button, bool up) = 0;
    virtual void drag(Track& track, std::int32_t position) = 0;
    virtual void open(ComboBox& box) = 0;
    /// Chooses an entry of a list that was just opened, if it still is.
    virtual void pick(ComboBox& box, std::int32_t index) = 0;
    virtual void clickMark(ListBox& box, std::int32_t index) = 0;
    virtual void clickItem(PopupMenu& menu, std::size_t item) = 0;

    /// Reaches a widget, takes the focus if it takes one, and acts.
    Refusal act(Widget& widget, const std::function<void()>& action, bool writes = false);
};

} // namespace zor::platform

#include <zor/platform/macros_back.h>
