// The slider as data: properties, messages, events, states, methods.

#include <zor/controls/numeric/slider/slider_rows.h>
#include <zor/core/event_rows.h>
#include <zor/core/joined.h>

#include <array>

namespace zor {

using core::event;
using core::named;
using core::ownEvent;
using core::SharedRows;
using platform::Notice;

namespace {

/// The four events of a label, whose names begin with the label's own.
template <auto Change, auto Click, auto DblClick, auto MouseMove>
constexpr std::array<core::EventRow, 4> labelRows(int label, const std::array<std::string_view, 4>& names)
{
    return {event<Change>(names[0], label, Notice::Change), event<Click>(names[1], label, Notice::Click),
            event<DblClick>(names[2], label, Notice::DblClick),
            event<MouseMove>(names[3], label, Notice::MouseMove, "Button", "Shift", "X", "Y")};
}

} // namespace

struct ctx_ZorSlider::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorSlider;

    // clang-format off
    static constexpr auto kProperties = core::rows(
        &S::CFail, &R::MinValue, &R::MaxValue, &R::MinParamValue, &R::MaxParamValue, &R::InvalidValue,
        &S::DataModified, &S::WaitingForData, &R::UnitType, &R::DeviceValue, &R::OutputValue,
        &R::DeviceUnitInTenths, &R::OutputUnit, &S::DataChanged, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged,
        &S::MsgDataNotAvailable, &R::MsgInvalidValue, &S::MsgDeviceTagNotFound, &S::MsgDefault, &S::IconEnable,
        &R::UnitEnable, &S::ReadOnly, &R::DefaultUnit, &R::UnitLabelCaption, &S::DeviceType, &S::DeviceVersion,
        &S::RegisterType, &S::EnableControl, &R::EnableValues, &R::MinPrefix, &R::MaxPrefix,
        // not stored
        &S::MessageHeader, &R::ModifiedValue, &R::OtherUserValue, &R::ScaleFactor, &R::TickStyle, &R::TickType,
        &R::TickFrequency, &R::GetNumTicks);
    // clang-format on
    static constexpr auto kOrder = controls::limitsAfterUnit<kProperties>();

