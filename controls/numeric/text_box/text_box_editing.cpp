// What happens while the operator works in the field: selection, typing, commit, undo.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/platform/error.h>
#include <zor/platform/temporarily.h>
#include <zor/platform/text.h>

namespace zor {

using platform::Notice;

void ctx_ZorTextBox::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == txt_TextBox && notice == Notice::Change)
        return onTextChanged();
    m_field.followFocus(widget, notice);
    if (widget == txt_TextBox && notice == Notice::LostFocus)
        s_CommitEntry(true);
    UnitControl::onNotice(widget, notice, args);
}

void ctx_ZorTextBox::onTextChanged()
{
    m_editPending = true;
    if (!std::exchange(m_isShowing, false))
        m_source = Source::Edit;
    judge(!std::exchange(m_isUndoing, false) && !equalsDisplayValue());
    s_UpdateColors();
    raise(raised().changed);
}

// --- Commit

void ctx_ZorTextBox::s_CommitEntry(bool reformat)
{
    if (m_editPending) {
        validateEntry(reformat);
        m_editPending = false;
    }
    s_UpdateStatusDisplay();
    assignEntry();
}

void ctx_ZorTextBox::validateEntry(bool reformat)
{
    const bool holding = m_binding.registerType == HoldingRegister;
    if (!isNumeric()) {
        m_invalidEntry = false;
        if (m_status.dataModified && isTooLong())
            setInvalidEntry();
        return;
    }
    const std::optional<double> number = m_field.number();
    if (!number) {
        if (holding)
            setInvalidEntry();
        return;
    }
    // An input register is never range-checked: the operator has not typed what it shows.
    if (!m_invalidEntryEnable || holding) {
        m_invalidEntry = false;
        if (m_invalidEntryEnable && m_status.dataModified && m_units.isShownOutside(*number))
            setInvalidEntry();
    }
    // An invalid entry stays as it was typed: the operator must see what he is to correct.
    if (reformat && !m_invalidEntry)
        show(m_field.text().text());
}

bool ctx_ZorTextBox::isTooLong() const
{
    return std::cmp_greater(platform::characterCount(m_field.text().text()), m_maxLength);
}

void ctx_ZorTextBox::setInvalidEntry()
{
    m_invalidEntry = true;
    raise(raised().invalid);
}

void ctx_ZorTextBox::assignEntry()
{
    if (m_invalidEntry)
        return;
    Variant output;
    try {
        output = entry();
    } catch (const RunTimeError&) {
        // The operator must see that this entry will not reach the device.
        setInvalidEntry();
        s_UpdateStatusDisplay();
        throw;
    }
    assignOutput(output);
}

Variant ctx_ZorTextBox::entry() const
{
    // What nobody has edited is handed back as it came: the display rounds.
    if (m_source == Source::Device || (m_source == Source::Edit && equalsDisplayValue())) {
        const bool isConverted = isNumeric() && m_deviceValueUnit != m_units.deviceUnit;
        const std::optional<double> number = isConverted ? validNumber(m_deviceValue) : std::nullopt;
        return number ? convert(*number, m_units.unitType, m_deviceValueUnit, m_units.deviceUnit) : m_deviceValue;
    }
    if (m_source == Source::Output)
        return m_outputValue;
    const std::optional<double> number = isNumeric() ? m_field.number() : std::nullopt;
    return number ? Variant(m_units.toDevice(*number)) : Variant(m_field.text().text());
}

void ctx_ZorTextBox::s_ForceOutputValueUpdate()
{
    carryOut([this] { s_CommitEntry(false); });
}

std::optional<Variant> ctx_ZorTextBox::entryUnderWay() const
{
    if (!m_editPending || m_source != Source::Edit)
        return {};
    const std::optional<double> number = m_field.number();
    const bool isOutside = m_invalidEntryEnable && number && m_units.isShownOutside(*number);
    if (isNumeric() ? !number || isOutside : isTooLong())
        return {};
    try {
        return entry();
    } catch (const RunTimeError&) {
        return {};
    }
}

// --- Undo

void ctx_ZorTextBox::undoEdit()
{
    if (!m_status.dataModified)
        return;
    const auto underWay = newValue();
    m_source = Source::Device;
    {
        const platform::Temporarily undoing(m_isUndoing, true);
        show(m_displayValue);
    }
    if (isOvertaken(underWay))
        return;
    // A field that shows the device's value already does not report: the flag came from elsewhere.
    m_status.dataModified = false;
    s_UpdateColors();
    assignOutput(m_deviceValue);
}

} // namespace zor
