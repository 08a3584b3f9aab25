// What happens while the operator works in the field: selection, typing, commit, undo.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/platform/error.h>
#include <zor/platform/text.h>

namespace zor {

using controls::EntryField;
using platform::Notice;

void ctx_ZorTextBox::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == EntryField::kText && notice == Notice::Change)
        return onTextChanged();
    m_field.followFocus(widget, notice);
    if (widget == EntryField::kText && notice == Notice::LostFocus)
        s_CommitEntry(true);
    UnitControl::onNotice(widget, notice, args);
}

void ctx_ZorTextBox::onTextChanged()
{
    m_editPending = true;
    bool same = false;
    if (isNumeric()) {
        const std::optional<double> text = m_field.number();
        const std::optional<double> display = !text                 ? std::nullopt
                                              : showsDisplayValue() ? text
                                                                    : validNumber(m_displayValue);
        same = display && *text == *display;
    } else {
        same = m_displayValue.isText() ? m_displayValue.text() == m_field.text().text()
                                       : m_displayValue.toText() == m_field.text().text();
    }
    judge(!same);
    s_UpdateColors();
    raise(kShownChange);
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
        const bool tooLong = m_status.dataModified &&
                             std::cmp_greater(platform::characterCount(m_field.text().text()), m_maxLength);
        m_invalidEntry = false;
        if (tooLong)
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
        const bool outside = *number < m_units.minParam || *number > m_units.maxParam;
        m_invalidEntry = false;
        if (m_invalidEntryEnable && m_status.dataModified && outside)
            setInvalidEntry();
    }
    // An invalid entry stays as it was typed: the operator must see what he is to correct.
    if (reformat && !m_invalidEntry)
        show(m_field.text().text());
}

void ctx_ZorTextBox::setInvalidEntry()
{
    m_invalidEntry = true;
    raise(kInvalidSetTrue);
}

void ctx_ZorTextBox::assignEntry()
{
    if (m_invalidEntry)
        return;
    const std::optional<double> number = isNumeric() ? m_field.number() : std::nullopt;
    if (!number)
        return assignOutput(m_field.text().text());
    double output = 0;
    try {
        output = m_units.toDevice(*number);
    } catch (const RunTimeError&) {
        // The operator must see that this entry will not reach the device.
        setInvalidEntry();
        s_UpdateStatusDisplay();
        throw;
    }
    assignOutput(output);
}

void ctx_ZorTextBox::s_ForceOutputValueUpdate()
{
    run([this] { s_CommitEntry(false); });
}

// --- Undo

void ctx_ZorTextBox::undoEdit()
{
    if (!m_status.dataModified)
        return;
    show(m_displayValue);
    assignOutput(m_deviceValue);
}

} // namespace zor
