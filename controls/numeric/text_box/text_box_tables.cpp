// The text box as data: properties, messages, events, states, methods.

#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "controls/numeric/text_box/text_box_numbers.h"
#include "core/shared_methods.h"
#include "core/shared_rows.h"

#include <array>

namespace zor {

using core::Access;
using core::computedRow;
using core::event;
using core::fieldRow;
using core::method;
using core::ownEvent;
using core::PropertyRow;
using core::Refresh;
using core::SharedRows;
using platform::Notice;
using std::string_view;
using namespace text_box;

// --- Properties

struct ctx_ZorTextBox::Rows {
    using This = ctx_ZorTextBox;
    using Units = controls::UnitBinding;

    static constexpr PropertyRow DeviceValue =
        fieldRow<&This::m_deviceValue>("DeviceValue").stored(0).then<&This::s_ApplyDeviceValue>();
    static constexpr PropertyRow OutputValue =
        fieldRow<&This::m_outputValue>("OutputValue").stored(0).with(Access::Derived);
    static constexpr PropertyRow ModifiedValue =
        computedRow<[](This& box) { return box.ModifiedValue(); }>("ModifiedValue")
            .written<[](This& box, const Variant& value) { box.ModifiedValue(value); }>();

    static constexpr PropertyRow UnitType = fieldRow<&This::m_units, &Units::unitType>("UnitType").stored(0);
    // A new text box expects tenths of a millimetre; a form that says nothing means millimetres.
    static constexpr PropertyRow DeviceUnit = fieldRow<&This::m_units, &Units::deviceUnit>("DeviceUnit")
                                                  .stored(0)
                                                  .initially(static_cast<std::int32_t>(LgthU_1By10_MM))
                                                  .then<&This::s_DeviceUnitChanged>();
    static constexpr PropertyRow OutputUnit =
        fieldRow<&This::m_units, &Units::outputUnit>("OutputUnit")
            .stored(0)
            .then<&This::afterOutputUnit>()
            .written<[](This& box, MEAS_TYPE unit) { box.OutputUnit(unit); }>();
    static constexpr PropertyRow DefaultUnit = fieldRow<&This::m_units, &Units::defaultUnit>("DefaultUnit")
                                                   .stored(0)
                                                   .then<[](This& box) { box.m_units.updateLimits(); }>();
    static constexpr PropertyRow MinValue = fieldRow<&This::m_units, &Units::minValue>("MinValue")
                                                .stored(0.0)
                                                .then<[](This& box) { box.m_units.updateMinParam(); }>();
    static constexpr PropertyRow MaxValue = fieldRow<&This::m_units, &Units::maxValue>("MaxValue")
                                                .stored(0.0)
                                                .then<[](This& box) { box.m_units.updateMaxParam(); }>();
    static constexpr PropertyRow MinParamValue =
        fieldRow<&This::m_units, &Units::minParam>("MinParamValue").stored(0.0).with(Access::Derived);
    static constexpr PropertyRow MaxParamValue =
        fieldRow<&This::m_units, &Units::maxParam>("MaxParamValue").stored(0.0).with(Access::Derived);
    static constexpr PropertyRow InvalidEntry =
        fieldRow<&This::m_invalidEntry>("InvalidEntry").stored(false).with(Access::Derived);
    static constexpr PropertyRow InvalidEntryEnable =
        fieldRow<&This::m_invalidEntryEnable>("InvalidEntryEnable").stored(true);

    static constexpr PropertyRow EntryType = fieldRow<&This::m_entryType>("EntryType")
                                                 .stored(static_cast<std::int32_t>(Numeric))
                                                 .then<&This::s_AlignText>();
    // The key's small "o" is in every form ever saved.
    static constexpr PropertyRow NumberOfDigits =
        fieldRow<&This::m_numberOfDigits>("NumberOfDigits").storedAs("NumberofDigits", 3);
    static constexpr PropertyRow NumberOfDecimals = fieldRow<&This::m_numberOfDecimals>("NumberOfDecimals")
                                                        .stored(3)
                                                        .then<[](This& box) { box.show(box.m_text->text()); }>();
    static constexpr PropertyRow MaxLength = fieldRow<&This::m_maxLength>("MaxLength").stored(10);

