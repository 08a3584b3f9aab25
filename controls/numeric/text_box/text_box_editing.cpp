// What happens while the operator works in the field: selection, typing, commit, undo.

#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "controls/numeric/text_box/text_box_numbers.h"
#include "platform/error.h"
#include "platform/text.h"

namespace zor {

using platform::Notice;
using namespace text_box;

void ctx_ZorTextBox::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == kText && notice == Notice::Change)
        return onTextChanged();
    if (widget == kText && notice == Notice::GotFocus) {
        m_selectAllPending = true;
        selectAll();
    } else if (widget == kText && notice == Notice::MouseUp && std::exchange(m_selectAllPending, false)) {
        // The click that brought the focus must not leave a caret in place of the selection.
        selectAll();
    } else if (widget == kText && notice == Notice::LostFocus) {
        s_CommitEntry(true);
    } else if (widget == kState && notice == Notice::Click) {
        s_ExplainState();
    } else if (widget == core::kUndoEdit) {
        undoEdit();
    } else if (notice == Notice::MouseUp && widget == platform::kSurfaceWidget) {
        offerUndo(surface(), args);
    } else if (notice == Notice::MouseUp && widget == kUnits) {
        offerUndo(*m_unitLabel, args);
    }
    forward(widget, notice, args);
}

void ctx_ZorTextBox::onTextChanged()
{
    m_editPending = true;
    bool same = false;
    if (isNumeric()) {
        const std::optional<double> text = textNumber();
        const std::optional<double> display = !text                 ? std::nullopt
                                              : showsDisplayValue() ? text
                                                                    : validNumber(m_displayValue);
        same = display && *text == *display;
    } else {
        same = m_displayValue.isText() ? m_displayValue.text() == m_text->text()
                                       : m_displayValue.toText() == m_text->text();
    }
    m_status.dataModified = !same;
    if (!same)
        raise(kDataModifiedSetTrue);
    s_UpdateColors();
    raise(kTextChange);
}

void ctx_ZorTextBox::selectAll() { m_text->select(0, platform::characterCount(m_text->text())); }

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
        const bool tooLong =
            m_status.dataModified && std::cmp_greater(platform::characterCount(m_text->text()), m_maxLength);
        m_invalidEntry = false;
        if (tooLong)
            setInvalidEntry();
        return;
    }
    const std::optional<double> number = textNumber();
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
    if (reformat)
        show(m_text->text());
}

void ctx_ZorTextBox::setInvalidEntry()
{
    m_invalidEntry = true;
    raise(kInvalidEntrySetTrue);
}

void ctx_ZorTextBox::assignEntry()
{
    if (m_invalidEntry)
        return;
    const std::optional<double> number = isNumeric() ? textNumber() : std::nullopt;
    if (!number)
        return assignOutput(m_text->text());
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

void ctx_ZorTextBox::offerUndo(const platform::Widget& widget, platform::EventArgs mouse)
{
    if (!m_text->isLocked() && m_status.enableControl)
        m_undo.offer(surface(), widget, mouse);
}

void ctx_ZorTextBox::undoEdit()
{
    if (!m_status.dataModified)
        return;
    show(m_displayValue);
    assignOutput(m_deviceValue);
}

} // namespace zor
