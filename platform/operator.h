#pragma once

/// The operator's hands: what a person can do to a widget, for the console and for tests. On a platform with
/// real widgets every action arrives as mouse and key events.

#include <zor/platform/macros_aside.h>
#include <zor/platform/widgets.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zor::platform {

/// Why an action could not be done. Nothing has changed then.
enum class Refusal : std::uint8_t { None, Hidden, Disabled, Locked, Closed };

/// The key code that goes with a character: the upper-case letter, the digit, the code of the key for blank,
/// comma, point, plus and minus, 0 for any other.
[[nodiscard]] constexpr std::int16_t keyCodeOf(std::int16_t character) noexcept
{
    if (character >= 'a' && character <= 'z')
        return static_cast<std::int16_t>(character - 'a' + 'A');
    if ((character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') || character == ' ')
        return character;
    switch (character) {
    case '+': return 187;
    case ',': return 188;
    case '-': return 189;
    case '.': return 190;
    default: return 0;
    }
}

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
/// An action on a text field, combo box, list box, check box, option button, track or spin button takes the
/// focus first, as it would for a person; the widget that had it is blurred. `type` sends key down, key
/// press, change and key up for each character; a key press whose code a handler set to 0 changes nothing.
class Operator {
public:
    virtual ~Operator() = default;

    /// Gives the widget the focus.
    virtual Refusal focus(Widget& widget) = 0;
    /// Moves the focus to nothing; refused by none, without effect when the widget has not the focus.
    virtual Refusal blur(Widget& widget) = 0;
    /// Clicks the widget.
    virtual Refusal pointer(Widget& widget, Pointer action) = 0;
    /// Types a text, character by character, over the selection or at the caret.
    virtual Refusal type(TextField& field, std::string_view text) = 0;
    /// Puts a text in the place of the selection at once.
    virtual Refusal paste(TextField& field, std::string_view text) = 0;
    /// Selects characters; both numbers are cut to the text.
    virtual Refusal select(TextField& field, std::size_t start, std::size_t length) = 0;
    /// Key down, key press where the key has a character, key up. 8 Backspace, 13 Enter, 27 Escape, 32 Space,
    /// 33 to 40 Page Up, Page Down, End, Home and the arrows, 46 Delete, and the upper-case letters and digits do
    /// what they say.
    virtual Refusal key(Widget& widget, std::int16_t code) = 0;
    /// One step of a spin button.
    virtual Refusal spin(SpinButton& button, bool up) = 0;
    /// Drags the handle to a position: Scroll, then Change.
    virtual Refusal moveTo(Track& track, std::int32_t position) = 0;
    /// Chooses an entry by its position.
    virtual Refusal choose(ComboBox& box, std::int32_t index) = 0;
    /// Opens the list.
    virtual Refusal dropDown(ComboBox& box) = 0;
    /// Clicks the mark of an entry.
    virtual Refusal toggle(ListBox& box, std::int32_t index) = 0;
    /// A click on a check box or an option button.
    virtual Refusal press(ToggleButton& button) = 0;
    /// Chooses an item of an open menu by its position.
    virtual Refusal chooseItem(PopupMenu& menu, std::size_t item) = 0;
};

} // namespace zor::platform

#include <zor/platform/macros_back.h>
