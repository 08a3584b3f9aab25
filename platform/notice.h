#pragma once

/// What a widget reports to the control that owns it.

#include <zor/platform/macros_aside.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace zor::platform {

/// One argument of an event, by reference: what a handler changes, the widget (or the control) receives.
using ArgRef = std::variant<std::int16_t*, std::int32_t*, float*, bool*, std::string*>;

/// The arguments of one report, in the order given with its kind.
using EventArgs = std::span<const ArgRef>;

/// The kinds of reports. The arguments, where there are any, are given with each.
enum class Notice : std::uint8_t {
    None,            ///< marks an event that no widget's report raises
    Change,          ///< text, caption, selected position or value changed, by whomever
    Click,           ///<
    DblClick,        ///<
    GotFocus,        ///<
    LostFocus,       ///<
    KeyDown,         ///< KeyCode, Shift (16-bit)
    KeyPress,        ///< KeyAscii (16-bit); 0 afterwards swallows the key
    KeyUp,           ///< KeyCode, Shift (16-bit)
    MouseDown,       ///< Button, Shift (16-bit), X, Y (single, twips)
    MouseMove,       ///< as MouseDown
    MouseUp,         ///< as MouseDown
    Validate,        ///< Cancel (boolean); True afterwards keeps the focus
    DropDown,        ///< a list opens
    Scroll,          ///< a track is being dragged, a list was scrolled
    SpinDown,        ///< the spin button went one step down
    SpinUp,          ///< the spin button went one step up
    LinkClose,       ///<
    LinkError,       ///< LinkErr (16-bit)
    LinkNotify,      ///<
    LinkOpen,        ///< Cancel (16-bit)
    OLECompleteDrag, ///< Effect (32-bit)
    OLEDragDrop,     ///< Data (text), Effect (32-bit), Button, Shift (16-bit), X, Y (single, twips)
    OLEDragOver,     ///< as OLEDragDrop, then State (16-bit)
    OLEGiveFeedback, ///< Effect (32-bit), DefaultCursors (boolean)
    OLESetData,      ///< Data (text), DataFormat (16-bit)
    OLEStartDrag,    ///< Data (text), AllowedEffects (32-bit)
};

/// Whether the platforms' widgets report it. None of them offers links and drags.
[[nodiscard]] constexpr bool isReported(Notice notice) noexcept
{
    return notice != Notice::None && notice < Notice::LinkClose;
}

/// What has happened when a widget reports, in words for people.
[[nodiscard]] constexpr std::string_view meaningOf(Notice notice) noexcept
{
    switch (notice) {
    case Notice::Change: return "Its text, caption, position or value changed, by whomever.";
    case Notice::Click: return "It was clicked.";
    case Notice::DblClick: return "It was clicked twice.";
    case Notice::GotFocus: return "It got the focus.";
    case Notice::LostFocus: return "It lost the focus.";
    case Notice::KeyDown: return "A key went down. KeyCode set to 0 swallows it.";
    case Notice::KeyPress: return "A character was typed. KeyAscii set to 0 swallows it.";
    case Notice::KeyUp: return "A key came up.";
    case Notice::MouseDown: return "A mouse button went down.";
    case Notice::MouseMove: return "The mouse moved over it.";
    case Notice::MouseUp: return "A mouse button came up.";
    case Notice::Validate: return "The focus is about to leave. Cancel set to True keeps it.";
    case Notice::DropDown: return "The list opens.";
    case Notice::Scroll: return "It was scrolled, or its handle is being dragged.";
    case Notice::SpinDown: return "The spin button was clicked down.";
    case Notice::SpinUp: return "The spin button was clicked up.";
    default: return "Raised where a platform's widget reports it.";
    }
}

/// Mouse buttons as they stand in Button (a bit each).
inline constexpr std::int16_t kLeftButton = 1;
/// The right mouse button.
inline constexpr std::int16_t kRightButton = 2;
/// The middle mouse button.
inline constexpr std::int16_t kMiddleButton = 4;

/// Key states as they stand in Shift (a bit each).
inline constexpr std::int16_t kShiftMask = 1;
/// A Ctrl key is held.
inline constexpr std::int16_t kCtrlMask = 2;
/// An Alt key is held.
inline constexpr std::int16_t kAltMask = 4;

/// The number under which a surface reports; a control's own widgets are numbered from 1.
inline constexpr int kSurfaceWidget = 0;

/// What a screen reader says of a widget, beside what the widget itself shows.
struct Spoken {
    std::string name;                                          ///< which parameter it is; empty: nobody has said
    std::string unit;                                          ///< as it is shown
    std::string value;                                         ///< of a widget that shows no text
    std::string state;                                         ///< the state that its icon stands for, in words
    std::optional<std::pair<std::string, std::string>> limits; ///< what an entry may be, as it is shown
    std::optional<std::pair<double, double>> ends;             ///< the same as numbers
    bool isEdited = false;                                     ///< differs from what the device has
    bool isReadOnly = false;                                   ///< nobody may ever edit it
    bool isLocked = false;                                     ///< nobody can edit it now
    bool isBusy = false;                                       ///< the device is being read
};

/// Receives the reports of all widgets of one control. `widget` is the number the control gave the widget
/// when it created it.
class WidgetListener {
public:
    /// A widget reports.
    virtual void notice(int widget, Notice notice, EventArgs args) = 0;
    /// Asked whenever somebody wants to hear it; nothing of it is kept with the widget.
    [[nodiscard]] virtual Spoken spoken(int /*widget*/) { return {}; }

    /// While held, the listener and its widgets stay alive even when a handler destroys the control.
    /// A widget holds its listener through every operator action; release() must be the last thing it does,
    /// because the widget itself may be gone afterwards.
    virtual void hold() noexcept = 0;
    /// Ends a hold; the listener may be gone afterwards.
    virtual void release() noexcept = 0;

protected:
    ~WidgetListener() = default;
};

/// Holds a listener for the length of a scope. A listener known by its own class is held without a virtual call.
template <class Listener>
class Hold {
public:
    /// Holds the listener until the scope ends.
    explicit Hold(Listener& listener) noexcept : m_listener(listener) { m_listener.hold(); }
    ~Hold() { m_listener.release(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    Listener& m_listener;
};

} // namespace zor::platform

#include <zor/platform/macros_back.h>
