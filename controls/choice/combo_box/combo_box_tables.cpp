// The combo box as data: properties, messages, events, states, methods.

#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>

namespace zor {

using controls::joined;
using controls::kFace;
using controls::kState;
using core::event;
using core::method;
using core::ownEvent;
using core::PropertyRow;
using platform::Notice;

struct ctx_ZorComboBox::Rows
    : controls::EntryChoiceRows<&ctx_ZorComboBox::m_invalid, &ctx_ZorComboBox::m_otherUser,
                                &ctx_ZorComboBox::m_reference> {
    static constexpr PropertyRow SelectedText =
        core::computedRow<[](ctx_ZorComboBox& box) { return box.SelectedText(); }>("SelectedText");
    static constexpr PropertyRow OtherUser = R::OtherUserValue<&ctx_ZorComboBox::m_otherUser>;
};

struct ctx_ZorComboBox::Tables {
    using R = Rows;
    using E = __ctx_ZorComboBox;
    using This = ctx_ZorComboBox;

    static constexpr auto kProperties = joined(R::kStored, R::kNotStored, std::array{&R::SelectedText});

    static constexpr std::array kEvents{
        ownEvent<&E::InvalidValueSetTrue>("InvalidValueSetTrue"),
        ownEvent<&E::DataModifiedSetTrue>("DataModifiedSetTrue"),
        ownEvent<&E::OutputValueChange>("OutputValueChange"),
        ownEvent<&E::DeviceVerNotSupportedSetTrue>("DeviceVerNotSupportedSetTrue"),
        ownEvent<&E::DeviceTypeNotSupportedSetTrue>("DeviceTypeNotSupportedSetTrue"),
        ownEvent<&E::DataChangedSetTrue>("DataChangedSetTrue"),
        event<&E::ComboChange>("ComboChange", kFace, Notice::Change),
        ownEvent<&E::ComboClick>("ComboClick"),
        event<&E::ComboDblClick>("ComboDblClick", kFace, Notice::DblClick),
        event<&E::ComboDropDown>("ComboDropDown", kFace, Notice::DropDown),
        event<&E::ComboGotFocus>("ComboGotFocus", kFace, Notice::GotFocus),
        event<&E::ComboKeyDown>("ComboKeyDown", kFace, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::ComboKeyPress>("ComboKeyPress", kFace, Notice::KeyPress, "KeyAscii"),
        event<&E::ComboKeyUp>("ComboKeyUp", kFace, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::ComboLostFocus>("ComboLostFocus", kFace, Notice::LostFocus),
        event<&E::ComboOLECompleteDrag>("ComboOLECompleteDrag", kFace, Notice::OLECompleteDrag, "Effect"),
        ownEvent<&E::ComboOLEDragDrop>("ComboOLEDragDrop"),
        ownEvent<&E::ComboOLEDragOver>("ComboOLEDragOver"),
        event<&E::ComboOLEGiveFeedback>("ComboOLEGiveFeedback", kFace, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        ownEvent<&E::ComboOLESetData>("ComboOLESetData"),
        ownEvent<&E::ComboOLEStartDrag>("ComboOLEStartDrag"),
        event<&E::ComboScroll>("ComboScroll", kFace, Notice::Scroll),
        event<&E::ComboValidate>("ComboValidate", kFace, Notice::Validate, "Cancel"),
        event<&E::imgClick>("imgClick", kState, Notice::Click),
        event<&E::imgDblClick>("imgDblClick", kState, Notice::DblClick),
    };

    static constexpr auto kMethods =
        joined(controls::ChoiceRows::kMethods,
               std::array{
                   method<&This::AddEnumEntry>("AddEnumEntry", "Identifier", "EnumEntryValue"),
                   method<&This::ClearEnumList>("ClearEnumList"),
                   method<&This::RemoveEnumEntry>("RemoveEnumEntry", "EnumEntryValue"),
                   method<&This::GetEnumEntryText>("GetEnumEntryText", "EnumEntryValue"),
                   method<&This::GetEnumEntries>("GetEnumEntries"),
                   method<&This::GetEnumEntryValue>("GetEnumEntryValue", "EnumText"),
                   method<&This::GetEnumEntryValueArray>("GetEnumEntryValueArray"),
                   method<&This::GetEnumEntryCount>("GetEnumEntryCount"),
               });

    static constexpr auto kWidgets = controls::ChoiceRows::widgets("cbo_ComboBox");
};

const core::ClassInfo& ctx_ZorComboBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info{
        .name = "ctx_ZorComboBox",
        .properties = T::kProperties,
        .initialOrder = Rows::kStored,
        .messages = Rows::kMessages,
        .events = T::kEvents,
        .methods = T::kMethods,
        .states = Rows::kStates,
        .effects = controls::ChoiceRows::kEffects,
        .widgets = T::kWidgets,
        .create = [](platform::Container& container) -> core::ControlPtr<> { return create(container); }};
    return info;
}

// --- Accessors

void ctx_ZorComboBox::InvalidValue(bool value) { write(Rows::InvalidValue, value); }
void ctx_ZorComboBox::MsgInvalidValue(std::string_view value) { write(Rows::MsgInvalidValue, std::string(value)); }
void ctx_ZorComboBox::OtherUserValue(std::int16_t value) { write(Rows::OtherUser, value); }

} // namespace zor
