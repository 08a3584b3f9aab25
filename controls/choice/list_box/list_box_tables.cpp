// The list box as data: properties, messages, events, states, methods.

#include <zor/controls/choice/list_box/list_box_rows.h>
#include <zor/core/event_rows.h>

namespace zor {

using core::declared;
using core::event;
using core::joined;
using core::method;
using core::named;
using core::ownEvent;
using platform::Notice;

struct ctx_ZorListBox::Tables {
    using R = Rows;
    using E = __ctx_ZorListBox;
    using This = ctx_ZorListBox;

    static constexpr auto kProperties = joined(R::kStored, R::kNotStored, core::rows(&R::SelCount));

    static constexpr std::array kFaceEvents{
        ownEvent<&E::ListClick>("ListClick")
            .saying("The current entry or its mark changed, by whomever; not while input is locked."),
        event<&E::ListDblClick>("ListDblClick", lst_ListBox, Notice::DblClick),
        event<&E::ListGotFocus>("ListGotFocus", lst_ListBox, Notice::GotFocus),
        declared<&E::ListItemCheck>("ListItemCheck", "Item"),
        event<&E::ListKeyDown>("ListKeyDown", lst_ListBox, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::ListKeyPress>("ListKeyPress", lst_ListBox, Notice::KeyPress, "KeyAscii"),
        event<&E::ListKeyUp>("ListKeyUp", lst_ListBox, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::ListLostFocus>("ListLostFocus", lst_ListBox, Notice::LostFocus),
        event<&E::ListMouseDown>("ListMouseDown", lst_ListBox, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::ListMouseMove>("ListMouseMove", lst_ListBox, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::ListMouseUp>("ListMouseUp", lst_ListBox, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::ListOLECompleteDrag>("ListOLECompleteDrag", lst_ListBox, Notice::OLECompleteDrag, "Effect"),
        declared<&E::ListOLEDragDrop>("ListOLEDragDrop"),
        declared<&E::ListOLEDragOver>("ListOLEDragOver"),
        event<&E::ListOLEGiveFeedback>("ListOLEGiveFeedback", lst_ListBox, Notice::OLEGiveFeedback, "Effect",
                                       "DefaultCursors"),
        declared<&E::ListOLESetData>("ListOLESetData"),
        declared<&E::ListOLEStartDrag>("ListOLEStartDrag"),
        event<&E::ListScroll>("ListScroll", lst_ListBox, Notice::Scroll),
        event<&E::ListValidate>("ListValidate", lst_ListBox, Notice::Validate, "Cancel"),
    };

    static constexpr auto kEvents = joined(std::array{declared<&E::InvalidValueSetTrue>("InvalidValueSetTrue")},
                                           core::conditionRows<E>(), kFaceEvents, core::iconRows<E>(img_State));

    static constexpr auto kMethods = joined(
        controls::ChoiceRows::kMethods,
        std::array{
            method<&This::AddBitFieldEntry>("AddBitFieldEntry", "Identifier", "BitFieldEntryValue")
                .saying("Appends an entry, its text and the number of its bit, 0 to 30, without a mark until the "
                        "next value. A full list (32,767 entries) raises error 6."),
            method<&This::ClearBitFieldList>("ClearBitFieldList").saying("Removes all entries."),
            method<&This::RemoveBitFieldEntry>("RemoveBitFieldEntry", "BitFieldEntryValue")
                .saying("Removes the first entry of the bit, if there is one."),
            method<&This::GetBitFieldEntryText>("GetBitFieldEntryText", "BitFieldEntryValue")
                .saying("Text of the first entry of the bit; \"ERROR\" when there is none."),
            method<&This::GetBitFieldEntries>("GetBitFieldEntries")
                .saying("All texts in the order of the list; \"ERROR\" alone for an empty list."),
            method<&This::GetBitFieldEntryValue>("GetBitFieldEntryValue", "BitFieldText")
                .saying("Bit number of the first entry with exactly this text; \"ERROR\" when there is none."),
            method<&This::GetBitFieldEntryValueArray>("GetBitFieldEntryValueArray")
                .saying("All bit numbers in the order of the list; \"ERROR\" alone for an empty list."),
            method<&This::GetBitFieldEntryCount>("GetBitFieldEntryCount").saying("Number of entries."),
        });

    static constexpr auto kWidgets = controls::ChoiceRows::widgets({lst_ListBox, "lst_ListBox", "The list."});
};

const core::ClassInfo& ctx_ZorListBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info =
        core::complete({.name = "ctx_ZorListBox",
                        .meaning = "A list with a check mark for each named bit of the value. The program fills "
                                   "it with AddBitFieldEntry: a name and the number of a bit each.",
                        .properties = T::kProperties,
                        .initialOrder = Rows::kStored,
                        .messages = Rows::kMessages,
                        .events = T::kEvents,
                        .raised = {.dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                                   .outputValueChange = named(T::kEvents, "OutputValueChange"),
                                   .changed = named(T::kEvents, "ListClick")},
                        .methods = T::kMethods,
                        .states = Rows::kStates,
                        .effects = controls::ChoiceRows::kEffects,
                        .widgets = T::kWidgets,
                        .create = core::created<ctx_ZorListBox>});
    return info;
}

} // namespace zor
