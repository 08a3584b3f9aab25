#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/monitor/session/typed_entry.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <utility>

namespace zor::monitor {

bool TypedEntry::hear(const core::EventRow& row)
{
    using platform::Notice;
    switch (row.notice) {
    case Notice::GotFocus:
        m_focused = true;
        m_leaving = false;
        return false;
    case Notice::Validate: leave(); return false;
    case Notice::LostFocus: return take();
    default: break;
    }
    if (&row == m_control.info().raised.changed) {
        m_typing = true;
        m_leaving = false;
        m_value.reset();
    } else if (&row == m_control.info().raised.outputValueChange && !m_leaving) {
        // A choice, a step or an undone edit.
        forget();
    }
    return false;
}

void TypedEntry::forget()
{
    m_typing = false;
    m_value.reset();
}

void TypedEntry::put(Variant value)
{
    forget();
    m_value = std::move(value);
}

void TypedEntry::leave()
{
    m_leaving = true;
    if (!m_typing || m_control.info().method("s_ForceOutputValueUpdate") == nullptr)
        return;
    try {
        m_number = typedNumber();
        m_control.call("s_ForceOutputValueUpdate", {});
    } catch (const RunTimeError&) {
        // The control says itself that the entry is not valid.
    }
}

bool TypedEntry::take()
{
    m_focused = m_leaving = false;
    const std::optional<Variant> number = std::exchange(m_number, std::nullopt);
    if (!std::exchange(m_typing, false))
        return false;
    const core::PropertyRow* invalid = m_control.info().property("InvalidEntry");
    if (invalid == nullptr || !m_control.get(*invalid).toBoolean())
        m_value = number.value_or(m_control.property("OutputValue"));
    return m_value.has_value();
}

/// The control takes a number that looks like the device's for the device's; who typed 5 where 4.5 is shown as 5
/// means 5.
std::optional<Variant> TypedEntry::typedNumber() const
{
    const auto* field = dynamic_cast<platform::TextField*>(m_control.widget(ctx_ZorTextBox::txt_TextBox));
    if (field == nullptr || m_control.property("EntryType").toInt32() != static_cast<std::int32_t>(Numeric))
        return std::nullopt;
    const std::optional<double> number = validNumber(std::string_view(field->text()));
    if (!number)
        return std::nullopt;
    const auto integer = [this](std::string_view name) { return m_control.property(name).toInt32(); };
    return Variant(convert(*number, UNIT_TYPE{integer("UnitType")}, MEAS_TYPE{integer("OutputUnit")},
                           MEAS_TYPE{integer("DeviceUnit")}));
}

} // namespace zor::monitor
