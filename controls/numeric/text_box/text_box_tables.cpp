// The text box as data: properties, messages, events, states, methods.

#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "controls/numeric/text_box/text_box_numbers.h"
#include "core/shared_methods.h"
#include "core/shared_rows.h"

#include <array>

namespace zor {

using core::Access;
using core::event;
using core::field;
using core::MethodResult;
using core::MethodRow;
using core::ownEvent;
using core::PropertyRow;
using core::Refresh;
using core::SharedRows;
using platform::Notice;
using std::string_view;
using namespace text_box;

namespace {

ctx_ZorTextBox& self(core::Control& control) { return static_cast<ctx_ZorTextBox&>(control); }

} // namespace

// --- Properties

struct ctx_ZorTextBox::Rows {
    using This = ctx_ZorTextBox;
    using Units = controls::UnitBinding;

    static constexpr PropertyRow DeviceValue{
        "DeviceValue", field<&This::m_deviceValue>, "DeviceValue", 0, {}, {}, {}, [](core::Control& c) {
            self(c).s_ApplyDeviceValue();
        }};
    static constexpr PropertyRow OutputValue{"OutputValue",  field<&This::m_outputValue>, "OutputValue", 0, {},
                                             Access::Derived};
    static constexpr PropertyRow ModifiedValue{
        "ModifiedValue",
        {core::ValueKind::Any},
        {},
        {},
        {},
        Access::Silent,
        {},
        {},
        [](core::Control& c) { return self(c).ModifiedValue(); },
        [](core::Control& c, const Variant& value) { self(c).ModifiedValue(value); }};

    static constexpr PropertyRow UnitType{"UnitType", field<&This::m_units, &Units::unitType>, "UnitType", 0};
    // A new text box expects tenths of a millimetre; a form without the key was saved with millimetres.
    static constexpr PropertyRow DeviceUnit{"DeviceUnit",
                                            field<&This::m_units, &Units::deviceUnit>,
                                            "DeviceUnit",
                                            static_cast<std::int32_t>(LgthU_MM),
                                            static_cast<std::int32_t>(LgthU_1By10_MM),
                                            {},
                                            {},
                                            [](core::Control& c) { self(c).s_DeviceUnitChanged(); }};
    static constexpr PropertyRow OutputUnit{"OutputUnit",
                                            field<&This::m_units, &Units::outputUnit>,
                                            "OutputUnit",
                                            0,
                                            {},
                                            {},
                                            {},
                                            [](core::Control& c) { self(c).afterOutputUnit(); },
                                            {},
                                            [](core::Control& c, const Variant& value) { self(c).OutputUnit(MEAS_TYPE{value.toInt32()}); }};
    static constexpr PropertyRow DefaultUnit{"DefaultUnit",
                                             field<&This::m_units, &Units::defaultUnit>,
                                             "DefaultUnit",
                                             0,
                                             {},
                                             {},
                                             {},
                                             [](core::Control& c) { self(c).m_units.updateLimits(); }};
    static constexpr PropertyRow MinValue{"MinValue", field<&This::m_units, &Units::minValue>,
                                          "MinValue", 0.0,
                                          {},         {},
                                          {},         [](core::Control& c) { self(c).m_units.updateMinParam(); }};
    static constexpr PropertyRow MaxValue{"MaxValue", field<&This::m_units, &Units::maxValue>,
                                          "MaxValue", 0.0,
                                          {},         {},
                                          {},         [](core::Control& c) { self(c).m_units.updateMaxParam(); }};
    static constexpr PropertyRow MinParamValue{
        "MinParamValue", field<&This::m_units, &Units::minParam>, "MinParamValue", 0.0, {}, Access::Derived};
    static constexpr PropertyRow MaxParamValue{
        "MaxParamValue", field<&This::m_units, &Units::maxParam>, "MaxParamValue", 0.0, {}, Access::Derived};
    static constexpr PropertyRow InvalidEntry{
        "InvalidEntry", field<&This::m_invalidEntry>, "InvalidEntry", false, {}, Access::Derived};
    static constexpr PropertyRow InvalidEntryEnable{"InvalidEntryEnable", field<&This::m_invalidEntryEnable>,
                                                    "InvalidEntryEnable", true};

