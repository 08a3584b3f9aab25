// The label as data: properties, messages, events, states, methods.

#include <zor/controls/display/label/label_rows.h>
#include <zor/core/event_rows.h>
#include <zor/core/joined.h>
#include <zor/core/shared_methods.h>
#include <zor/core/shared_rows.h>

#include <array>

namespace zor {

using core::declared;
using core::event;
using core::Refresh;
using core::SharedRows;
using platform::Notice;

// --- The class

struct ctx_ZorLabel::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorLabel;

    // clang-format off
    static constexpr auto kProperties = core::rows(
        &S::CFail, &S::WaitingForData, &R::DeviceValue, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataNotAvailable,
        &S::MsgDeviceTagNotFound, &S::MsgDefault, &S::IconEnable, &S::DeviceType, &S::DeviceVersion,
        &S::RegisterType, &S::EnableControl, &R::LabelCaption, &R::LabelFontItalic,
        // not stored
        &S::MessageHeader, &R::LabelFontBold);

    static constexpr auto kInitialOrder = core::rows(
        &S::CFail, &R::DeviceValue, &S::WaitingForData, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataNotAvailable,
        &S::MsgDeviceTagNotFound, &S::MsgDefault, &S::IconEnable, &S::DeviceType, &S::DeviceVersion,
        &S::RegisterType, &S::EnableControl, &R::LabelCaption, &R::LabelFontItalic);
    // clang-format on

    // Nothing is edited here, so the register bank changes nothing, and a failure disables nothing.
    static constexpr std::array kEffects{
        core::EffectRow{&S::CFail, {Refresh::Status, Refresh::Colours}},
        core::EffectRow{&S::RegisterType, {}},
    };

    static constexpr std::array kMessages{
        core::MessageRow{"MSG_CFAIL", &S::MsgCfail},
        core::MessageRow{"MSG_DEVICETAGNOTFOUND", &S::MsgDeviceTagNotFound},
        core::MessageRow{"MSG_DATANOTAVAILABLE", &S::MsgDataNotAvailable},
        core::MessageRow{"MSG_DEFAULT", &S::MsgDefault},
    };

    static constexpr std::array kTextEvents{
        event<&E::labelChange>("labelChange", lbl_Label, Notice::Change),
        event<&E::labelClick>("labelClick", lbl_Label, Notice::Click),
        event<&E::labelDblClick>("labelDblClick", lbl_Label, Notice::DblClick),
        declared<&E::labelLinkClose>("labelLinkClose"),
        declared<&E::labelLinkError>("labelLinkError", "LinkErr"),
        event<&E::labelLinkNotify>("labelLinkNotify", lbl_Label, Notice::LinkNotify),
        event<&E::labelLinkOpen>("labelLinkOpen", lbl_Label, Notice::LinkOpen, "Cancel"),
        event<&E::labelMouseDown>("labelMouseDown", lbl_Label, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::labelMouseMove>("labelMouseMove", lbl_Label, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::labelMouseUp>("labelMouseUp", lbl_Label, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::labelOLECompleteDrag>("labelOLECompleteDrag", lbl_Label, Notice::OLECompleteDrag, "Effect"),
        declared<&E::labelOLEDragDrop>("labelOLEDragDrop", "Data", "Effect", "Button", "Shift", "X", "Y"),
        declared<&E::labelOLEDragOver>("labelOLEDragOver", "Data", "Effect", "Button", "Shift", "X", "Y", "State"),
        event<&E::labelOLEGiveFeedback>("labelOLEGiveFeedback", lbl_Label, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        declared<&E::labelOLESetData>("labelOLESetData", "Data", "DataFormat"),
        declared<&E::labelOLEStartDrag>("labelOLEStartDrag", "Data", "AllowedEffects"),
    };
    static constexpr auto kEvents =
        core::joined(core::supportRows<E>(), kTextEvents, core::iconRows<E>(img_State));

    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound, S::NoData};

    static constexpr std::array kMethods{core::kGetMaxMessage, core::kGetMessageID, core::kSetMessage,
                                         core::kChangeBackColor};

    static constexpr std::array kWidgets{core::kSurfaceRow, core::WidgetRow{lbl_Label, "lbl_Label", "The text."},
                                         core::iconRow(img_State)};
};

const core::ClassInfo& ctx_ZorLabel::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info = core::complete(
        {.name = "ctx_ZorLabel",
         .meaning = "Shows a value that nobody edits as it comes, as a text with the state icon of every control.",
         .properties = T::kProperties,
         .initialOrder = T::kInitialOrder,
         .messages = T::kMessages,
         .events = T::kEvents,
         .methods = T::kMethods,
         .states = T::kStates,
         .effects = T::kEffects,
         .widgets = T::kWidgets,
         .create = core::created<ctx_ZorLabel>});
    return info;
}

} // namespace zor
