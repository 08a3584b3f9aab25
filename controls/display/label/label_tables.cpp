// The label as data: properties, messages, events, states, methods.

#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/core/shared_methods.h>
#include <zor/core/shared_rows.h>

#include <array>

namespace zor {

using core::computedRow;
using core::event;
using core::fieldRow;
using core::ownEvent;
using core::PropertyRow;
using core::Refresh;
using core::SharedRows;
using platform::Notice;

// --- Properties

struct ctx_ZorLabel::Rows {
    using This = ctx_ZorLabel;

    static constexpr PropertyRow DeviceValue =
        fieldRow<&This::m_deviceValue>("DeviceValue")
            .stored("")
            .then<[](This& label) { label.m_label->setCaption(label.m_deviceValue); }>();
    static constexpr PropertyRow LabelCaption = fieldRow<&This::m_writtenCaption>("LabelCaption")
                                                    .stored("Label")
                                                    .reading<[](This& label) { return label.LabelCaption(); }>()
                                                    .then<[](This& label) {
                                                        label.showWrittenCaption();
                                                        label.s_PlaceIcon();
                                                    }>();
    static constexpr PropertyRow LabelFontItalic =
        computedRow<[](This& label) { return label.LabelFontItalic(); }>("LabelFontItalic")
            .written<[](This& label, bool italic) { label.LabelFontItalic(italic); }>()
            .stored(false);
    static constexpr PropertyRow LabelFontBold =
        computedRow<[](This& label) { return label.LabelFontBold(); }>("LabelFontBold")
            .written<[](This& label, bool bold) { label.LabelFontBold(bold); }>();
};

// --- The class

struct ctx_ZorLabel::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorLabel;

    // clang-format off
    static constexpr std::array kProperties{
        &S::CFail, &S::WaitingForData, &R::DeviceValue, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataNotAvailable,
        &S::MsgDeviceTagNotFound, &S::MsgDefault, &S::IconEnable, &S::DeviceType, &S::DeviceVersion,
        &S::RegisterType, &S::EnableControl, &R::LabelCaption, &R::LabelFontItalic,
        // not stored
        &S::MessageHeader, &R::LabelFontBold};

    static constexpr std::array kInitialOrder{
        &S::CFail, &R::DeviceValue, &S::WaitingForData, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataNotAvailable,
        &S::MsgDeviceTagNotFound, &S::MsgDefault, &S::IconEnable, &S::DeviceType, &S::DeviceVersion,
        &S::RegisterType, &S::EnableControl, &R::LabelCaption, &R::LabelFontItalic};
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

    static constexpr std::array kEvents{
        ownEvent<&E::DeviceVerNotSupportedSetTrue>("DeviceVerNotSupportedSetTrue"),
        ownEvent<&E::DeviceTypeNotSupportedSetTrue>("DeviceTypeNotSupportedSetTrue"),
        event<&E::labelChange>("labelChange", kLabel, Notice::Change),
        event<&E::labelClick>("labelClick", kLabel, Notice::Click),
        event<&E::labelDblClick>("labelDblClick", kLabel, Notice::DblClick),
        ownEvent<&E::labelLinkClose>("labelLinkClose"),
        ownEvent<&E::labelLinkError>("labelLinkError", "LinkErr"),
        event<&E::labelLinkNotify>("labelLinkNotify", kLabel, Notice::LinkNotify),
        event<&E::labelLinkOpen>("labelLinkOpen", kLabel, Notice::LinkOpen, "Cancel"),
        event<&E::labelMouseDown>("labelMouseDown", kLabel, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::labelMouseMove>("labelMouseMove", kLabel, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::labelMouseUp>("labelMouseUp", kLabel, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::labelOLECompleteDrag>("labelOLECompleteDrag", kLabel, Notice::OLECompleteDrag, "Effect"),
        ownEvent<&E::labelOLEDragDrop>("labelOLEDragDrop", "Data", "Effect", "Button", "Shift", "X", "Y"),
        ownEvent<&E::labelOLEDragOver>("labelOLEDragOver", "Data", "Effect", "Button", "Shift", "X", "Y", "State"),
        event<&E::labelOLEGiveFeedback>("labelOLEGiveFeedback", kLabel, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        ownEvent<&E::labelOLESetData>("labelOLESetData", "Data", "DataFormat"),
        ownEvent<&E::labelOLEStartDrag>("labelOLEStartDrag", "Data", "AllowedEffects"),
        event<&E::imgClick>("imgClick", kState, Notice::Click),
        event<&E::imgDblClick>("imgDblClick", kState, Notice::DblClick),
    };

    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound, S::NoData};

    static constexpr std::array kMethods{core::kGetMaxMessage, core::kGetMessageID, core::kSetMessage,
                                         core::kChangeBackColor};

    static constexpr std::array kWidgets{core::WidgetRow{platform::kSurfaceWidget, "Surface"},
                                         core::WidgetRow{kLabel, "lbl_Label"},
                                         core::WidgetRow{kState, "img_State"}};
};

const core::ClassInfo& ctx_ZorLabel::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info{
        .name = "ctx_ZorLabel",
        .properties = T::kProperties,
        .initialOrder = T::kInitialOrder,
        .messages = T::kMessages,
        .events = T::kEvents,
        .methods = T::kMethods,
        .states = T::kStates,
        .effects = T::kEffects,
        .widgets = T::kWidgets,
        .create = [](platform::Container& container) -> core::ControlPtr<> { return create(container); }};
    return info;
}

// --- Accessors

void ctx_ZorLabel::DeviceValue(std::string_view value) { write(Rows::DeviceValue, std::string(value)); }
void ctx_ZorLabel::LabelCaption(std::string_view value) { write(Rows::LabelCaption, std::string(value)); }

} // namespace zor