    static constexpr std::array kTrackEvents{
        ownEvent<&E::sliderChange>("sliderChange")
            .saying("The track was moved and its value taken, by whomever; not while input is locked."),
        event<&E::sliderClick>("sliderClick", sld_Slider, Notice::Click),
        event<&E::sliderGotFocus>("sliderGotFocus", sld_Slider, Notice::GotFocus),
        event<&E::sliderKeyDown>("sliderKeyDown", sld_Slider, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::sliderKeyPress>("sliderKeyPress", sld_Slider, Notice::KeyPress, "KeyAscii"),
        event<&E::sliderKeyUp>("sliderKeyUp", sld_Slider, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::sliderLostFocus>("sliderLostFocus", sld_Slider, Notice::LostFocus),
        event<&E::sliderMouseDown>("sliderMouseDown", sld_Slider, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::sliderMouseMove>("sliderMouseMove", sld_Slider, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::sliderMouseUp>("sliderMouseUp", sld_Slider, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::sliderOLECompleteDrag>("sliderOLECompleteDrag", sld_Slider, Notice::OLECompleteDrag, "Effect"),
        event<&E::sliderOLEDragDrop>("sliderOLEDragDrop", sld_Slider, Notice::OLEDragDrop, "Data", "Effect",
                                     "Button", "Shift", "X", "Y"),
        event<&E::sliderOLEDragOver>("sliderOLEDragOver", sld_Slider, Notice::OLEDragOver, "Data", "Effect",
                                     "Button", "Shift", "X", "Y", "State"),
        event<&E::sliderOLEGiveFeedback>("sliderOLEGiveFeedback", sld_Slider, Notice::OLEGiveFeedback, "Effect",
                                         "DefaultCursors"),
        event<&E::sliderOLESetData>("sliderOLESetData", sld_Slider, Notice::OLESetData, "Data", "DataFormat"),
        event<&E::sliderOLEStartDrag>("sliderOLEStartDrag", sld_Slider, Notice::OLEStartDrag, "Data",
                                      "AllowedEffects"),
        event<&E::sliderScroll>("sliderScroll", sld_Slider, Notice::Scroll),
        event<&E::sliderValidate>("sliderValidate", sld_Slider, Notice::Validate, "Cancel"),
    };

    static constexpr auto kEvents = core::joined(
        std::array{ownEvent<&E::InvalidValueSetTrue>("InvalidValueSetTrue").saying(controls::kOutOfRange)},
        core::conditionRows<E>(), kTrackEvents,
        labelRows<&E::LabelMinUnitChange, &E::LabelMinUnitClick, &E::LabelMinUnitDblClick,
                  &E::LabelMinUnitMouseMove>(lbl_MinUnit, {"LabelMinUnitChange", "LabelMinUnitClick",
                                                           "LabelMinUnitDblClick", "LabelMinUnitMouseMove"}),
        labelRows<&E::LabelMaxUnitChange, &E::LabelMaxUnitClick, &E::LabelMaxUnitDblClick,
                  &E::LabelMaxUnitMouseMove>(lbl_MaxUnit, {"LabelMaxUnitChange", "LabelMaxUnitClick",
                                                           "LabelMaxUnitDblClick", "LabelMaxUnitMouseMove"}),
        labelRows<&E::LabelMinValueChange, &E::LabelMinValueClick, &E::LabelMinValueDblClick,
                  &E::LabelMinValueMouseMove>(lbl_MinValue, {"LabelMinValueChange", "LabelMinValueClick",
                                                             "LabelMinValueDblClick", "LabelMinValueMouseMove"}),
        labelRows<&E::LabelMaxValueChange, &E::LabelMaxValueClick, &E::LabelMaxValueDblClick,
                  &E::LabelMaxValueMouseMove>(lbl_MaxValue, {"LabelMaxValueChange", "LabelMaxValueClick",
                                                             "LabelMaxValueDblClick", "LabelMaxValueMouseMove"}),
        labelRows<&E::LabelMinPrefixChange, &E::LabelMinPrefixClick, &E::LabelMinPrefixDblClick,
                  &E::LabelMinPrefixMouseMove>(
            lbl_MinPrefix,
            {"LabelMinPrefixChange", "LabelMinPrefixClick", "LabelMinPrefixDblClick", "LabelMinPrefixMouseMove"}),
        labelRows<&E::LabelMaxPrefixChange, &E::LabelMaxPrefixClick, &E::LabelMaxPrefixDblClick,
                  &E::LabelMaxPrefixMouseMove>(
            lbl_MaxPrefix,
            {"LabelMaxPrefixChange", "LabelMaxPrefixClick", "LabelMaxPrefixDblClick", "LabelMaxPrefixMouseMove"}),
        core::iconRows<E>(img_State));

    static constexpr auto kStates = R::kStates<&ctx_ZorSlider::m_otherUser, &ctx_ZorSlider::m_reference>;

    static constexpr std::array kMethods{core::kGetMaxMessage, core::kGetMessageID, core::kSetMessage,
                                         core::kChangeBackColor, R::GetCaptionID};

    static constexpr std::array kWidgets{
        core::kSurfaceRow,
        core::WidgetRow{sld_Slider, "sld_Slider", "The track."},
        core::iconRow(img_State),
        core::WidgetRow{lbl_MinPrefix, "lbl_MinPrefix", "Words at the left end."},
        core::WidgetRow{lbl_MinValue, "lbl_MinValue", "Value of the left end."},
        core::WidgetRow{lbl_MinUnit, "lbl_MinUnit", "Unit of the left end."},
        core::WidgetRow{lbl_MaxPrefix, "lbl_MaxPrefix", "Words at the right end."},
        core::WidgetRow{lbl_MaxValue, "lbl_MaxValue", "Value of the right end."},
        core::WidgetRow{lbl_MaxUnit, "lbl_MaxUnit", "Unit of the right end."}};
};

const core::ClassInfo& ctx_ZorSlider::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info = core::complete(
        {.name = "ctx_ZorSlider",
         .meaning = "Shows a number on a track with ticks and range labels; ScaleFactor says how fine it is.",
         .properties = T::kProperties,
         .readOrder = T::kOrder,
         .initialOrder = T::kOrder,
         .messages = Rows::kMessages,
         .events = T::kEvents,
         .raised = {.invalid = named(T::kEvents, "InvalidValueSetTrue"),
                    .dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                    .outputValueChange = named(T::kEvents, "OutputValueChange"),
                    .changed = named(T::kEvents, "sliderChange")},
         .methods = T::kMethods,
         .states = T::kStates,
         .widgets = T::kWidgets,
         .keepsFailedWrites = true,
         .create = core::created<ctx_ZorSlider>});
    return info;
}

} // namespace zor
