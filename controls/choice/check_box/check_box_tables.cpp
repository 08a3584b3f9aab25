// The check box as data: properties, messages, events, states, methods.

#include <zor/controls/choice/check_box/check_box_rows.h>
#include <zor/core/event_rows.h>

namespace zor {

using core::declared;
using core::event;
using core::joined;
using core::named;
using core::ownEvent;
using platform::Notice;

struct ctx_ZorCheckBox::Tables {
    using R = Rows;
    using E = __ctx_ZorCheckBox;

    static constexpr auto kInitialOrder =
        joined(R::kStored, core::rows(&R::CheckBoxCaption, &R::BitFieldEntryIndex));
    static constexpr auto kProperties = joined(kInitialOrder, R::kNotStored, core::rows(&R::CheckBoxValue));

    static constexpr std::array kFaceEvents{
        event<&E::CheckChange>("CheckChange", chk_CheckBox, Notice::Change)
            .saying("It reported a change apart from a click: where a platform's box does, which neither "
                    "platform's does."),
        ownEvent<&E::CheckClick>("CheckClick")
            .saying("The box was ticked or unticked, by whomever; not while input is locked."),
        event<&E::CheckDblClick>("CheckDblClick", chk_CheckBox, Notice::DblClick),
        event<&E::CheckGotFocus>("CheckGotFocus", chk_CheckBox, Notice::GotFocus),
        event<&E::CheckKeyDown>("CheckKeyDown", chk_CheckBox, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::CheckKeyPress>("CheckKeyPress", chk_CheckBox, Notice::KeyPress, "KeyAscii"),
        event<&E::CheckKeyUp>("CheckKeyUp", chk_CheckBox, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::CheckLostFocus>("CheckLostFocus", chk_CheckBox, Notice::LostFocus),
        event<&E::CheckMouseDown>("CheckMouseDown", chk_CheckBox, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::CheckMouseMove>("CheckMouseMove", chk_CheckBox, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::CheckMouseUp>("CheckMouseUp", chk_CheckBox, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::CheckOLECompleteDrag>("CheckOLECompleteDrag", chk_CheckBox, Notice::OLECompleteDrag, "Effect"),
        declared<&E::CheckOLEDragDrop>("CheckOLEDragDrop"),
        declared<&E::CheckOLEDragOver>("CheckOLEDragOver"),
        event<&E::CheckOLEGiveFeedback>("CheckOLEGiveFeedback", chk_CheckBox, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        declared<&E::CheckOLESetData>("CheckOLESetData"),
        declared<&E::CheckOLEStartDrag>("CheckOLEStartDrag"),
        declared<&E::CheckValidate>("CheckValidate"),
    };

    static constexpr auto kEvents =
        joined(std::array{ownEvent<&E::DataModifiedSetTrue>("DataModifiedSetTrue").saying(core::kModified),
                          ownEvent<&E::DataModifiedReset>("DataModifiedReset")
                              .saying("The box was changed and is again as the device has it."),
                          ownEvent<&E::OutputValueChange>("OutputValueChange").saying(core::kHandedOver)},
               core::declaredRows<E>(), kFaceEvents, core::iconRows<E>(img_State));

    static constexpr auto kWidgets =
        controls::ChoiceRows::widgets({chk_CheckBox, "chk_CheckBox", "The box with its caption."});
};

const core::ClassInfo& ctx_ZorCheckBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info = core::complete(
        {.name = "ctx_ZorCheckBox",
         .meaning = "Shows and sets one bit of the value, the one whose number is BitFieldEntryIndex.",
         .properties = T::kProperties,
         .initialOrder = T::kInitialOrder,
         .messages = Rows::kMessages,
         .events = T::kEvents,
         .raised = {.dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                    .dataModifiedReset = named(T::kEvents, "DataModifiedReset"),
                    .outputValueChange = named(T::kEvents, "OutputValueChange"),
                    .changed = named(T::kEvents, "CheckClick")},
         .methods = controls::ChoiceRows::kMethods,
         .states = Rows::kStates,
         .effects = controls::ChoiceRows::kEffects,
         .widgets = T::kWidgets,
         .create = core::created<ctx_ZorCheckBox>});
    return info;
}

} // namespace zor
