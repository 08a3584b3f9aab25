// The text box as data: properties, messages, events, states, methods.

#include <zor/controls/numeric/entry_field_rows.h>
#include <zor/controls/numeric/text_box/text_box_rows.h>
#include <zor/core/event_rows.h>
#include <zor/core/joined.h>

#include <array>

namespace zor {

using controls::UnitRows;
using core::method;
using core::named;
using core::ownEvent;
using core::SharedRows;
using platform::Notice;
using std::string_view;

// --- States

struct ctx_ZorTextBox::States {
    static const ctx_ZorTextBox& self(const core::Control& c) { return static_cast<const ctx_ZorTextBox&>(c); }

    static void invalidEntryText(const core::Control& control, std::string& text)
    {
        const ctx_ZorTextBox& box = self(control);
        if (!box.isNumeric())
            text += box.m_entryMessages.tooLong.text();
        else if (box.m_invalidEntryEnable)
            text += box.rangeText();
        else
            text += box.m_entryMessages.notANumber.text();
    }

    template <class C>
    static void dataChangedText(C& control, std::string& text, string_view separators)
    {
        text.append(control.MsgDataChanged()).append(separators);
        control.appendDisplayValue(text);
    }

    static constexpr core::StatusRow DataChanged{
        SharedRows::isDataChanged,
        [](const core::Control& c, std::string& text) { dataChangedText(self(c), text, " :  , "); },
        frm_Container::Warning,
        [](core::Control& c, std::string& text) { dataChangedText(self(c), text, ", :  , "); },
        platform::BoxIcon::Exclamation,
        true};
    static constexpr core::StatusRow InvalidEntry{
        [](const core::Control& c) { return self(c).m_invalidEntry; }, invalidEntryText, frm_Container::Warning,
        [](core::Control& c, std::string& text) { invalidEntryText(c, text); }, platform::BoxIcon::Exclamation};
};

// --- The class

struct ctx_ZorTextBox::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorTextBox;

    // clang-format off
    static constexpr auto kProperties = core::rows(
        &S::CFail, &R::MinParamValue, &R::MaxParamValue, &R::InvalidEntry, &R::InvalidEntryEnable,
        &S::DataModified, &S::WaitingForData, &R::UnitType, &R::DeviceValue, &R::OutputValue, &R::DeviceUnitInTenths,
        &R::OutputUnit, &S::DataChanged, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged,
        &S::MsgDataNotAvailable, &R::MsgInvalidEntry, &R::MsgInvalidEntryForText, &R::MsgInvalidEntryTo,
        &R::MsgInvalidEntryNAN, &S::MsgDeviceTagNotFound, &S::MsgDefault, &R::EntryType, &R::NumberOfDigits,
        &R::MaxLength, &R::UnitEnable, &S::IconEnable, &S::ReadOnly, &R::DefaultUnit, &R::MinValue, &R::MaxValue,
        &R::UnitLabelCaption, &S::DeviceType, &S::DeviceVersion, &S::RegisterType, &S::EnableControl,
        &R::NumberOfDecimals, &R::WidthDifference,
        // not stored
        &S::MessageHeader, &R::ModifiedValue, &R::SelectedText, &R::TextFontBold, &R::UnitsFontBold);

    static constexpr auto kInitialOrder = core::rows(
        &S::CFail, &R::MinParamValue, &R::MaxParamValue, &R::InvalidEntry, &R::InvalidEntryEnable,
        &S::DataModified, &S::WaitingForData, &R::UnitType, &R::DeviceValue, &R::OutputValue, &R::DeviceUnitInTenths,
        &R::OutputUnit, &R::DefaultUnit, &S::DataChanged, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged,
        &S::MsgDataNotAvailable, &R::MsgInvalidEntry, &R::MsgInvalidEntryTo, &R::MsgInvalidEntryNAN,
        &R::MsgInvalidEntryForText, &S::MsgDeviceTagNotFound, &S::MsgDefault, &R::EntryType,
        &R::NumberOfDigits, &R::MaxLength, &S::IconEnable, &R::UnitEnable, &S::ReadOnly, &R::UnitLabelCaption,
        &S::DeviceType, &S::DeviceVersion, &S::RegisterType, &S::EnableControl, &R::NumberOfDecimals,
        &R::WidthDifference);
    // clang-format on

    static constexpr std::array kMessages{
        core::MessageRow{"MSG_CFAIL", &S::MsgCfail},
        core::MessageRow{"MSG_DATANOTAVAILABLE", &S::MsgDataNotAvailable},
        core::MessageRow{"MSG_DATACHANGED", &S::MsgDataChanged},
        core::MessageRow{"MSG_DEFAULT", &S::MsgDefault},
        core::MessageRow{"MSG_INVALIDENTRY", &R::MsgInvalidEntry},
        core::MessageRow{"MSG_DEVICETAGNOTFOUND", &S::MsgDeviceTagNotFound},
        core::MessageRow{"MSG_INVALIDENTRYTO", &R::MsgInvalidEntryTo},
        core::MessageRow{"MSG_INVALIDENTRYNAN", &R::MsgInvalidEntryNAN},
    };

    static constexpr auto kEvents = core::joined(
        std::array{
            ownEvent<&E::InvalidEntrySetTrue>("InvalidEntrySetTrue").saying("A commit found the entry invalid.")},
        core::conditionRows<E>(),
        controls::entryFieldRows<E>(txt_TextBox, lbl_Units,
                                    {.notify = Notice::LinkNotify, .open = Notice::LinkOpen}),
        core::iconRows<E>(img_State));

    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound, S::NoData, States::DataChanged,
                                        States::InvalidEntry};

    static constexpr std::array kMethods{
        core::kGetMaxMessage,
        core::kGetMessageID,
        core::kSetMessage,
        core::kChangeBackColor,
        UnitRows::GetCaptionID,
        UnitRows::GetConversionFactor,
        UnitRows::GetOffset,
        method<&ctx_ZorTextBox::s_ForceOutputValueUpdate>("s_ForceOutputValueUpdate")
            .saying(
                "Commits the entry as it stands while the field still has the focus, without showing it anew."),
    };

    static constexpr std::array kWidgets{
        core::kSurfaceRow, core::WidgetRow{txt_TextBox, "txt_TextBox", "The text field."},
        core::WidgetRow{lbl_Units, "lbl_Units", "The unit label."}, core::iconRow(img_State)};
};

const core::ClassInfo& ctx_ZorTextBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info =
        core::complete({.name = "ctx_ZorTextBox",
                        .meaning = "A text field for a number in a unit, or for a text. Shows the value in "
                                   "OutputUnit, takes the operator's entry, checks a number against MinValue and "
                                   "MaxValue and hands it back in the device's unit as OutputValue.",
                        .properties = T::kProperties,
                        .initialOrder = T::kInitialOrder,
                        .messages = T::kMessages,
                        .otherMessage = "MSG_INVALIDENTRYTO",
                        .events = T::kEvents,
                        .raised = {.invalid = named(T::kEvents, "InvalidEntrySetTrue"),
                                   .dataModifiedSetTrue = named(T::kEvents, "DataModifiedSetTrue"),
                                   .outputValueChange = named(T::kEvents, "OutputValueChange"),
                                   .changed = named(T::kEvents, "textChange")},
                        .methods = T::kMethods,
                        .states = T::kStates,
                        .widgets = T::kWidgets,
                        .create = core::created<ctx_ZorTextBox>});
    return info;
}

} // namespace zor