    static constexpr PropertyRow EntryType{"EntryType",
                                           field<&This::m_entryType>,
                                           "EntryType",
                                           static_cast<std::int32_t>(Numeric),
                                           {},
                                           {},
                                           {},
                                           [](core::Control& c) {
                                               self(c).m_text->setAlignment(self(c).isNumeric()
                                                                                ? platform::Alignment::Right
                                                                                : platform::Alignment::Left);
                                           }};
    // The key's small "o" is in every form ever saved.
    static constexpr PropertyRow NumberOfDigits{"NumberOfDigits", field<&This::m_numberOfDigits>, "NumberofDigits",
                                                3};
    static constexpr PropertyRow NumberOfDecimals{"NumberOfDecimals",
                                                  field<&This::m_numberOfDecimals>,
                                                  "NumberOfDecimals",
                                                  3,
                                                  {},
                                                  {},
                                                  {},
                                                  [](core::Control& c) { self(c).show(self(c).m_text->text()); }};
    static constexpr PropertyRow MaxLength{"MaxLength", field<&This::m_maxLength>, "MaxLength", 10};

    static constexpr PropertyRow UnitEnable{
        "UnitEnable", field<&This::m_unitEnable>, "UnitEnable", true, {}, {}, {}, [](core::Control& c) {
            self(c).s_UpdateUnitLabelVisibility();
            self(c).s_Layout();
        }};
    static constexpr PropertyRow UnitLabelCaption{"UnitLabelCaption",
                                                  field<&This::m_unitLabelCaption>,
                                                  "UnitLabelCaption",
                                                  string_view(""),
                                                  {},
                                                  {},
                                                  {},
                                                  [](core::Control& c) {
                                                      self(c).m_unitLabel->setCaption(self(c).m_unitLabelCaption);
                                                      self(c).s_PlaceIcon();
                                                  }};
    static constexpr PropertyRow WidthDifference{"WidthDifference",
                                                 field<&This::m_widthDifference>,
                                                 "WidthDifference",
                                                 1305,
                                                 {},
                                                 {},
                                                 {},
                                                 [](core::Control& c) { self(c).s_Layout(); }};
    static constexpr PropertyRow TextFontBold{
        "TextFontBold", field<&This::m_textFontBold>, {}, false, {}, {}, {}, [](core::Control& c) {
            self(c).m_text->setBold(self(c).m_textFontBold);
            self(c).s_UpdateColors();
        }};
    static constexpr PropertyRow UnitsFontBold{
        "UnitsFontBold",
        {core::ValueKind::Boolean},
        {},
        {},
        {},
        Access::Silent,
        {},
        {},
        [](core::Control& c) -> Variant { return self(c).UnitsFontBold(); },
        [](core::Control& c, const Variant& value) { self(c).UnitsFontBold(value.toBoolean()); }};
    static constexpr PropertyRow SelectedText{
        "SelectedText",
        {core::ValueKind::Text},
        {},
        {},
        {},
        Access::Silent,
        {},
        {},
        [](core::Control& c) -> Variant { return self(c).SelectedText(); },
        [](core::Control& c, const Variant& value) { self(c).SelectedText(value.toText()); }};

    static constexpr PropertyRow MsgInvalidEntry{"MsgInvalidEntry",
                                                 field<&This::m_entryMessages, &EntryMessages::invalid>,
                                                 "MsgInvalidEntry",
                                                 string_view("Invalid Entry"),
                                                 {},
                                                 {},
                                                 {Refresh::Status}};
    static constexpr PropertyRow MsgInvalidEntryForText{
        "MsgInvalidEntryForText",
        field<&This::m_entryMessages, &EntryMessages::tooLong>,
        "MsgInvalidEntryForText",
        string_view("Text is too long. Please enter a shorter text."),
        {},
        {},
        {Refresh::Status}};
    static constexpr PropertyRow MsgInvalidEntryTo{"MsgInvalidEntryTo",
                                                   field<&This::m_entryMessages, &EntryMessages::to>,
                                                   "MsgInvalidEntryTo",
                                                   string_view("To"),
                                                   {},
                                                   Access::Silent};
    static constexpr PropertyRow MsgInvalidEntryNAN{"MsgInvalidEntryNAN",
                                                    field<&This::m_entryMessages, &EntryMessages::notANumber>,
                                                    "MsgInvalidEntryNAN",
                                                    string_view("Invalid Entry"),
                                                    {},
                                                    {},
                                                    {Refresh::Status}};
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

