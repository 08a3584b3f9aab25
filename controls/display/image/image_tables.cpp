// The status image as data: properties, messages, events, states, methods.

#include <zor/controls/display/image/image_rows.h>
#include <zor/core/event_rows.h>
#include <zor/core/joined.h>
#include <zor/core/shared_methods.h>

#include <array>

namespace zor {

using core::declared;
using core::event;
using core::method;
using core::Refresh;
using core::SharedRows;
using platform::Notice;

// --- States

struct ctx_ZorImage::States {
    static const ctx_ZorImage& self(const core::Control& c) { return static_cast<const ctx_ZorImage&>(c); }

    static constexpr core::StatusRow Waiting{
        [](const core::Control& c) { return c.WaitingForData(); },
        [](const core::Control&, std::string& text) { text += "Waiting for data"; }, frm_Container::Waiting};

    /// No bit is set, shown by the pictures of one pair.
    template <bool Aux>
    static constexpr core::StatusRow Ok{
        [](const core::Control& c) { return self(c).m_deviceValue == 0 && self(c).m_useAuxIcon == Aux; },
        [](const core::Control& c, std::string& text) { text += self(c).MsgStatusOK(); },
        Aux ? frm_Container::StatusOkAlt : frm_Container::StatusOk,
        [](core::Control& c, std::string& text) {
            self(c).appendIntroduction(text);
            text.append("\r\n").append(self(c).MsgStatusOK());
        },
        platform::BoxIcon::Information};

    /// A bit is set.
    template <bool Aux>
    static constexpr core::StatusRow NotOk{
        [](const core::Control& c) { return self(c).m_deviceValue != 0 && self(c).m_useAuxIcon == Aux; },
        [](const core::Control& c, std::string& text) { text += self(c).notOkInWords(); },
        Aux ? frm_Container::StatusNotOkAlt : frm_Container::StatusNotOk,
        [](core::Control& c, std::string& text) {
            static_cast<ctx_ZorImage&>(c).composeConditions();
            text.append(self(c).MsgStatusNotOK()).append("\r\n");
        },
        platform::BoxIcon::Exclamation};
};

// --- The class

struct ctx_ZorImage::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorImage;

    // clang-format off
    static constexpr auto kProperties = core::rows(
        &S::CFail, &S::WaitingForData, &R::DeviceValue, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataNotAvailable,
        &S::MsgDeviceTagNotFound, &R::MsgDefault, &R::StatusText, &R::MsgStatusNotOK, &R::MsgStatusOK,
        &S::DeviceType, &S::DeviceVersion, &S::RegisterType, &S::EnableControl, &R::ReadOnly, &R::UseAuxIcon,
        // not stored
        &R::MessageHeader, &R::MsgUndefined, &R::MsgBit);

    static constexpr auto kInitialOrder = core::rows(
        &S::CFail, &R::DeviceValue, &S::WaitingForData, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataNotAvailable,
        &S::MsgDeviceTagNotFound, &R::MsgDefault, &R::MsgStatusNotOK, &R::MsgStatusOK, &S::DeviceType,
        &S::DeviceVersion, &S::RegisterType, &S::EnableControl, &R::StatusText, &R::ReadOnly, &R::UseAuxIcon);
    // clang-format on

    // Waiting has a picture of its own; there are no colours, and a failure disables nothing.
    static constexpr std::array kEffects{
        core::EffectRow{&S::CFail, {Refresh::Status}},
        core::EffectRow{&S::WaitingForData, {Refresh::Status, Refresh::Enabled}},
        core::EffectRow{&S::RegisterType, {}},
    };

    static constexpr std::array kMessages{
        core::MessageRow{"MSG_CFAIL", &S::MsgCfail},
        core::MessageRow{"MSG_STATUSNOTOK", &R::MsgStatusNotOK},
        core::MessageRow{"MSG_DATANOTAVAILABLE", &S::MsgDataNotAvailable},
        core::MessageRow{"MSG_DEFAULT", &R::MsgDefault},
        core::MessageRow{"MSG_DEVICETAGNOTFOUND", &S::MsgDeviceTagNotFound},
    };

    static constexpr std::array kPictureEvents{
        event<&E::imageClick>("imageClick", img_State, Notice::Click),
        event<&E::imageDblClick>("imageDblClick", img_State, Notice::DblClick),
        event<&E::imageMouseDown>("imageMouseDown", img_State, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::imageMouseMove>("imageMouseMove", img_State, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::imageMouseUp>("imageMouseUp", img_State, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::imageOLECompleteDrag>("imageOLECompleteDrag", img_State, Notice::OLECompleteDrag, "Effect"),
        declared<&E::imageOLEDragDrop>("imageOLEDragDrop", "Data", "Effect", "Button", "Shift", "X", "Y"),
        declared<&E::imageOLEDragOver>("imageOLEDragOver", "Data", "Effect", "Button", "Shift", "X", "Y", "State"),
        event<&E::imageOLEGiveFeedback>("imageOLEGiveFeedback", img_State, Notice::OLEGiveFeedback, "Effect",
                                        "DefaultCursors"),
        declared<&E::imageOLESetData>("imageOLESetData", "Data", "DataFormat"),
        declared<&E::imageOLEStartDrag>("imageOLEStartDrag", "Data", "AllowedEffects"),
    };
    static constexpr auto kEvents = core::joined(core::supportRows<E>(), kPictureEvents);

    // One of the rows always applies: the picture is the control, and is never without a state.
    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound,     S::NoData,
                                        States::Waiting,         States::Ok<false>,  States::Ok<true>,
                                        States::NotOk<false>,    States::NotOk<true>};

    static constexpr std::array kMethods{
        core::kGetMaxMessage,
        core::kGetMessageID,
        core::kSetMessage,
        core::kChangeBackColor,
        method<&ctx_ZorImage::MaxEntries>("MaxEntries", "MaxCount")
            .saying("Makes a new, empty table of names with so many rows. 0 leaves the bits without names; a "
                    "negative number silences the list, a click then names no bit at all."),
        method<&ctx_ZorImage::AddBitFieldEntry>("AddBitFieldEntry", "Identifier", "BitFieldEntryValue", "Index")
            .saying("Gives a bit, 0 to 31, its name, in a row of the table made by MaxEntries; a row outside of "
                    "it raises error 9. The row of any other number names nothing; of several rows of one bit the "
                    "first counts."),
    };

    static constexpr std::array kWidgets{
        core::kSurfaceRow,
        core::WidgetRow{img_State, "img_State", "The picture, which is the control; a click explains it."}};

    // Functions, for the reason that core::created is one.
    static std::string_view subject(const core::Control& control) { return control.MessageHeader(); }
    static std::string boxTitle(const core::Control& control)
    {
        return States::self(control).StatusText() + " - " + control.MessageHeader();
    }
};

const core::ClassInfo& ctx_ZorImage::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info =
        core::complete({.name = "ctx_ZorImage",
                        .meaning = "Shows a status word as a picture: one when all is well and another when a bit "
                                   "is set. A click lists the bits that are.",
                        .properties = T::kProperties,
                        .initialOrder = T::kInitialOrder,
                        .messages = T::kMessages,
                        .events = T::kEvents,
                        .methods = T::kMethods,
                        .states = T::kStates,
                        .effects = T::kEffects,
                        .widgets = T::kWidgets,
                        .subject = T::subject,
                        .boxTitle = T::boxTitle,
                        .create = core::created<ctx_ZorImage>});
    return info;
}

} // namespace zor