    static constexpr PropertyRow UnitEnable =
        fieldRow<&This::m_unitEnable>("UnitEnable").stored(true).then<[](This& box) {
            box.s_UpdateUnitLabelVisibility();
            box.s_Layout();
        }>();
    static constexpr PropertyRow UnitLabelCaption =
        fieldRow<&This::m_unitLabelCaption>("UnitLabelCaption").stored("").then<[](This& box) {
            box.m_unitLabel->setCaption(box.m_unitLabelCaption);
            box.s_PlaceIcon();
        }>();
    static constexpr PropertyRow WidthDifference =
        fieldRow<&This::m_widthDifference>("WidthDifference").stored(1305).then<&This::s_Layout>();
    static constexpr PropertyRow TextFontBold =
        fieldRow<&This::m_textFontBold>("TextFontBold").initially(false).then<[](This& box) {
            box.m_text->setBold(box.m_textFontBold);
            box.s_UpdateColors();
        }>();
    static constexpr PropertyRow UnitsFontBold =
        computedRow<[](This& box) { return box.UnitsFontBold(); }>("UnitsFontBold")
            .written<[](This& box, bool bold) { box.UnitsFontBold(bold); }>();
    static constexpr PropertyRow SelectedText =
        computedRow<[](This& box) { return box.SelectedText(); }>("SelectedText")
            .written<[](This& box, const std::string& text) { box.SelectedText(text); }>();

    static constexpr PropertyRow MsgInvalidEntry =
        fieldRow<&This::m_entryMessages, &EntryMessages::invalid>("MsgInvalidEntry")
            .stored("Invalid Entry")
            .refreshing({Refresh::Status});
    static constexpr PropertyRow MsgInvalidEntryForText =
        fieldRow<&This::m_entryMessages, &EntryMessages::tooLong>("MsgInvalidEntryForText")
            .stored("Text is too long. Please enter a shorter text.")
            .refreshing({Refresh::Status});
    static constexpr PropertyRow MsgInvalidEntryTo =
        fieldRow<&This::m_entryMessages, &EntryMessages::to>("MsgInvalidEntryTo")
            .stored("To")
            .with(Access::Silent);
    static constexpr PropertyRow MsgInvalidEntryNAN =
        fieldRow<&This::m_entryMessages, &EntryMessages::notANumber>("MsgInvalidEntryNAN")
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

    static constexpr std::array kInitialOrder{
        &S::CFail, &R::MinParamValue, &R::MaxParamValue, &R::InvalidEntry, &R::InvalidEntryEnable,
        &S::DataModified, &S::WaitingForData, &R::UnitType, &R::DeviceValue, &R::OutputValue, &R::DeviceUnit,
        &R::OutputUnit, &R::DefaultUnit, &S::DataChanged, &S::DataNotAvailable, &S::DeviceTypeSupported,
        &S::DeviceMinVersionSupported, &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound,
        &S::DeviceVerNotSupported, &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged,
        &S::MsgDataNotAvailable, &R::MsgInvalidEntry, &R::MsgInvalidEntryTo, &R::MsgInvalidEntryNAN,
        &R::MsgInvalidEntryForText, &S::MsgDeviceTagNotFound, &S::MsgDefault, &R::EntryType,
        &R::NumberOfDigits, &R::MaxLength, &S::IconEnable, &R::UnitEnable, &S::ReadOnly, &R::UnitLabelCaption,
        &S::DeviceType, &S::DeviceVersion, &S::RegisterType, &S::EnableControl, &R::NumberOfDecimals,
        &R::WidthDifference};
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
        method<&ctx_ZorTextBox::fc_GetCaptionID>("fc_GetCaptionID"),
        method<&ctx_ZorTextBox::fd_GetConversionFactor>("fd_GetConversionFactor", "i_UnitType", "i_FromUnit",
                                                        "i_ToUnit"),
        method<&ctx_ZorTextBox::fd_GetOffset>("fd_GetOffset", "i_FromUnit", "i_ToUnit"),
        method<&ctx_ZorTextBox::s_ForceOutputValueUpdate>("s_ForceOutputValueUpdate"),
    };

    static constexpr std::array kWidgets{
        core::WidgetRow{platform::kSurfaceWidget, "Surface"}, core::WidgetRow{kText, "txt_TextBox"},
        core::WidgetRow{kUnits, "lbl_Units"}, core::WidgetRow{kState, "img_State"}};
};

const core::ClassInfo& ctx_ZorTextBox::classInfo() noexcept
{
    using T = Tables;
    static constexpr core::ClassInfo info{
        .name = "ctx_ZorTextBox",
        .properties = T::kProperties,
        .initialOrder = T::kInitialOrder,
        .messages = T::kMessages,
        .otherMessage = "MSG_INVALIDENTRYTO",
        .events = T::kEvents,
        .methods = T::kMethods,
        .states = T::kStates,
        .widgets = T::kWidgets,
        .create = [](platform::Container& container) -> core::ControlPtr<> { return create(container); }};
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
