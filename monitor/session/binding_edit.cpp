// The operator's side of a binding: what he has entered, and how it is shown.

#include <zor/monitor/session/binding.h>
#include <zor/monitor/session/control_values.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <utility>

namespace zor::monitor {

bool Binding::isModified() const
{
    return m_parameter != nullptr && m_row.modified != nullptr && m_control.get(*m_row.modified).toBoolean();
}

bool Binding::isInvalid() const { return m_row.invalid != nullptr && m_control.get(*m_row.invalid).toBoolean(); }

std::uint32_t Binding::bitsAsTheyLie() const
{
    const Location& location = m_parameter->location;
    if (location.type == ValueType::Bit)
        return 1;
    const bool ofBits = m_row.bitIndex != nullptr || m_control.info().method("AddBitFieldEntry") != nullptr;
    if (!ofBits || !isInteger(location.type) || m_parameter->scale != 1)
        return 0;
    return location.registers == 1 ? std::uint32_t{UINT16_MAX} : UINT32_MAX;
}

Edit Binding::edit() const
{
    Edit edit{entry()};
    const std::uint32_t own = bitsAsTheyLie();
    if (own == 0 || isInvalid())
        return edit;
    edit.bits = static_cast<std::uint32_t>(edit.value.toInt32());
    if (m_parameter->location.type == ValueType::Bit)
        edit.mask = edit.bits <= 1 ? 1 : 0;
    else
        edit.mask = (edit.bits ^ static_cast<std::uint32_t>(m_control.get(*m_row.value).toInt32())) & own;
    return edit;
}

std::optional<std::string> Binding::typedText() const
{
    for (const core::WidgetRow& row : m_control.info().widgets) {
        if (const auto* field = dynamic_cast<platform::TextField*>(m_control.widget(row.widget)))
            return field->text();
    }
    return std::nullopt;
}

Range Binding::limits() const
{
    const auto lower = getIfThere("MinValue");
    const auto upper = getIfThere("MaxValue");
    if (lower && upper && *lower != *upper) {
        const MEAS_TYPE unit{m_control.property("DefaultUnit").toInt32()};
        const auto inDevice = [&](const Variant& limit) {
            return convert(limit.number(), m_parameter->unitType, unit, m_parameter->unit);
        };
        return {inDevice(*lower), inDevice(*upper)};
    }
    const auto [lowest, highest] = rangeOf(*m_parameter);
    return {m_parameter->appearance.minimum.value_or(lowest), m_parameter->appearance.maximum.value_or(highest)};
}

Variant Binding::entry() const { return m_typed.value().value_or(m_control.get(*m_row.output)); }

void Binding::showEntry(const Variant& value)
{
    putIfThere("ModifiedValue", value);
    // Where both look the same, the control takes it for none.
    setFlag(m_row.modified, true);
}

void Binding::takeTyped()
{
    if (isModified() || shown.empty() || m_parameter->location.type == ValueType::Bit)
        return;
    // The control compares with what it shows; what the device holds may be something else.
    const Encoded typed = encode(*m_parameter, entry());
    if (typed.unfit == Unfit::No && typed.registers != seen)
        setFlag(m_row.modified, true);
    else
        showValue(Registers(shown), {});
}

MEAS_TYPE Binding::shownUnit() const
{
    const MEAS_TYPE unit = outputUnit();
    return unit == NoneU && m_parameter != nullptr ? m_parameter->unit : unit;
}

MEAS_TYPE Binding::outputUnit() const
{
    if (m_row.unit != nullptr)
        return MEAS_TYPE{m_control.get(*m_row.unit).toInt32()};
    return m_textUnit;
}

void Binding::showIn(MEAS_TYPE unit, const std::string& language)
{
    m_textUnit = unit;
    putIfThere("OutputUnit", static_cast<std::int32_t>(unit));
    quietly([&] { renewLimits(m_control); });
    // The control converts the text that it shows; from the value itself no rounding adds up.
    if (isModified() && !isInvalid())
        showEntry(entry());
    else if (!isModified() && !shown.empty())
        showValue(Registers(shown), language);
}

void Binding::refresh(const std::string& language)
{
    putIfThere("MessageHeader", m_parameter != nullptr ? m_parameter->captionIn(language) : m_control.DeviceTag());
    if (m_parameter == nullptr)
        return;
    // Filling a list anew moves its selection, and that must not become the operator's choice.
    const bool modified = isModified();
    const Variant output = modified ? entry() : Variant();
    const bool valid = !isInvalid();
    applyEntries(language);
    if (modified && valid)
        showEntry(output);
    else if (!modified && shown.empty())
        showNothing();
    else if (!modified)
        showValue(Registers(shown), language);
}

void Binding::follow(const Variant& chosen) { putIfThere("ModifiedValue", chosen); }

bool Binding::propose(std::span<const std::uint16_t> registers)
{
    if (m_row.modified == nullptr || shown.empty())
        return false;
    try {
        const Variant value = valueFor(registers, {});
        putIfThere("ModifiedValue", value);
        if (isChoice())
            return true; // the button that is pressed by it holds the edit
        setFlag(m_row.modified, true);
        if (m_row.value->field.kind == core::ValueKind::Any)
            m_typed.put(value);
    } catch (const RunTimeError&) {
        return false;
    }
    return isModified();
}

void Binding::event(core::Control& control, const core::EventRow& row, platform::EventArgs /*args*/)
{
    const core::RaisedEvents& raised = control.info().raised;
    const bool chosen = &row == raised.outputValueChange;
    const bool flagged = &row == raised.dataModifiedSetTrue || &row == raised.dataModifiedReset;
    const bool edited = chosen || flagged || &row == raised.changed;
    // A value that is shown is no edit, though it may end one.
    if (onEdit && (m_quiet.isNone() ? edited : flagged))
        onEdit();
    if (!m_quiet.isNone())
        return;
    bool typed = false;
    if (m_parameter != nullptr)
        quietly([&] { typed = m_typed.hear(row); });
    if (typed)
        takeTyped();
    if (edited)
        ++m_actions;
    if (chosen && isChoice() && onChosen)
        onChosen(control.get(*m_row.output));
}

} // namespace zor::monitor
