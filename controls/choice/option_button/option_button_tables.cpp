// The option button as data: properties, messages, events, states, methods.

#include <zor/controls/choice/option_button/option_button_rows.h>
#include <zor/core/event_rows.h>

namespace zor {

using core::declared;
using core::event;
using core::joined;
using core::named;
using core::ownEvent;
using platform::Notice;

struct ctx_ZorOptionButton::Tables {
    using R = Rows;
    using E = __ctx_ZorOptionButton;

    static constexpr auto kOwn = core::rows(&R::OptionButtonCaption, &R::EnumEntryValue);
    static constexpr auto kInitialOrder = joined(R::kStored, core::rows(&R::EnumValue), kOwn);
    static constexpr auto kProperties =
        joined(R::kStored, kOwn, R::kNotStored, core::rows(&R::EnumValue, &R::OptionButtonValue));

    static constexpr std::array kFaceEvents{
        ownEvent<&E::OptionClick>("OptionClick")
            .saying("The button was chosen, by whomever; before OutputValueChange tells of its value."),
        event<&E::OptionDblClick>("OptionDblClick", opt_OptionButton, Notice::DblClick),
        event<&E::OptionGotFocus>("OptionGotFocus", opt_OptionButton, Notice::GotFocus),
        event<&E::OptionKeyDown>("OptionKeyDown", opt_OptionButton, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::OptionKeyPress>("OptionKeyPress", opt_OptionButton, Notice::KeyPress, "KeyAscii"),
        event<&E::OptionKeyUp>("OptionKeyUp", opt_OptionButton, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::OptionLostFocus>("OptionLostFocus", opt_OptionButton, Notice::LostFocus),
        event<&E::OptionMouseDown>("OptionMouseDown", opt_OptionButton, Notice::MouseDown, "Button", "Shift", "X",
                                   "Y"),
        event<&E::OptionMouseMove>("OptionMouseMove", opt_OptionButton, Notice::MouseMove, "Button", "Shift", "X",
                                   "Y"),
        event<&E::OptionMouseUp>("OptionMouseUp", opt_OptionButton, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::OptionOLECompleteDrag>("OptionOLECompleteDrag", opt_OptionButton, Notice::OLECompleteDrag,
                                         "Effect"),
        declared<&E::OptionOLEDragDrop>("OptionOLEDragDrop"),
        declared<&E::OptionOLEDragOver>("OptionOLEDragOver"),
        event<&E::OptionOLEGiveFeedback>("OptionOLEGiveFeedback", opt_OptionButton, Notice::OLEGiveFeedback,
                                         "Effect", "DefaultCursors"),
        declared<&E::OptionOLESetData>("OptionOLESetData"),
        declared<&E::OptionOLEStartDrag>("OptionOLEStartDrag"),
        event<&E::OptionValidate>("OptionValidate", opt_OptionButton, Notice::Validate, "Cancel"),
    };

    static constexpr auto kEvents = joined(
        core::conditionRows<E>(
            "This button became the one that is selected, by the operator or by a value, and OutputValue is "
            "its value."),
        kFaceEvents, core::iconRows<E>(img_State));

    static constexpr auto kWidgets =
        controls::ChoiceRows::widgets({opt_OptionButton, "opt_OptionButton", "The button with its caption."});
};

const core::ClassInfo& ctx_ZorOptionButton::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info =
        core::complete({.name = "ctx_ZorOptionButton",
                        .meaning = "A button for one of the values that a parameter may have. Several of them, "
                                   "each with its EnumEntryValue, offer a choice.",
                        .properties = T::kProperties,
                        .initialOrder = T::kInitialOrder,
                        .messages = Rows::kMessages,
                        .events = T::kEvents,
                        .raised = {.dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                                   .outputValueChange = named(T::kEvents, "OutputValueChange"),
                                   .changed = named(T::kEvents, "OptionClick")},
                        .methods = controls::ChoiceRows::kMethods,
                        .states = Rows::kStates,
                        .effects = controls::ChoiceRows::kEffects,
                        .widgets = T::kWidgets,
                        .create = core::created<ctx_ZorOptionButton>});
    return info;
}

} // namespace zor
