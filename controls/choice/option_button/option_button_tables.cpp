// The option button as data: properties, messages, events, states, methods.

#include <zor/controls/choice/option_button/ctx_ZorOptionButton.h>
#include <zor/core/event_rows.h>

namespace zor {

using controls::kFace;
using controls::kState;
using core::declared;
using core::event;
using core::fieldRow;
using core::joined;
using core::named;
using core::ownEvent;
using platform::Notice;

struct ctx_ZorOptionButton::Rows
    : controls::CaptionChoiceRows<&ctx_ZorOptionButton::m_otherUser, &ctx_ZorOptionButton::m_reference> {
    using This = ctx_ZorOptionButton;

    static constexpr auto EnumValue =
        fieldRow<&This::m_enumValue>("EnumValue", core::Topic::Value)
            .saying("The present value of the parameter; the button is on when it equals EnumEntryValue.")
            .placed(core::Placing::Chosen)
            .initially(0)
            .then<&This::s_ApplyEnumValue>();
    static constexpr auto OptionButtonCaption =
        fieldRow<&This::m_caption>("OptionButtonCaption", core::Topic::Appearance)
            .saying("Text beside the button.")
            .stored("option")
            .then<&This::s_ShowCaption>();
    // A form says what its button stands for, even when that is 0.
    static constexpr auto EnumEntryValue = fieldRow<&This::m_entryValue>("EnumEntryValue", core::Topic::Value)
                                               .saying("The value that this button stands for.")
                                               .alwaysStored(0);
    static constexpr auto OptionButtonValue =
        core::computedRow<[](This& button) { return button.OptionButtonValue(); }>("OptionButtonValue",
                                                                                   core::Topic::Appearance)
            .saying("Whether the button is on.")
            .written<[](This& button, bool value) { button.OptionButtonValue(value); }>();
    static constexpr auto OtherUser = R::OtherUserValue<&This::m_otherUser>;
};

struct ctx_ZorOptionButton::Tables {
    using R = Rows;
    using E = __ctx_ZorOptionButton;

    static constexpr auto kOwn = core::rows(&R::OptionButtonCaption, &R::EnumEntryValue);
    static constexpr auto kInitialOrder = joined(R::kStored, core::rows(&R::EnumValue), kOwn);
    static constexpr auto kProperties =
        joined(R::kStored, kOwn, R::kNotStored, core::rows(&R::EnumValue, &R::OptionButtonValue));

    static constexpr std::array kFaceEvents{
        ownEvent<&E::OptionClick>("OptionClick")
            .saying("The button was chosen, by whomever; after all that follows from it."),
        event<&E::OptionDblClick>("OptionDblClick", kFace, Notice::DblClick),
        event<&E::OptionGotFocus>("OptionGotFocus", kFace, Notice::GotFocus),
        event<&E::OptionKeyDown>("OptionKeyDown", kFace, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::OptionKeyPress>("OptionKeyPress", kFace, Notice::KeyPress, "KeyAscii"),
        event<&E::OptionKeyUp>("OptionKeyUp", kFace, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::OptionLostFocus>("OptionLostFocus", kFace, Notice::LostFocus),
        event<&E::OptionMouseDown>("OptionMouseDown", kFace, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::OptionMouseMove>("OptionMouseMove", kFace, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::OptionMouseUp>("OptionMouseUp", kFace, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::OptionOLECompleteDrag>("OptionOLECompleteDrag", kFace, Notice::OLECompleteDrag, "Effect"),
        declared<&E::OptionOLEDragDrop>("OptionOLEDragDrop"),
        declared<&E::OptionOLEDragOver>("OptionOLEDragOver"),
        event<&E::OptionOLEGiveFeedback>("OptionOLEGiveFeedback", kFace, Notice::OLEGiveFeedback, "Effect",
                                         "DefaultCursors"),
        declared<&E::OptionOLESetData>("OptionOLESetData"),
        declared<&E::OptionOLEStartDrag>("OptionOLEStartDrag"),
        event<&E::OptionValidate>("OptionValidate", kFace, Notice::Validate, "Cancel"),
    };

    static constexpr auto kEvents = joined(core::conditionRows<E>(), kFaceEvents, core::iconRows<E>(kState));

    static constexpr auto kWidgets =
        controls::ChoiceRows::widgets("opt_OptionButton", "The button with its caption.");
};

const core::ClassInfo& ctx_ZorOptionButton::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info = core::complete(
        {.name = "ctx_ZorOptionButton",
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
         .create = [](platform::Container& container) -> core::ControlPtr<> { return create(container); }});
    return info;
}

// --- Accessors

void ctx_ZorOptionButton::EnumEntryValue(std::int32_t value) { write(Rows::EnumEntryValue, value); }
void ctx_ZorOptionButton::EnumValue(std::int32_t value) { write(Rows::EnumValue, value); }
void ctx_ZorOptionButton::OptionButtonCaption(std::string_view value)
{
    write(Rows::OptionButtonCaption, std::string(value));
}
void ctx_ZorOptionButton::OtherUserValue(std::int32_t value) { write(Rows::OtherUser, value); }

} // namespace zor
