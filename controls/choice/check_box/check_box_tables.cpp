// The check box as data: properties, messages, events, states, methods.

#include <zor/controls/choice/check_box/ctx_ZorCheckBox.h>

namespace zor {

using controls::joined;
using controls::kFace;
using controls::kState;
using core::event;
using core::fieldRow;
using core::ownEvent;
using core::PropertyRow;
using platform::Notice;

struct ctx_ZorCheckBox::Rows
    : controls::CaptionChoiceRows<&ctx_ZorCheckBox::m_otherUser, &ctx_ZorCheckBox::m_loaded> {
    using This = ctx_ZorCheckBox;

    // A new box starts with another caption than a form means that says nothing.
    static constexpr PropertyRow CheckBoxCaption = fieldRow<&This::m_caption>("CheckBoxCaption")
                                                       .stored("check")
                                                       .initially("Check1")
                                                       .then<&This::s_ShowCaption>();
    static constexpr PropertyRow BitFieldEntryIndex = fieldRow<&This::m_bit>("BitFieldEntryIndex").stored(0);
    static constexpr PropertyRow CheckBoxValue =
        core::computedRow<[](This& box) { return box.CheckBoxValue(); }>("CheckBoxValue")
            .with(core::Access::Derived);
    static constexpr PropertyRow OtherUser = R::OtherUserValue<&This::m_otherUser>;
};

struct ctx_ZorCheckBox::Tables {
    using R = Rows;
    using E = __ctx_ZorCheckBox;

    static constexpr auto kInitialOrder =
        joined(R::kStored, std::array{&R::CheckBoxCaption, &R::BitFieldEntryIndex});
    static constexpr auto kProperties = joined(kInitialOrder, R::kNotStored, std::array{&R::CheckBoxValue});

    static constexpr std::array kEvents{
        ownEvent<&E::DataModifiedSetTrue>("DataModifiedSetTrue"),
        ownEvent<&E::DataModifiedReset>("DataModifiedReset"),
        ownEvent<&E::OutputValueChange>("OutputValueChange"),
        ownEvent<&E::DeviceVerNotSupportedSetTrue>("DeviceVerNotSupportedSetTrue"),
        ownEvent<&E::DeviceTypeNotSupportedSetTrue>("DeviceTypeNotSupportedSetTrue"),
        ownEvent<&E::DataChangedSetTrue>("DataChangedSetTrue"),
        event<&E::CheckChange>("CheckChange", kFace, Notice::Change),
        ownEvent<&E::CheckClick>("CheckClick"),
        event<&E::CheckDblClick>("CheckDblClick", kFace, Notice::DblClick),
        event<&E::CheckGotFocus>("CheckGotFocus", kFace, Notice::GotFocus),
        event<&E::CheckKeyDown>("CheckKeyDown", kFace, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::CheckKeyPress>("CheckKeyPress", kFace, Notice::KeyPress, "KeyAscii"),
        event<&E::CheckKeyUp>("CheckKeyUp", kFace, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::CheckLostFocus>("CheckLostFocus", kFace, Notice::LostFocus),
        event<&E::CheckMouseDown>("CheckMouseDown", kFace, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::CheckMouseMove>("CheckMouseMove", kFace, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::CheckMouseUp>("CheckMouseUp", kFace, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::CheckOLECompleteDrag>("CheckOLECompleteDrag", kFace, Notice::OLECompleteDrag, "Effect"),
        ownEvent<&E::CheckOLEDragDrop>("CheckOLEDragDrop"),
        ownEvent<&E::CheckOLEDragOver>("CheckOLEDragOver"),
        event<&E::CheckOLEGiveFeedback>("CheckOLEGiveFeedback", kFace, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        ownEvent<&E::CheckOLESetData>("CheckOLESetData"),
        ownEvent<&E::CheckOLEStartDrag>("CheckOLEStartDrag"),
        ownEvent<&E::CheckValidate>("CheckValidate"),
        event<&E::imgClick>("imgClick", kState, Notice::Click),
        event<&E::imgDblClick>("imgDblClick", kState, Notice::DblClick),
    };

    static constexpr auto kWidgets = controls::ChoiceRows::widgets("chk_CheckBox");
};

const core::ClassInfo& ctx_ZorCheckBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info{
        .name = "ctx_ZorCheckBox",
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

void ctx_ZorCheckBox::BitFieldEntryIndex(std::int16_t value) { write(Rows::BitFieldEntryIndex, value); }
void ctx_ZorCheckBox::CheckBoxCaption(std::string_view value) { write(Rows::CheckBoxCaption, std::string(value)); }
void ctx_ZorCheckBox::CheckBoxValue(bool value) { put(Rows::CheckBoxValue, value); }
void ctx_ZorCheckBox::OtherUserValue(bool value) { write(Rows::OtherUser, value); }

} // namespace zor
