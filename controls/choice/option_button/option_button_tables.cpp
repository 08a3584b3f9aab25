// The option button as data: properties, messages, events, states, methods.

#include <zor/controls/choice/option_button/ctx_ZorOptionButton.h>

namespace zor {

using controls::joined;
using controls::kFace;
using controls::kState;
using core::event;
using core::fieldRow;
using core::ownEvent;
using core::PropertyRow;
using platform::Notice;

struct ctx_ZorOptionButton::Rows
    : controls::CaptionChoiceRows<&ctx_ZorOptionButton::m_otherUser, &ctx_ZorOptionButton::m_reference> {
    using This = ctx_ZorOptionButton;

    static constexpr PropertyRow EnumValue =
        fieldRow<&This::m_enumValue>("EnumValue").initially(0).then<&This::s_ApplyEnumValue>();
    static constexpr PropertyRow OptionButtonCaption =
        fieldRow<&This::m_caption>("OptionButtonCaption").stored("option").then<&This::s_ShowCaption>();
    // A form says what its button stands for, even when that is 0.
    static constexpr PropertyRow EnumEntryValue = fieldRow<&This::m_entryValue>("EnumEntryValue").alwaysStored(0);
    static constexpr PropertyRow OptionButtonValue =
        core::computedRow<[](This& button) { return button.OptionButtonValue(); }>("OptionButtonValue")
            .written<[](This& button, bool value) { button.OptionButtonValue(value); }>();
    static constexpr PropertyRow OtherUser = R::OtherUserValue<&This::m_otherUser>;
};

struct ctx_ZorOptionButton::Tables {
    using R = Rows;
    using E = __ctx_ZorOptionButton;

    static constexpr std::array kOwn{&R::OptionButtonCaption, &R::EnumEntryValue};
    static constexpr auto kInitialOrder = joined(R::kStored, std::array{&R::EnumValue}, kOwn);
    static constexpr auto kProperties =
        joined(R::kStored, kOwn, R::kNotStored, std::array{&R::EnumValue, &R::OptionButtonValue});

    static constexpr std::array kEvents{
        ownEvent<&E::DataModifiedSetTrue>("DataModifiedSetTrue"),
        ownEvent<&E::OutputValueChange>("OutputValueChange"),
        ownEvent<&E::DeviceVerNotSupportedSetTrue>("DeviceVerNotSupportedSetTrue"),
        ownEvent<&E::DeviceTypeNotSupportedSetTrue>("DeviceTypeNotSupportedSetTrue"),
        ownEvent<&E::DataChangedSetTrue>("DataChangedSetTrue"),
        ownEvent<&E::OptionClick>("OptionClick"),
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
        ownEvent<&E::OptionOLEDragDrop>("OptionOLEDragDrop"),
        ownEvent<&E::OptionOLEDragOver>("OptionOLEDragOver"),
        event<&E::OptionOLEGiveFeedback>("OptionOLEGiveFeedback", kFace, Notice::OLEGiveFeedback, "Effect",
                                         "DefaultCursors"),
        ownEvent<&E::OptionOLESetData>("OptionOLESetData"),
        ownEvent<&E::OptionOLEStartDrag>("OptionOLEStartDrag"),
        event<&E::OptionValidate>("OptionValidate", kFace, Notice::Validate, "Cancel"),
        event<&E::imgClick>("imgClick", kState, Notice::Click),
        event<&E::imgDblClick>("imgDblClick", kState, Notice::DblClick),
    };

    static constexpr auto kWidgets = controls::ChoiceRows::widgets("opt_OptionButton");
};

const core::ClassInfo& ctx_ZorOptionButton::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info{
        .name = "ctx_ZorOptionButton",
        .properties = T::kProperties,
        .initialOrder = T::kInitialOrder,
        .messages = Rows::kMessages,
        .events = T::kEvents,
        .methods = controls::ChoiceRows::kMethods,
        .states = Rows::kStates,
        .effects = controls::ChoiceRows::kEffects,
        .widgets = T::kWidgets,
        .create = [](platform::Container& container) -> core::ControlPtr<> { return create(container); }};
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
