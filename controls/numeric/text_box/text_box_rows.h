#pragma once

/// The properties of the text box.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/numeric/unit_rows.h>

namespace zor {

struct ctx_ZorTextBox::Rows : controls::UnitRows {
    using This = ctx_ZorTextBox;

    static constexpr auto DeviceValue =
        core::fieldRow<&This::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("Raw value from the device, in DeviceUnit: a number, or a text. A write shows it in "
                    "OutputUnit, sets OutputValue and ends the operator's edit.")
            .placed(core::Placing::Device)
            .stored(0)
            .then<&This::s_ApplyDeviceValue>();
    static constexpr auto OutputValue =
        core::fieldRow<&This::m_outputValue>("OutputValue", core::Topic::Value)
            .saying("The value to write to the device, in DeviceUnit: the device's own until the operator commits "
                    "an entry.")
            .stored(0)
            .with(core::Access::Derived);
    static constexpr auto ModifiedValue =
        core::computedRow<[](This& box) { return box.ModifiedValue(); }>("ModifiedValue", core::Topic::Value)
            .saying("Reading gives OutputValue. Writing shows a value, in DeviceUnit, as if the operator had "
                    "entered it.")
            .written<[](This& box, const Variant& value) { box.ModifiedValue(value); }>();

    static constexpr auto InvalidEntry =
        core::fieldRow<&This::m_invalidEntry>("InvalidEntry", core::Topic::State)
            .saying("The operator's last committed entry failed the check. The control's own; an undo leaves it "
                    "until the field is left again or DeviceValue is written.")
            .stored(false)
            .with(core::Access::Derived);
    static constexpr auto InvalidEntryEnable =
        core::fieldRow<&This::m_invalidEntryEnable>("InvalidEntryEnable", core::Topic::Range)
            .saying("Whether a number is checked against the limits when the operator leaves the field.")
            .stored(true);

    static constexpr auto EntryType = core::fieldRow<&This::m_entryType>("EntryType", core::Topic::Value)
                                          .saying("Whether the value is a number or free text.")
                                          .stored(Numeric)
                                          .then<&This::s_AlignText>();
    // The key's small "o" is in every form ever saved.
    static constexpr auto NumberOfDigits =
        core::fieldRow<&This::m_numberOfDigits>("NumberOfDigits", core::Topic::Value)
            .saying("Decimals of a number without a unit (NoneU); 0 or less shows none. With a unit its own "
                    "pattern counts.")
            .storedAs("NumberofDigits", 3);
    static constexpr auto NumberOfDecimals =
        core::fieldRow<&This::m_numberOfDecimals>("NumberOfDecimals", core::Topic::Value)
            .saying("Kept and stored; writing it shows the text anew.")
            .stored(3)
            .then<[](This& box) { box.show(box.m_field.text().text()); }>();
    static constexpr auto MaxLength =
        core::fieldRow<&This::m_maxLength>("MaxLength", core::Topic::Range)
            .saying("Longest valid text of a text entry, in characters, checked when the operator leaves the "
                    "field.")
            .stored(10);

    static constexpr auto WidthDifference =
        core::fieldRow<&This::m_field, &controls::EntryField::widthDifference>("WidthDifference",
                                                                               core::Topic::Appearance)
            .saying("Room right of the text field for unit label and state icon, in twips.")
            .stored(1305)
            .then<&This::s_Layout>();
    static constexpr auto TextFontBold =
        core::fieldRow<&This::m_textFontBold>("TextFontBold", core::Topic::Appearance)
            .saying("Keeps the text bold also when nobody has modified it.")
            .initially(false)
            .then<[](This& box) { box.m_field.textToStyle().setBold(box.m_textFontBold); }>();
    static constexpr auto UnitsFontBold =
        core::computedRow<[](This& box) { return box.UnitsFontBold(); }>("UnitsFontBold", core::Topic::Units)
            .saying("Whether the unit label is bold.")
            .written<[](This& box, bool bold) { box.UnitsFontBold(bold); }>();
    static constexpr auto SelectedText =
        core::computedRow<[](This& box) { return box.SelectedText(); }>("SelectedText", core::Topic::Value)
            .saying("The selected part of the text. Writing replaces it, or inserts at the caret, and counts as "
                    "an edit.")
            .written<[](This& box, const std::string& text) { box.SelectedText(text); }>()
            .live();

    static constexpr auto MsgInvalidEntry =
        core::fieldRow<&This::m_entryMessages, &EntryMessages::invalid>("MsgInvalidEntry", core::Topic::Messages)
            .saying("Words before the limits in the message of a number outside of them.")
            .stored("Invalid Entry")
            .refreshing({core::Refresh::Status});
    static constexpr auto MsgInvalidEntryForText = core::fieldRow<&This::m_entryMessages, &EntryMessages::tooLong>(
                                                       "MsgInvalidEntryForText", core::Topic::Messages)
                                                       .saying("Message of a text that is longer than MaxLength.")
                                                       .stored("Text is too long. Please enter a shorter text.")
                                                       .refreshing({core::Refresh::Status});
    static constexpr auto MsgInvalidEntryTo =
        core::fieldRow<&This::m_entryMessages, &EntryMessages::to>("MsgInvalidEntryTo", core::Topic::Messages)
            .saying("Word between the two limits.")
            .stored("To")
            .with(core::Access::Silent);
    static constexpr auto MsgInvalidEntryNAN =
        core::fieldRow<&This::m_entryMessages, &EntryMessages::notANumber>("MsgInvalidEntryNAN",
                                                                           core::Topic::Messages)
            .saying("Message of an entry that is no number, when limits are not checked.")
            .stored("Invalid Entry")
            .refreshing({core::Refresh::Status});
};

} // namespace zor
