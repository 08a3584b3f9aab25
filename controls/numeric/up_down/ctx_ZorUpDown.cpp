#include "controls/numeric/up_down/ctx_ZorUpDown.h"

#include "platform/number_text.h"

#include <array>
#include <charconv>
#include <utility>

namespace zor {

using controls::EntryField;
using platform::Notice;

// --- From the device to the operator

void ctx_ZorUpDown::s_ApplyDeviceValue()
{
    testValue(m_deviceValue);
    m_reference = roundToInt32(m_units.toOutput(m_deviceValue));
    showNumber(m_reference);
    spinToNumber(m_reference);
    assignOutput(m_deviceValue);
    m_status.dataModified = false;
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorUpDown::ModifiedValue(std::int32_t value)
{
    run([&] {
        testValue(value);
        showText(platform::doubleToText(m_units.toOutput(value)));
        if (const std::optional<double> number = m_field.number()) {
            spinToNumber(*number);
            assignOutput(value);
        }
        s_UpdateColors();
        s_UpdateStatusDisplay();
    });
}

void ctx_ZorUpDown::showText(std::string_view text)
{
    settle([&] { m_field.text().setText(text); });
}

void ctx_ZorUpDown::showNumber(std::int32_t number)
{
    std::array<char, 11> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    showText({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

void ctx_ZorUpDown::assignOutput(std::int32_t value)
{
    m_outputValue = value;
    raise(kOutputValueChange);
}

void ctx_ZorUpDown::assignEntry(double number)
{
    assignOutput(roundToInt32(m_units.toDevice(roundToInt32(number))));
}

// --- Units and limits

void ctx_ZorUpDown::s_DeviceUnitChanged()
{
    if (const std::optional<double> number = m_field.number())
        assignOutput(roundToInt32(m_units.toDevice(*number)));
}

void ctx_ZorUpDown::s_OutputUnitChanged()
{
    if (const std::optional<double> number = m_field.number()) {
        m_reference = roundToInt32(m_units.reExpress(m_reference));
        m_otherUser = roundToInt32(m_units.reExpress(m_otherUser));
        const double shown = m_units.reExpress(*number);
        showText(platform::doubleToText(shown));
        m_units.minParam = m_units.reExpress(m_units.minParam);
        m_units.maxParam = m_units.reExpress(m_units.maxParam);
        // The new limits first: the old ones would hold back the same value in the new unit.
        spinLimits(roundToInt32(m_units.minParam), roundToInt32(m_units.maxParam));
        spinTo(roundToInt32(shown));
    }
    m_units.previousOutputUnit = m_units.outputUnit;
}

void ctx_ZorUpDown::s_UpdateMinParamValue()
{
    m_units.updateMinParam();
    spinLimits(roundToInt32(m_units.minParam), m_spin->maximum());
}

void ctx_ZorUpDown::s_UpdateMaxParamValue()
{
    m_units.updateMaxParam();
    spinLimits(m_spin->minimum(), roundToInt32(m_units.maxParam));
}

// --- Spin button

void ctx_ZorUpDown::spinTo(std::int32_t value)
{
    m_spin->setValue(value);
    m_spinValue = m_spin->value();
}

void ctx_ZorUpDown::spinToNumber(double number)
{
    if (number > m_spin->maximum())
        spinTo(m_spin->maximum());
    else if (number < m_spin->minimum())
        spinTo(m_spin->minimum());
    else
        spinTo(roundToInt32(number));
}

void ctx_ZorUpDown::spinLimits(std::int32_t minimum, std::int32_t maximum)
{
    m_spin->setMinimum(minimum);
    m_spin->setMaximum(maximum);
    m_spinValue = m_spin->value();
}

void ctx_ZorUpDown::onSpin()
{
    if (isInputLocked()) {
        // The step is undone without a word: the host has not seen a value change.
        m_spinningBack = true;
        spinTo(m_spinValue);
        m_spinningBack = false;
        return;
    }
    m_spinValue = m_spin->value();
    showNumber(m_spinValue);
    assignEntry(m_spinValue);
    judge(m_spinValue != m_reference);
    s_UpdateColors();
}

// --- What the operator does

void ctx_ZorUpDown::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == EntryField::kText && notice == Notice::Change)
        return onTextChanged();
    if (widget == kSpin && notice == Notice::Change && m_spinningBack)
        return;
    m_field.followFocus(widget, notice);
    if (widget == EntryField::kText && notice == Notice::LostFocus)
        s_CommitEntry();
    else if (widget == kSpin && (notice == Notice::SpinUp || notice == Notice::SpinDown))
        onSpin();
    else if (widget == EntryField::kState && notice == Notice::Click)
        s_ExplainState();
    else if (widget == core::kUndoEdit)
        undoEdit();
    else if (notice == Notice::MouseUp && widget == platform::kSurfaceWidget)
        offerUndo(surface(), args);
    else if (notice == Notice::MouseUp && widget == EntryField::kUnits)
        offerUndo(m_field.units(), args);
    forward(widget, notice, args);
}

void ctx_ZorUpDown::onTextChanged()
{
    m_editPending = true;
    const std::optional<double> number = m_field.number();
    if (!number)
        return;
    judge(roundToInt32(*number) != m_reference);
    s_UpdateColors();
    raise(kShownChange);
}

void ctx_ZorUpDown::s_CommitEntry()
{
    // A device value counts as an edit, too; but to a read-only parameter nobody hands anything back.
    if (!m_editPending || isReadOnlyForOperator())
        return;
    if (const std::optional<double> number = m_field.number()) {
        spinToNumber(*number);
        if (*number > m_spin->maximum() || *number < m_spin->minimum())
            showNumber(m_spin->value());
        // The text again: a handler may have changed it meanwhile.
        if (const std::optional<double> entry = m_field.number())
            assignEntry(*entry);
    } else {
        showNumber(m_spin->value());
    }
    m_editPending = false;
}

void ctx_ZorUpDown::undoEdit()
{
    if (!m_status.dataModified)
        return;
    showNumber(m_reference);
    spinTo(m_reference);
    assignOutput(m_deviceValue);
}

} // namespace zor