    static constexpr core::StatusRow DataChanged{SharedRows::isDataChanged,
                                                 [](const core::Control& c, std::string& text) {
                                                     text.append(self(c).MsgDataChanged()).append(" :  , ");
                                                     self(c).appendDisplayValue(text);
                                                 },
                                                 frm_Container::Warning,
                                                 [](const core::Control& c, std::string& text) {
                                                     text.append(self(c).MsgDataChanged()).append(", :  , ");
                                                     self(c).appendDisplayValue(text);
                                                 },
                                                 platform::BoxIcon::Exclamation,
                                                 true};
    static constexpr core::StatusRow InvalidEntry{[](const core::Control& c) { return self(c).m_invalidEntry; },
                                                  invalidEntryText, frm_Container::Warning, invalidEntryText,
                                                  platform::BoxIcon::Exclamation};
};

// --- The class

struct ctx_ZorTextBox::Tables {
    using S = SharedRows;
    using R = Rows;
    using E = __ctx_ZorTextBox;

    static constexpr std::array kProperties{
        &S::CFail, &R::MinParamValue, &R::MaxParamValue, &R::InvalidEntry, &R::InvalidEntryEnable,
        &S::DataModified, &S::WaitingForData, &R::UnitType, &R::DeviceValue, &R::OutputValue, &R::DeviceUnit,
        &R::OutputUnit, &S::DataChanged, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged,
        &S::MsgDataNotAvailable, &R::MsgInvalidEntry, &R::MsgInvalidEntryForText, &R::MsgInvalidEntryTo,
        &R::MsgInvalidEntryNAN, &S::MsgDeviceTagNotFound, &S::MsgDefault, &R::EntryType, &R::NumberOfDigits,
        &R::MaxLength, &R::UnitEnable, &S::IconEnable, &S::ReadOnly, &R::DefaultUnit, &R::MinValue, &R::MaxValue,
        &R::UnitLabelCaption, &S::DeviceType, &S::DeviceVersion, &S::RegisterType, &S::EnableControl,
        &R::NumberOfDecimals, &R::WidthDifference,
        // not stored
        &S::MessageHeader, &R::ModifiedValue, &R::SelectedText, &R::TextFontBold, &R::UnitsFontBold};

    static constexpr std::array kInitialOrder{&S::CFail,
                                              &R::MinParamValue,
                                              &R::MaxParamValue,
                                              &R::InvalidEntry,
                                              &R::InvalidEntryEnable,
                                              &S::DataModified,
                                              &S::WaitingForData,
                                              &R::UnitType,
                                              &R::DeviceValue,
                                              &R::OutputValue,
                                              &R::DeviceUnit,
                                              &R::OutputUnit,
                                              &R::DefaultUnit,
                                              &S::DataChanged,
                                              &S::DataNotAvailable,
                                              &S::DeviceTypeSupported,
                                              &S::DeviceMinVersionSupported,
                                              &S::DeviceMaxVersionSupported,
                                              &S::DeviceTag,
                                              &S::DeviceTagNotFound,
                                              &S::DeviceVerNotSupported,
                                              &S::DeviceTypeNotSupported,
                                              &S::MsgCfail,
                                              &S::MsgDataChanged,
                                              &S::MsgDataNotAvailable,
                                              &R::MsgInvalidEntry,
                                              &R::MsgInvalidEntryTo,
                                              &R::MsgInvalidEntryNAN,
                                              &R::MsgInvalidEntryForText,
                                              &S::MsgDeviceTagNotFound,
                                              &S::MsgDefault,
                                              &R::EntryType,
                                              &R::NumberOfDigits,
                                              &R::MaxLength,
                                              &S::IconEnable,
                                              &R::UnitEnable,
                                              &S::ReadOnly,
                                              &R::UnitLabelCaption,
                                              &S::DeviceType,
                                              &S::DeviceVersion,
                                              &S::RegisterType,
                                              &S::EnableControl,
                                              &R::NumberOfDecimals,
                                              &R::WidthDifference};

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

