// The text box as data: properties, messages, events, states, methods.

#include <zor/controls/numeric/entry_field_rows.h>
#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/numeric/unit_rows.h>
#include <zor/core/event_rows.h>
#include <zor/core/joined.h>

#include <array>

namespace zor {

using controls::EntryField;
using controls::UnitRows;
using core::Access;
using core::computedRow;
using core::fieldRow;
using core::method;
using core::named;
using core::ownEvent;
using core::Refresh;
using core::SharedRows;
using platform::Notice;
using std::string_view;

// --- Properties

struct ctx_ZorTextBox::Rows : UnitRows {
    using This = ctx_ZorTextBox;

    static constexpr auto DeviceValue =
        fieldRow<&This::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("Raw value from the device, in DeviceUnit: a number, or a text. A write shows it in "
                    "OutputUnit, sets OutputValue and ends the operator's edit.")
            .placed(core::Placing::Device)
            .stored(0)
            .then<&This::s_ApplyDeviceValue>();
    static constexpr auto OutputValue =
        fieldRow<&This::m_outputValue>("OutputValue", core::Topic::Value)
            .saying("The value to write to the device, in DeviceUnit: the device's own until the operator commits "
                    "an entry.")
            .stored(0)
            .with(Access::Derived);
    static constexpr auto ModifiedValue =
        computedRow<[](This& box) { return box.ModifiedValue(); }>("ModifiedValue", core::Topic::Value)
            .saying("Reading gives OutputValue. Writing shows a value, in DeviceUnit, as if the operator had "
                    "entered it.")
            .written<[](This& box, const Variant& value) { box.ModifiedValue(value); }>();

    static constexpr auto InvalidEntry =
        fieldRow<&This::m_invalidEntry>("InvalidEntry", core::Topic::State)
            .saying("The operator's last committed entry failed the check. The control's own.")
            .stored(false)
            .with(Access::Derived);
    static constexpr auto InvalidEntryEnable =
        fieldRow<&This::m_invalidEntryEnable>("InvalidEntryEnable", core::Topic::Range)
            .saying("Whether a number is checked against the limits when the operator leaves the field.")
            .stored(true);

    static constexpr auto EntryType = fieldRow<&This::m_entryType>("EntryType", core::Topic::Value)
                                          .saying("Whether the value is a number or free text.")
                                          .stored(Numeric)
                                          .then<&This::s_AlignText>();
    // The key's small "o" is in every form ever saved.
    static constexpr auto NumberOfDigits =
        fieldRow<&This::m_numberOfDigits>("NumberOfDigits", core::Topic::Value)
            .saying("Decimals of a number without a unit (NoneU); 0 or less shows none. With a unit its own "
                    "pattern counts.")
            .storedAs("NumberofDigits", 3);
    static constexpr auto NumberOfDecimals =
        fieldRow<&This::m_numberOfDecimals>("NumberOfDecimals", core::Topic::Value)
            .saying("Kept and stored; writing it shows the text anew.")
            .stored(3)
            .then<[](This& box) { box.show(box.m_field.text().text()); }>();
    static constexpr auto MaxLength =
        fieldRow<&This::m_maxLength>("MaxLength", core::Topic::Range)
            .saying("Longest valid text of a text entry, in characters, checked when the operator leaves the "
                    "field.")
            .stored(10);

    static constexpr auto WidthDifference =
        fieldRow<&This::m_field, &EntryField::widthDifference>("WidthDifference", core::Topic::Appearance)
            .saying("Room right of the text field for unit label and state icon, in twips.")
            .stored(1305)
            .then<&This::s_Layout>();
    static constexpr auto TextFontBold =
        fieldRow<&This::m_textFontBold>("TextFontBold", core::Topic::Appearance)
            .saying("Keeps the text bold also when nobody has modified it.")
            .initially(false)
            .then<[](This& box) { box.m_field.text().setBold(box.m_textFontBold); }>();
    static constexpr auto UnitsFontBold =
        computedRow<[](This& box) { return box.UnitsFontBold(); }>("UnitsFontBold", core::Topic::Units)
            .saying("Whether the unit label is bold.")
            .written<[](This& box, bool bold) { box.UnitsFontBold(bold); }>();
    static constexpr auto SelectedText =
        computedRow<[](This& box) { return box.SelectedText(); }>("SelectedText", core::Topic::Value)
            .saying("The selected part of the text. Writing replaces it, or inserts at the caret, and counts as "
                    "an edit.")
            .written<[](This& box, const std::string& text) { box.SelectedText(text); }>()
            .live();

