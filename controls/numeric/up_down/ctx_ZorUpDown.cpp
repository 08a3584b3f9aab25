#include <zor/controls/numeric/up_down/up_down_rows.h>
#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/temporarily.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <exception>
#include <limits>
#include <string>
#include <utility>

namespace zor {

using controls::EntryField;
using platform::Notice;

namespace {

/// The nearest number of 32 bits, which for a number beyond them is the last one.
std::int32_t nearestWhole(double number)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return roundToInt32(std::clamp<double>(number, Limits::min(), Limits::max()));
}

bool fits(double number) { return std::abs(number - nearestWhole(number)) <= 0.5; }

} // namespace

ctx_ZorUpDown::ctx_ZorUpDown(platform::Container& container)
    : RangeControl(classInfo(), container, EntryField::kDesignedWidth, EntryField::kDesignedHeight, LgthU_MM),
      m_field(surface()),
      m_spin(surface().createSpinButton(upd_UpDown)), m_body{&m_field.text(), &m_field.units(), m_spin.get()}
{
    m_field.text().setAlignment(platform::Alignment::Right);
    m_spin->setBuddy(m_field.text());
    s_UpdateColors();
    s_Layout();
}

core::ControlPtr<ctx_ZorUpDown> ctx_ZorUpDown::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorUpDown>(new ctx_ZorUpDown(container));
}

platform::Widget* ctx_ZorUpDown::widget(int number) noexcept
{
    if (number == upd_UpDown)
        return m_spin.get();
    platform::Widget* own = m_field.widget(number);
    return own != nullptr ? own : Control::widget(number);
}

// --- From the device to the operator

void ctx_ZorUpDown::DeviceValue(std::int32_t value) { write(Rows::DeviceValue, value); }

void ctx_ZorUpDown::s_ApplyDeviceValue()
{
    const auto underWay = newValue();
    testValue(m_deviceValue);
    if (isOvertaken(underWay))
        return;
    m_reference = roundToInt32(m_units.toOutput(m_deviceValue));
    if (!isUnitSettled())
        m_otherUser = nearestWhole(m_units.settled(m_otherUser));
    showNumber(m_reference);
    if (isOvertaken(underWay))
        return;
    spinTo(m_reference);
    if (isOvertaken(underWay))
        return;
    assignOutput(m_deviceValue);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = false;
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorUpDown::ModifiedValue(std::int32_t value)
{
    carryOut([&] {
        const auto underWay = newValue();
        if (!isUnitSettled())
            s_OutputUnitChanged();
        testValue(value);
        if (isOvertaken(underWay))
            return;
        showText(platform::doubleToText(m_units.toOutput(value)));
        if (isOvertaken(underWay))
            return;
        m_isEntry = false;
        if (const std::optional<double> number = m_field.number()) {
            spinToNumber(*number);
            if (isOvertaken(underWay))
                return;
            assignOutput(value);
        }
        s_UpdateColors();
        s_UpdateStatusDisplay();
    });
}

void ctx_ZorUpDown::showText(std::string_view text)
{
    const platform::Temporarily showing(m_isShowing, true);
    writeWidget([&] { m_field.text().setText(text); });
}

void ctx_ZorUpDown::showNumber(std::int32_t number)
{
    std::array<char, 11> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    // What has just been written need not be read: ten thousand fields are refreshed many times a second.
    m_written = number;
    showText({digits.data(), static_cast<std::size_t>(end - digits.data())});
    m_written.reset();
    m_isEntry = false;
}

void ctx_ZorUpDown::assignOutput(std::int32_t value)
{
    m_outputValue = value;
    raise(raised().outputValueChange);
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
        // All or nothing: from a unit in which something does not fit, the way back changes nothing.
        const std::int32_t reference = roundToInt32(m_units.reExpress(m_reference));
        const std::int32_t otherUser = roundToInt32(m_units.reExpress(m_otherUser));
        const std::string text = platform::doubleToText(m_units.reExpress(*number));
        // The limits before the text: who hears of the text must find both in one unit. What does not fit is told
        // when the text is there.
        std::exception_ptr failure;
        try {
            m_units.reExpressLimits();
        } catch (const RunTimeError&) {
            failure = std::current_exception();
        }
        m_reference = reference;
        m_otherUser = otherUser;
        m_units.previousOutputUnit = m_units.outputUnit;
        showText(text);
        if (failure)
            std::rethrow_exception(failure);
        return s_UpdateSpin();
    }
    m_units.previousOutputUnit = m_units.limitsUnit = m_units.outputUnit;
}

void ctx_ZorUpDown::s_UpdateSpin()
{
    const std::optional<double> number = m_field.number();
    if (!number)
        return;
    const std::int32_t value = roundToInt32(*number);
    const std::int32_t lower = nearestWhole(m_units.minParam);
    const std::int32_t upper = nearestWhole(m_units.maxParam);
    const std::int32_t target = std::max(std::min(value, upper), lower);
    const std::int32_t before = m_spin->value();
    // Ends and value are one step: who hears of it finds both, and may write any value of the new unit. An end
    // that does not fit stays where it holds nothing back.
    {
        const platform::Temporarily quiet(m_isSpinQuiet, true);
        spinFrom(std::min(m_spin->minimum(), target));
        spinUpTo(std::max(m_spin->maximum(), target));
        spinTo(target);
        if (fits(m_units.minParam))
            spinFrom(lower);
        if (fits(m_units.maxParam))
            spinUpTo(upper);
    }
    if (m_spin->value() != before)
        forward(upd_UpDown, Notice::Change, {});
    // What does not fit is told.
    static_cast<void>(roundToInt32(m_units.minParam));
    static_cast<void>(roundToInt32(m_units.maxParam));
}

