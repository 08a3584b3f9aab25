#include <zor/controls/numeric/text_box/text_box_rows.h>
#include <zor/platform/regional.h>
#include <zor/platform/temporarily.h>

#include <bit>

namespace zor {

using controls::EntryField;
using platform::Alignment;

ctx_ZorTextBox::ctx_ZorTextBox(platform::Container& container)
    : UnitControl(classInfo(), container, EntryField::kDesignedWidth, EntryField::kDesignedHeight, LgthU_1By10_MM),
      m_field(surface()), m_body{&m_field.text(), &m_field.units()}
{
    s_AlignText();
    s_UpdateColors();
    s_Layout();
}

core::ControlPtr<ctx_ZorTextBox> ctx_ZorTextBox::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorTextBox>(new ctx_ZorTextBox(container));
}

platform::Widget* ctx_ZorTextBox::widget(int number) noexcept
{
    platform::Widget* own = m_field.widget(number);
    return own != nullptr ? own : Control::widget(number);
}

// --- From the device to the operator

void ctx_ZorTextBox::DeviceValue(const Variant& value) { write(Rows::DeviceValue, value); }

void ctx_ZorTextBox::s_ApplyDeviceValue()
{
    const auto underWay = newValue();
    const std::optional<double> number = isNumeric() ? validNumber(m_deviceValue) : std::nullopt;
    // What can fail comes first: a value that is refused changes nothing.
    const double output = number ? m_units.toOutput(*number) : 0.0;
    if (number && hasPattern(m_units.outputUnit)) {
        formatDisplayValue(output);
    } else {
        m_formatted.reset();
        m_displayValue = number ? Variant() : m_deviceValue;
    }
    m_shownDisplay.reset();
    m_deviceValueUnit = m_units.deviceUnit;
    m_source = Source::Device;
    if (m_formatted) {
        // What has been formatted formats to itself: ten thousand fields are refreshed many times a second.
        m_field.text().setAlignment(Alignment::Right);
        setText(m_displayValue.text());
    } else {
        show(m_displayValue);
    }
    if (isOvertaken(underWay))
        return;
    // A unit without a display pattern shows nothing: then there is nothing to hand back either.
    if (!number || showsDisplayValue() || m_field.number())
        assignOutput(m_deviceValue);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = false;
    m_invalidEntry = false;
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorTextBox::formatDisplayValue(double number)
{
    const Formatted from{std::bit_cast<std::uint64_t>(number), m_units.outputUnit, m_numberOfDigits,
                         platform::regionalRevision()};
    if (m_formatted == from)
        return;
    m_displayValue = formatValueText(number, m_units.outputUnit, m_numberOfDigits);
    m_formatted = from;
}

Variant ctx_ZorTextBox::fv_FormatDisplayValue(const Variant& value, MEAS_TYPE unit)
{
    const std::optional<double> number = isNumeric() ? validNumber(value) : std::nullopt;
    m_field.text().setAlignment(number ? Alignment::Right : Alignment::Left);
    return number ? fc_FormatValue(*number, unit, m_numberOfDigits) : value;
}

void ctx_ZorTextBox::show(const Variant& value)
{
    const Variant shown = fv_FormatDisplayValue(value, m_units.outputUnit);
    if (shown.isText())
        setText(shown.text());
    else
        setText(shown.toText());
}

void ctx_ZorTextBox::setText(std::string_view text)
{
    const platform::Temporarily showing(m_isShowing, true);
    m_field.text().setText(text);
}

void ctx_ZorTextBox::assignOutput(const Variant& value)
{
    m_outputValue = value;
    raise(raised().outputValueChange);
}

bool ctx_ZorTextBox::showsDisplayValue() const
{
    return m_displayValue.isText() && m_displayValue.text() == m_field.text().text();
}

bool ctx_ZorTextBox::equalsDisplayValue() const
{
    if (!isNumeric())
        return m_displayValue.isText() ? showsDisplayValue() : m_displayValue.toText() == m_field.text().text();
    // What has been formatted is a number and need not be read, unless the region has changed since.
    if (m_formatted && m_formatted->settings == platform::regionalRevision() && showsDisplayValue())
        return true;
    const std::optional<double> text = m_field.number();
    if (!text)
        return false;
    return showsDisplayValue() || text == validNumber(m_displayValue) ||
           (m_shownDisplay && text == validNumber(std::string_view(*m_shownDisplay)));
}

void ctx_ZorTextBox::ModifiedValue(const Variant& value)
{
    core::requireFinite(value);
    carryOut([&] {
        const auto underWay = newValue();
        const std::optional<double> number = validNumber(value);
        const Variant output = number ? Variant(m_units.toOutput(*number)) : value;
        m_source = Source::Output;
        show(output);
        if (isOvertaken(underWay))
            return;
        if (!number || m_field.number())
            assignOutput(value);
        s_UpdateColors();
        s_UpdateStatusDisplay();
    });
}

// --- Units

void ctx_ZorTextBox::s_DeviceUnitChanged()
{
    if (const std::optional<double> number = m_field.number())
        assignOutput(m_units.toDevice(*number));
}

void ctx_ZorTextBox::s_OutputUnitChanged()
{
    const std::optional<double> text = m_field.number();
    const std::optional<double> display = validNumber(m_displayValue);
    if (!text || !display)
        return;
    const double newText = m_units.reExpress(*text);
    const double newDisplay = m_units.reExpress(*display);
    const double newMinimum = m_units.reExpress(m_units.minParam);
    const double newMaximum = m_units.reExpress(m_units.maxParam);
    // The limits before the text: who hears of the text must find both in one unit.
    m_units.minParam = newMinimum;
    m_units.maxParam = newMaximum;
    m_units.previousOutputUnit = m_units.outputUnit;
    m_displayValue = newDisplay;
    m_formatted.reset();
    m_shownDisplay.reset();
    // Showing the same value in another unit is no edit, even though rounding may part text and value.
    const bool modified = m_status.dataModified;
    const auto underWay = valueUnderWay();
    show(newText);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = modified;
    m_shownDisplay = fc_FormatValue(m_displayValue, m_units.outputUnit, m_numberOfDigits).toText();
    s_UpdateColors();
}

void ctx_ZorTextBox::s_AfterOutputUnit()
{
    UnitControl::s_AfterOutputUnit();
    // For the alignment only.
    static_cast<void>(fv_FormatDisplayValue(m_field.text().text(), m_units.outputUnit));
}

void ctx_ZorTextBox::s_UpdateLimits()
{
    // Both or neither.
    const double lower = m_units.limitToOutput(m_units.minValue);
    m_units.updateMaxParam();
    m_units.minParam = lower;
}

// --- Texts of the states

void ctx_ZorTextBox::appendDisplayValue(std::string& text) const
{
    if (m_displayValue.isText())
        text += m_displayValue.text();
    else
        text += m_displayValue.toText();
}

std::string ctx_ZorTextBox::rangeText() const
{
    const std::string_view unit = fc_GetUnitLabel(m_units.outputUnit);
    std::string text = m_entryMessages.invalid;
    text.append("  ").append(Variant(m_units.minParam).toText()).append(" ").append(unit);
    text.append(" ").append(m_entryMessages.to.text()).append(" ");
    text.append(Variant(m_units.maxParam).toText()).append(" ").append(unit);
    return text;
}

// --- Properties

void ctx_ZorTextBox::OutputValue(const Variant& value) { write(Rows::OutputValue, value); }
void ctx_ZorTextBox::EntryType(ENTRY_TYPE value) { write(Rows::EntryType, value); }
void ctx_ZorTextBox::NumberOfDigits(std::int16_t value) { write(Rows::NumberOfDigits, value); }
void ctx_ZorTextBox::NumberOfDecimals(std::int16_t value) { write(Rows::NumberOfDecimals, value); }
void ctx_ZorTextBox::InvalidEntryEnable(bool value) { write(Rows::InvalidEntryEnable, value); }
void ctx_ZorTextBox::InvalidEntry(bool value) { write(Rows::InvalidEntry, value); }
void ctx_ZorTextBox::MaxLength(std::int16_t value) { write(Rows::MaxLength, value); }
void ctx_ZorTextBox::TextFontBold(bool value) { write(Rows::TextFontBold, value); }
void ctx_ZorTextBox::WidthDifference(std::int16_t value) { write(Rows::WidthDifference, value); }
void ctx_ZorTextBox::MsgInvalidEntry(std::string_view value) { write(Rows::MsgInvalidEntry, value); }
void ctx_ZorTextBox::MsgInvalidEntryTo(std::string_view value) { write(Rows::MsgInvalidEntryTo, value); }
void ctx_ZorTextBox::MsgInvalidEntryNAN(std::string_view value) { write(Rows::MsgInvalidEntryNAN, value); }
void ctx_ZorTextBox::MsgInvalidEntryForText(std::string_view value) { write(Rows::MsgInvalidEntryForText, value); }

std::string ctx_ZorTextBox::SelectedText() const { return m_field.text().selectedText(); }
void ctx_ZorTextBox::SelectedText(std::string_view value)
{
    carryOut([&] { m_field.text().replaceSelection(value); });
}
bool ctx_ZorTextBox::UnitsFontBold() const { return m_field.units().isBold(); }
void ctx_ZorTextBox::UnitsFontBold(bool value) { m_field.units().setBold(value); }

} // namespace zor