    static constexpr auto MsgInvalidEntry =
        fieldRow<&This::m_entryMessages, &EntryMessages::invalid>("MsgInvalidEntry", core::Topic::Messages)
            .saying("Words before the limits in the message of a number outside of them.")
            .stored("Invalid Entry")
            .refreshing({Refresh::Status});
    static constexpr auto MsgInvalidEntryForText =
        fieldRow<&This::m_entryMessages, &EntryMessages::tooLong>("MsgInvalidEntryForText", core::Topic::Messages)
            .saying("Message of a text that is longer than MaxLength.")
            .stored("Text is too long. Please enter a shorter text.")
            .refreshing({Refresh::Status});
    static constexpr auto MsgInvalidEntryTo =
        fieldRow<&This::m_entryMessages, &EntryMessages::to>("MsgInvalidEntryTo", core::Topic::Messages)
            .saying("Word between the two limits.")
            .stored("To")
            .with(Access::Silent);
    static constexpr auto MsgInvalidEntryNAN =
        fieldRow<&This::m_entryMessages, &EntryMessages::notANumber>("MsgInvalidEntryNAN", core::Topic::Messages)
            .saying("Message of an entry that is no number, when limits are not checked.")
            .stored("Invalid Entry")
            .refreshing({Refresh::Status});
};

// --- States

struct ctx_ZorTextBox::States {
    static const ctx_ZorTextBox& self(const core::Control& c) { return static_cast<const ctx_ZorTextBox&>(c); }

    static void invalidEntryText(const core::Control& control, std::string& text)
    {
        const ctx_ZorTextBox& box = self(control);
        if (!box.isNumeric())
            text += box.m_entryMessages.tooLong;
        else if (box.m_invalidEntryEnable)
            text += box.rangeText();
        else
            text += box.m_entryMessages.notANumber;
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
        controls::entryFieldRows<E>(EntryField::kText, EntryField::kUnits,
                                    {.notify = Notice::LinkNotify, .open = Notice::LinkOpen}),
        core::iconRows<E>(EntryField::kState));

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
        core::kSurfaceRow, core::WidgetRow{EntryField::kText, "txt_TextBox", "The text field."},
        core::WidgetRow{EntryField::kUnits, "lbl_Units", "The unit label."}, core::iconRow(EntryField::kState)};
};

const core::ClassInfo& ctx_ZorTextBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info = core::complete(
        {.name = "ctx_ZorTextBox",
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
         .create = [](platform::Container& container) -> core::ControlPtr<> { return create(container); }});
    return info;
}

// --- Accessors

void ctx_ZorTextBox::DeviceValue(const Variant& value) { write(Rows::DeviceValue, value); }
void ctx_ZorTextBox::OutputValue(const Variant& value) { write(Rows::OutputValue, value); }
void ctx_ZorTextBox::EntryType(ENTRY_TYPE value) { write(Rows::EntryType, value); }
void ctx_ZorTextBox::NumberOfDigits(std::int16_t value) { write(Rows::NumberOfDigits, value); }
void ctx_ZorTextBox::NumberOfDecimals(std::int16_t value) { write(Rows::NumberOfDecimals, value); }
void ctx_ZorTextBox::InvalidEntryEnable(bool value) { write(Rows::InvalidEntryEnable, value); }
void ctx_ZorTextBox::InvalidEntry(bool value) { write(Rows::InvalidEntry, value); }
void ctx_ZorTextBox::MaxLength(std::int16_t value) { write(Rows::MaxLength, value); }
void ctx_ZorTextBox::TextFontBold(bool value) { write(Rows::TextFontBold, value); }
void ctx_ZorTextBox::WidthDifference(std::int16_t value) { write(Rows::WidthDifference, value); }
void ctx_ZorTextBox::MsgInvalidEntry(string_view value) { write(Rows::MsgInvalidEntry, std::string(value)); }
void ctx_ZorTextBox::MsgInvalidEntryTo(string_view value) { write(Rows::MsgInvalidEntryTo, std::string(value)); }
void ctx_ZorTextBox::MsgInvalidEntryNAN(string_view value) { write(Rows::MsgInvalidEntryNAN, std::string(value)); }
void ctx_ZorTextBox::MsgInvalidEntryForText(string_view value)
{
    write(Rows::MsgInvalidEntryForText, std::string(value));
}

std::string ctx_ZorTextBox::SelectedText() const { return m_field.text().selectedText(); }
void ctx_ZorTextBox::SelectedText(string_view value)
{
    carryOut([&] { m_field.text().replaceSelection(value); });
}
bool ctx_ZorTextBox::UnitsFontBold() const { return m_field.units().isBold(); }
void ctx_ZorTextBox::UnitsFontBold(bool value) { m_field.units().setBold(value); }

} // namespace zor