void ctx_ZorUpDown::s_UpdateMinParamValue()
{
    m_units.settleLimits();
    m_units.updateMinParam();
    spinFrom(roundToInt32(m_units.minParam));
}

void ctx_ZorUpDown::s_UpdateMaxParamValue()
{
    m_units.settleLimits();
    m_units.updateMaxParam();
    spinUpTo(roundToInt32(m_units.maxParam));
}

// --- Spin button

void ctx_ZorUpDown::spinTo(std::int32_t value)
{
    m_spin->setValue(value);
    settleSpin();
}

void ctx_ZorUpDown::spinToNumber(double number)
{
    // The button cuts to its own limits, which are never wider.
    spinTo(nearestWhole(number));
}

void ctx_ZorUpDown::spinFrom(std::int32_t minimum)
{
    m_spin->setMinimum(minimum);
    keepSpinWithin();
}

void ctx_ZorUpDown::spinUpTo(std::int32_t maximum)
{
    m_spin->setMaximum(maximum);
    keepSpinWithin();
}

void ctx_ZorUpDown::keepSpinWithin()
{
    // Not the button's own value: a step that is under way may still be undone.
    m_spinValue = std::max(std::min(m_spinValue, m_spin->maximum()), m_spin->minimum());
    m_stepOvertaken = false;
}

void ctx_ZorUpDown::settleSpin()
{
    m_spinValue = m_spin->value();
    m_stepOvertaken = false;
}

void ctx_ZorUpDown::onSpin()
{
    if (isInputLocked() || m_stepOvertaken) {
        // The step is undone without a word: the host has not seen a value change.
        const platform::Temporarily quiet(m_isSpinQuiet, true);
        spinTo(m_spinValue);
        return;
    }
    const auto underWay = valueUnderWay();
    settleSpin();
    showNumber(m_spinValue);
    if (isOvertaken(underWay))
        return;
    assignEntry(m_spinValue);
    if (isOvertaken(underWay))
        return;
    judge(m_spinValue != m_reference);
    s_UpdateColors();
}

// --- What the operator does

void ctx_ZorUpDown::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == txt_TextBox && notice == Notice::Change)
        return onTextChanged();
    if (widget == upd_UpDown && notice == Notice::Change) {
        const auto underWay = valueUnderWay();
        if (!m_isSpinQuiet)
            forward(widget, notice, args);
        m_stepOvertaken = isOvertaken(underWay);
        return;
    }
    m_field.followFocus(widget, notice);
    if (widget == txt_TextBox && notice == Notice::LostFocus)
        s_CommitEntry();
    else if (widget == upd_UpDown && (notice == Notice::SpinUp || notice == Notice::SpinDown))
        onSpin();
    UnitControl::onNotice(widget, notice, args);
}

void ctx_ZorUpDown::onTextChanged()
{
    m_editPending = true;
    if (!std::exchange(m_isShowing, false))
        m_isEntry = true;
    const std::optional<std::int32_t> written = std::exchange(m_written, std::nullopt);
    if (written) {
        judge(*written != m_reference);
    } else if (const std::optional<double> number = m_field.number()) {
        judge(roundToInt32(*number) != m_reference);
    } else {
        return;
    }
    s_UpdateColors();
    raise(raised().changed);
}

void ctx_ZorUpDown::s_CommitEntry()
{
    // A text of the control's own counts as an edit, too; but to a read-only parameter only the operator hands
    // something back, who was at work before it became one.
    if (!m_editPending || (isReadOnlyForOperator() && !m_isEntry))
        return;
    const auto underWay = valueUnderWay();
    if (const std::optional<double> number = m_field.number()) {
        if (const double taken = cut(*number); taken != *number)
            showNumber(roundToInt32(taken));
        // What is shown by then: who heard of it may have chosen another unit, or moved the limits.
        const auto shown = [&] { return isOvertaken(underWay) ? std::nullopt : m_field.number(); };
        if (const std::optional<double> taken = shown())
            spinToNumber(cut(*taken));
        if (const std::optional<double> taken = shown())
            assignEntry(*taken);
    } else {
        showNumber(m_spin->value());
    }
    m_editPending = false;
    m_isEntry = false;
}

double ctx_ZorUpDown::cut(double number) const
{
    return std::max<double>(std::min<double>(number, m_spin->maximum()), m_spin->minimum());
}

std::optional<Variant> ctx_ZorUpDown::entryUnderWay() const
{
    const std::optional<double> number = m_field.number();
    if (!m_isEntry || !number)
        return {};
    try {
        return roundToInt32(m_units.toDevice(roundToInt32(cut(*number))));
    } catch (const RunTimeError&) {
        return {};
    }
}

void ctx_ZorUpDown::undoEdit()
{
    if (!m_status.dataModified)
        return;
    const auto underWay = newValue();
    showNumber(m_reference);
    if (!isOvertaken(underWay))
        spinTo(m_reference);
    if (isOvertaken(underWay))
        return;
    // A field that shows the device's value already does not report: the flag came from elsewhere.
    m_status.dataModified = false;
    s_UpdateColors();
    assignOutput(m_deviceValue);
}

// --- Properties

void ctx_ZorUpDown::OutputValue(std::int32_t value) { write(Rows::OutputValue, value); }
void ctx_ZorUpDown::OtherUserValue(std::int32_t value) { write(Rows::OtherUserValue, value); }
void ctx_ZorUpDown::NumberOfDigits(std::int16_t value) { write(Rows::NumberOfDigits, value); }
void ctx_ZorUpDown::WidthDifference(std::int16_t value) { write(Rows::WidthDifference, value); }

} // namespace zor