    static constexpr std::array kEvents{
        ownEvent<&E::InvalidEntrySetTrue>("InvalidEntrySetTrue"),
        ownEvent<&E::DataModifiedSetTrue>("DataModifiedSetTrue"),
        ownEvent<&E::OutputValueChange>("OutputValueChange"),
        ownEvent<&E::DeviceVerNotSupportedSetTrue>("DeviceVerNotSupportedSetTrue"),
        ownEvent<&E::DeviceTypeNotSupportedSetTrue>("DeviceTypeNotSupportedSetTrue"),
        ownEvent<&E::DataChangedSetTrue>("DataChangedSetTrue"),
        ownEvent<&E::textChange>("textChange"),
        event<&E::textClick>("textClick", kText, Notice::Click),
        event<&E::textDblClick>("textDblClick", kText, Notice::DblClick),
        event<&E::textGotFocus>("textGotFocus", kText, Notice::GotFocus),
        event<&E::textKeyDown>("textKeyDown", kText, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::textKeyPress>("textKeyPress", kText, Notice::KeyPress, "KeyAscii"),
        event<&E::textKeyUp>("textKeyUp", kText, Notice::KeyUp, "KeyCode", "Shift"),
        ownEvent<&E::textLinkClose>("textLinkClose"),
        ownEvent<&E::textLinkError>("textLinkError", "LinkErr"),
        event<&E::textLinkNotify>("textLinkNotify", kText, Notice::LinkNotify),
        event<&E::textLinkOpen>("textLinkOpen", kText, Notice::LinkOpen, "Cancel"),
        event<&E::textLostFocus>("textLostFocus", kText, Notice::LostFocus),
        event<&E::textMouseDown>("textMouseDown", kText, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::textMouseMove>("textMouseMove", kText, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::textMouseUp>("textMouseUp", kText, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::textOLECompleteDrag>("textOLECompleteDrag", kText, Notice::OLECompleteDrag, "Effect"),
        ownEvent<&E::textOLEDragDrop>("textOLEDragDrop", "Data", "Effect", "Button", "Shift", "X", "Y"),
        ownEvent<&E::textOLEDragOver>("textOLEDragOver", "Data", "Effect", "Button", "Shift", "X", "Y", "State"),
        event<&E::textOLEGiveFeedback>("textOLEGiveFeedback", kText, Notice::OLEGiveFeedback, "Effect",
                                       "DefaultCursors"),
        ownEvent<&E::textOLESetData>("textOLESetData", "Data", "DataFormat"),
        ownEvent<&E::textOLEStartDrag>("textOLEStartDrag", "Data", "AllowedEffects"),
        event<&E::textValidate>("textValidate", kText, Notice::Validate, "Cancel"),
        event<&E::unitsChange>("unitsChange", kUnits, Notice::Change),
        event<&E::unitsClick>("unitsClick", kUnits, Notice::Click),
        event<&E::unitsDblClick>("unitsDblClick", kUnits, Notice::DblClick),
        event<&E::unitsMouseMove>("unitsMouseMove", kUnits, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::imgClick>("imgClick", kState, Notice::Click),
        event<&E::imgDblClick>("imgDblClick", kState, Notice::DblClick),
    };

    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound, S::NoData, States::DataChanged,
                                        States::InvalidEntry};

    static constexpr std::array kMethods{
        core::kGetMaxMessage,
        core::kGetMessageID,
        core::kSetMessage,
        core::kChangeBackColor,
        MethodRow{"fc_GetCaptionID", 0,
                  [](core::Control& c, std::span<const Variant>) -> MethodResult {
                      return Variant(self(c).fc_GetCaptionID());
                  }},
        MethodRow{"fd_GetConversionFactor", 3,
                  [](core::Control& c, std::span<const Variant> a) -> MethodResult {
                      return Variant(self(c).fd_GetConversionFactor(
                          UNIT_TYPE{a[0].toInt32()}, MEAS_TYPE{a[1].toInt32()}, MEAS_TYPE{a[2].toInt32()}));
                  },
                  "i_UnitType i_FromUnit i_ToUnit"},
        MethodRow{"fd_GetOffset", 2,
                  [](core::Control& c, std::span<const Variant> a) -> MethodResult {
                      return Variant(self(c).fd_GetOffset(MEAS_TYPE{a[0].toInt32()}, MEAS_TYPE{a[1].toInt32()}));
                  },
                  "i_FromUnit i_ToUnit"},
        MethodRow{"s_ForceOutputValueUpdate", 0,
                  [](core::Control& c, std::span<const Variant>) -> MethodResult {
                      self(c).s_ForceOutputValueUpdate();
                      return {};
                  }},
    };

    static constexpr std::array kWidgets{
        core::WidgetRow{platform::kSurfaceWidget, "Surface"}, core::WidgetRow{kText, "txt_TextBox"},
        core::WidgetRow{kUnits, "lbl_Units"}, core::WidgetRow{kState, "img_State"}};
};

const core::ClassInfo& ctx_ZorTextBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info{
        "ctx_ZorTextBox",
        T::kProperties,
        T::kInitialOrder,
        T::kMessages,
        "MSG_INVALIDENTRYTO",
        T::kEvents,
        T::kMethods,
        T::kStates,
        {},
        T::kWidgets,
        [](platform::Container& container) -> core::ControlPtr<> { return create(container); }};
    return info;
}

// --- Accessors

void ctx_ZorTextBox::DeviceValue(const Variant& value) { write(Rows::DeviceValue, value); }
void ctx_ZorTextBox::OutputValue(const Variant& value) { write(Rows::OutputValue, value); }
void ctx_ZorTextBox::EntryType(ENTRY_TYPE value) { write(Rows::EntryType, value); }
void ctx_ZorTextBox::NumberOfDigits(std::int16_t value) { write(Rows::NumberOfDigits, value); }
void ctx_ZorTextBox::NumberOfDecimals(std::int16_t value) { write(Rows::NumberOfDecimals, value); }
void ctx_ZorTextBox::UnitType(UNIT_TYPE value) { write(Rows::UnitType, value); }
void ctx_ZorTextBox::DeviceUnit(MEAS_TYPE value) { write(Rows::DeviceUnit, value); }
void ctx_ZorTextBox::OutputUnit(MEAS_TYPE value)
{
    const MEAS_TYPE before = std::exchange(m_units.previousOutputUnit, m_units.outputUnit);
    try {
        write(Rows::OutputUnit, value);
    } catch (...) {
        if (m_units.outputUnit != value)
            m_units.previousOutputUnit = before;
        throw;
    }
}
void ctx_ZorTextBox::DefaultUnit(MEAS_TYPE value) { write(Rows::DefaultUnit, value); }
void ctx_ZorTextBox::UnitEnable(bool value) { write(Rows::UnitEnable, value); }
void ctx_ZorTextBox::UnitLabelCaption(string_view value) { write(Rows::UnitLabelCaption, std::string(value)); }
void ctx_ZorTextBox::MinValue(double value) { write(Rows::MinValue, value); }
void ctx_ZorTextBox::MaxValue(double value) { write(Rows::MaxValue, value); }
void ctx_ZorTextBox::MinParamValue(double value) { write(Rows::MinParamValue, value); }
void ctx_ZorTextBox::MaxParamValue(double value) { write(Rows::MaxParamValue, value); }
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

std::string ctx_ZorTextBox::SelectedText() const { return m_text->selectedText(); }
void ctx_ZorTextBox::SelectedText(string_view value)
{
    run([&] { m_text->replaceSelection(value); });
}
bool ctx_ZorTextBox::UnitsFontBold() const { return m_unitLabel->isBold(); }
void ctx_ZorTextBox::UnitsFontBold(bool value) { m_unitLabel->setBold(value); }

} // namespace zor
