#pragma once

/// What combo box and list box are alike in, beside being choice controls: a list of entries that the host
/// fills, the state of a value that no entry stands for, the field's colours, and the layout of its width.

#include <zor/controls/choice/choice_rows.h>
#include <zor/controls/choice/entry_list.h>
#include <zor/platform/macros_aside.h>

namespace zor::controls {

/// The state of a value that no entry stands for.
struct InvalidMark {
    bool isSet = false;
    core::SharedText message = core::shared<"Invalid Entry">();
};

/// The back colour of a list: what cannot be edited looks like the form, what is edited stands out.
[[nodiscard]] constexpr Colour listBackColour(bool isReadOnly, bool isModified) noexcept
{
    return isReadOnly ? ButtonFace : isModified ? kYellow : WindowBackground;
}

/// A list's width and, right of it, the icon's place.
inline constexpr platform::Twips kListRoom = 415; ///< right of the list, for the icon
/// Narrowest list, in twips.
inline constexpr platform::Twips kSmallestList = 285;
/// Gives list and icon the width of the control.
void layOutListWidth(platform::Twips controlWidth, platform::Widget& list, platform::Widget& icon);

/// The tables of a class `Class` whose InvalidMark is `Mark`, whose other-user value is `Other` and whose
/// reference value is `Reference`.
template <auto Mark, auto Other, auto Reference>
struct EntryChoiceRows {
    using S = core::SharedRows;
    using R = ChoiceRows;
    using Class = typename core::detail::Member<decltype(Mark)>::Class;

    static constexpr auto InvalidValue = S::InvalidValue<Mark, &InvalidMark::isSet>.saying(
        "No entry of a filled list stands for the last value of the device's or the host's; a list box never says "
        "so. The "
        "control's own.");
    // A new control starts with another text than a form means that says nothing.
    static constexpr auto MsgInvalidValue =
        core::fieldRow<Mark, &InvalidMark::message>("MsgInvalidValue", core::Topic::Messages)
            .saying("Message of a value that no entry stands for.")
            .stored("Invalid Value from Device")
            .initially("Invalid Entry")
            .refreshing({core::Refresh::Status});

    static constexpr auto kStored =
        joined(R::kFirst, core::rows(&InvalidValue), R::kState, core::rows(&MsgInvalidValue), R::kSettings);
    static constexpr auto kNotStored = joined(R::kNotStored, core::rows(&S::OtherUserValue<Other>));

    static constexpr std::array kMessages{
        core::MessageRow{"MSG_CFAIL", &S::MsgCfail},
        core::MessageRow{"MSG_DATANOTAVAILABLE", &S::MsgDataNotAvailable},
        core::MessageRow{"MSG_DATACHANGED", &S::MsgDataChanged},
        core::MessageRow{"MSG_DEFAULT", &S::MsgDefault},
        core::MessageRow{"MSG_INVALIDVALUE", &MsgInvalidValue},
        core::MessageRow{"MSG_DEVICETAGNOTFOUND", &S::MsgDeviceTagNotFound},
    };

    static const InvalidMark& mark(const core::Control& control)
    {
        return static_cast<const Class&>(control).*Mark;
    }
    static constexpr std::array kStates{
        S::CommunicationFailure, S::TagNotFound, S::NoData, S::DataChangedByOther<Other, Reference>,
        core::StatusRow{[](const core::Control& c) { return mark(c).isSet; },
                        [](const core::Control& c, std::string& text) { text += mark(c).message.text(); },
                        frm_Container::Warning,
                        [](core::Control& c, std::string& text) { text.append(mark(c).message).append("\r\n"); },
                        platform::BoxIcon::Exclamation}};
};

} // namespace zor::controls

#include <zor/platform/macros_back.h>
