// The up-down as data: properties, messages, events, states, methods.

#include <zor/controls/numeric/entry_field_rows.h>
#include <zor/controls/numeric/up_down/up_down_rows.h>
#include <zor/core/event_rows.h>
#include <zor/core/joined.h>

#include <array>

namespace zor {

using core::event;
using core::named;
using core::ownEvent;
using core::SharedRows;
using platform::Notice;

struct ctx_ZorUpDown::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorUpDown;

    // clang-format off
    static constexpr auto kProperties = core::rows(
        &S::CFail, &R::MinValue, &R::MaxValue, &R::MinParamValue, &R::MaxParamValue, &R::InvalidValue,
        &S::DataModified, &S::WaitingForData, &R::UnitType, &R::DeviceValue, &R::OutputValue, &R::DeviceUnit,
        &R::OutputUnit, &S::DataChanged, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged,
        &S::MsgDataNotAvailable, &R::MsgInvalidValue, &S::MsgDeviceTagNotFound, &S::MsgDefault,
        &R::NumberOfDigits, &S::IconEnable, &R::UnitEnable, &S::ReadOnly, &R::DefaultUnit, &R::UnitLabelCaption,
        &S::DeviceType, &S::DeviceVersion, &S::RegisterType, &S::EnableControl, &R::WidthDifference,
        // not stored
        &S::MessageHeader, &R::ModifiedValue, &R::OtherUserValue);
    // clang-format on
    static constexpr auto kOrder = controls::limitsAfterUnit<kProperties>();

    static constexpr auto kEvents = core::joined(
        std::array{ownEvent<&E::InvalidValueSetTrue>("InvalidValueSetTrue").saying(controls::kOutOfRange)},
        core::conditionRows<E>(),
        controls::entryFieldRows<E>(txt_TextBox, lbl_Units,
                                    {.close = Notice::LinkClose, .error = Notice::LinkError}),
        std::array{event<&E::upDownChange>("upDownChange", upd_UpDown, Notice::Change),
                   event<&E::upDownDownClick>("upDownDownClick", upd_UpDown, Notice::SpinDown),
                   event<&E::upDownUpClick>("upDownUpClick", upd_UpDown, Notice::SpinUp)},
        core::iconRows<E>(img_State));

    static constexpr auto kStates = R::kStates<&ctx_ZorUpDown::m_otherUser, &ctx_ZorUpDown::m_reference>;

    static constexpr std::array kMethods{
        core::kGetMaxMessage, core::kGetMessageID,    core::kSetMessage, core::kChangeBackColor,
        R::GetCaptionID,      R::GetConversionFactor, R::GetOffset};

    static constexpr std::array kWidgets{
        core::kSurfaceRow, core::WidgetRow{txt_TextBox, "txt_TextBox", "The text field."},
        core::WidgetRow{upd_UpDown, "upd_UpDown", "The spin button."},
        core::WidgetRow{lbl_Units, "lbl_Units", "The unit label."}, core::iconRow(img_State)};
};

const core::ClassInfo& ctx_ZorUpDown::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info =
        core::complete({.name = "ctx_ZorUpDown",
                        .meaning = "Like the text box, for whole numbers that the operator types or steps. An "
                                   "entry beyond MinValue or MaxValue becomes the limit.",
                        .properties = T::kProperties,
                        .readOrder = T::kOrder,
                        .initialOrder = T::kOrder,
                        .messages = Rows::kMessages,
                        .events = T::kEvents,
                        .raised = {.invalid = named(T::kEvents, "InvalidValueSetTrue"),
                                   .dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                                   .outputValueChange = named(T::kEvents, "OutputValueChange"),
                                   .changed = named(T::kEvents, "textChange")},
                        .methods = T::kMethods,
                        .states = T::kStates,
                        .widgets = T::kWidgets,
                        .keepsFailedWrites = true,
                        .create = core::created<ctx_ZorUpDown>});
    return info;
}

} // namespace zor
