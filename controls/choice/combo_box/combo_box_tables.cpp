// The combo box as data: properties, messages, events, states, methods.

#include <zor/controls/choice/combo_box/combo_box_rows.h>
#include <zor/core/event_rows.h>

namespace zor {

using core::declared;
using core::event;
using core::joined;
using core::method;
using core::named;
using core::ownEvent;
using platform::Notice;

struct ctx_ZorComboBox::Tables {
    using R = Rows;
    using E = __ctx_ZorComboBox;
    using This = ctx_ZorComboBox;

    static constexpr auto kProperties = joined(R::kStored, R::kNotStored, core::rows(&R::SelectedText));

    static constexpr std::array kFaceEvents{
        event<&E::ComboChange>("ComboChange", cbo_ComboBox, Notice::Change)
            .saying("Its typed text changed: where the platform's list takes one, which neither platform's does."),
        ownEvent<&E::ComboClick>("ComboClick").saying("An entry was chosen, by whomever; not by being added."),
        event<&E::ComboDblClick>("ComboDblClick", cbo_ComboBox, Notice::DblClick),
        event<&E::ComboDropDown>("ComboDropDown", cbo_ComboBox, Notice::DropDown),
        event<&E::ComboGotFocus>("ComboGotFocus", cbo_ComboBox, Notice::GotFocus),
        event<&E::ComboKeyDown>("ComboKeyDown", cbo_ComboBox, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::ComboKeyPress>("ComboKeyPress", cbo_ComboBox, Notice::KeyPress, "KeyAscii"),
        event<&E::ComboKeyUp>("ComboKeyUp", cbo_ComboBox, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::ComboLostFocus>("ComboLostFocus", cbo_ComboBox, Notice::LostFocus),
        event<&E::ComboOLECompleteDrag>("ComboOLECompleteDrag", cbo_ComboBox, Notice::OLECompleteDrag, "Effect"),
        declared<&E::ComboOLEDragDrop>("ComboOLEDragDrop"),
        declared<&E::ComboOLEDragOver>("ComboOLEDragOver"),
        event<&E::ComboOLEGiveFeedback>("ComboOLEGiveFeedback", cbo_ComboBox, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        declared<&E::ComboOLESetData>("ComboOLESetData"),
        declared<&E::ComboOLEStartDrag>("ComboOLEStartDrag"),
        event<&E::ComboScroll>("ComboScroll", cbo_ComboBox, Notice::Scroll),
        event<&E::ComboValidate>("ComboValidate", cbo_ComboBox, Notice::Validate, "Cancel"),
    };

    static constexpr auto kEvents =
        joined(std::array{ownEvent<&E::InvalidValueSetTrue>("InvalidValueSetTrue")
                              .saying("A value came that no entry of a filled list stands for.")},
               core::conditionRows<E>(), kFaceEvents, core::iconRows<E>(img_State));

    static constexpr auto kMethods =
        joined(controls::ChoiceRows::kMethods,
               std::array{
                   method<&This::AddEnumEntry>("AddEnumEntry", "Identifier", "EnumEntryValue")
                       .saying("Appends an entry, its text and the value it stands for, and selects it without an "
                               "event: it is shown and OutputValue has its value until the next value comes, so a "
                               "list is filled before. A full list (32,767 entries) raises error 6."),
                   method<&This::ClearEnumList>("ClearEnumList").saying("Removes all entries."),
                   method<&This::RemoveEnumEntry>("RemoveEnumEntry", "EnumEntryValue")
                       .saying("Removes the first entry of the value, if there is one."),
                   method<&This::GetEnumEntryText>("GetEnumEntryText", "EnumEntryValue")
                       .saying("Text of the first entry of the value; \"ERROR\" when there is none."),
                   method<&This::GetEnumEntries>("GetEnumEntries")
                       .saying("All texts in the order of the list; \"ERROR\" alone for an empty list."),
                   method<&This::GetEnumEntryValue>("GetEnumEntryValue", "EnumText")
                       .saying("Value of the first entry with exactly this text; \"ERROR\" when there is none."),
                   method<&This::GetEnumEntryValueArray>("GetEnumEntryValueArray")
                       .saying("All values in the order of the list; \"ERROR\" alone for an empty list."),
                   method<&This::GetEnumEntryCount>("GetEnumEntryCount").saying("Number of entries."),
               });

    static constexpr auto kWidgets =
        controls::ChoiceRows::widgets({cbo_ComboBox, "cbo_ComboBox", "The drop-down list."});
};

const core::ClassInfo& ctx_ZorComboBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info =
        core::complete({.name = "ctx_ZorComboBox",
                        .meaning = "A drop-down list of the values that a parameter may have. The program fills "
                                   "it with AddEnumEntry: a name and a value each.",
                        .properties = T::kProperties,
                        .initialOrder = Rows::kStored,
                        .messages = Rows::kMessages,
                        .events = T::kEvents,
                        .raised = {.invalid = named(T::kEvents, "InvalidValueSetTrue"),
                                   .dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                                   .outputValueChange = named(T::kEvents, "OutputValueChange"),
                                   .changed = named(T::kEvents, "ComboClick")},
                        .methods = T::kMethods,
                        .states = Rows::kStates,
                        .effects = controls::ChoiceRows::kEffects,
                        .widgets = T::kWidgets,
                        .create = core::created<ctx_ZorComboBox>});
    return info;
}

} // namespace zor
