#include <zor/monitor/session/binding.h>
#include <zor/monitor/session/control_values.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <array>
#include <utility>

namespace zor::monitor {
namespace {

/// How the outcome of a read shows: {communication failure, no data, waiting}.
struct OutcomeRow {
    std::optional<bool> cFail;
    std::optional<bool> noData;
    bool waiting;
};

// In the order of ReadOutcome. What a row leaves open stays as it was.
constexpr std::array<OutcomeRow, 6> kOutcomes{{
    {false, false, false},              // Live
    {false, true, false},               // NotAvailable
    {false, true, true},                // Busy
    {true, std::nullopt, false},        // NoAnswer
    {std::nullopt, std::nullopt, true}, // Late
    {false, true, false}                // NoValue
}};

} // namespace

Binding::Binding(core::Control& control, const Parameter* parameter)
    : m_control(control), m_parameter(parameter), m_texts(control), m_typed(control)
{
    const core::ClassInfo& info = control.info();
    m_row = {info.property("DeviceValue"),        info.property("OutputValue"),    info.property("DataModified"),
             info.property("DataChanged"),        info.property("OtherUserValue"), info.property("CFail"),
             info.property("DataNotAvailable"),   info.property("WaitingForData"), info.property("EnumEntryValue"),
             info.property("BitFieldEntryIndex"), info.property("InvalidEntry"),   info.property("OutputUnit")};
    if (m_row.invalid == nullptr)
        m_row.invalid = info.property("InvalidValue");
    if (m_row.modified != nullptr)
        m_control.subscribe(*this);
    if (parameter != nullptr)
        m_textUnit = parameter->appearance.unit;
}

Binding::~Binding()
{
    if (m_row.modified != nullptr)
        m_control.unsubscribe(*this);
}

bool Binding::has(std::string_view property) const { return m_control.info().property(property) != nullptr; }

void Binding::putIfThere(std::string_view property, const Variant& value)
{
    if (const core::PropertyRow* row = m_control.info().property(property))
        quietly([&] { m_control.put(*row, value); });
}

std::optional<Variant> Binding::getIfThere(std::string_view property) const
{
    const core::PropertyRow* row = m_control.info().property(property);
    return row != nullptr ? std::optional(m_control.get(*row)) : std::nullopt;
}

void Binding::setFlag(const core::PropertyRow* row, bool value)
{
    // A write that changes nothing would still paint.
    if (row != nullptr && m_control.get(*row).toBoolean() != value)
        quietly([&] { m_control.put(*row, value); });
}

void Binding::applyFile()
{
    if (m_parameter == nullptr) {
        putIfThere("DeviceTagNotFound", true);
        return;
    }
    setFlag(m_row.waiting, true);
    const REGISTER_TYPE kind = isReadOnly(m_parameter->location.bank) ? InputRegister : HoldingRegister;
    putIfThere("RegisterType", static_cast<std::int32_t>(kind));
    if (!m_parameter->writable)
        putIfThere("ReadOnly", true);
    // Nothing is known of the device: a control that some devices do not have waits until there is one that has
    // it.
    quietly([&] {
        m_control.DeviceType(m_control.DeviceType());
        m_control.DeviceVersion(m_control.DeviceVersion());
    });
    if (m_parameter->location.type == ValueType::Text) {
        putIfThere("EntryType", static_cast<std::int32_t>(ENTRY_TYPE::Text));
        putIfThere("MaxLength", static_cast<std::int32_t>(m_parameter->location.registers) * 2);
        return showNothing();
    }
    // The form chooses the unit that the operator sees; one of another kind than the parameter's makes no sense.
    // Without one it shows the device's numbers, with the decimals that it was given.
    const MEAS_TYPE wanted = outputUnit();
    // Of a single bit the value is 0 or 1, wherever in its register it lies: a form must not count from there.
    if (m_parameter->location.type == ValueType::Bit)
        putIfThere("BitFieldEntryIndex", 0);
    putIfThere("UnitType", static_cast<std::int32_t>(m_parameter->unitType));
    putIfThere("DeviceUnit", static_cast<std::int32_t>(m_parameter->unit));
    const auto* type = units::rowOf(m_parameter->unitType);
    const auto number = static_cast<std::int32_t>(wanted);
    if (wanted != NoneU && (type == nullptr || number < type->first || number > type->last))
        putIfThere("OutputUnit", static_cast<std::int32_t>(m_parameter->unit));
    quietly([&] { applyLimits(m_control, *m_parameter); });
    showNothing();
}

void Binding::applyEntries(const std::string& language)
{
    if (m_parameter == nullptr)
        return;
    const core::ClassInfo& info = m_control.info();
    const core::MethodRow* addBit = info.method("AddBitFieldEntry");
    const core::MethodRow* addValue = info.method("AddEnumEntry");
    const auto call = [&](std::string_view method, std::initializer_list<Variant> arguments) {
        quietly([&] { m_control.call(method, std::span<const Variant>(arguments.begin(), arguments.size())); });
    };
    if (addValue != nullptr) {
        m_stranger.reset();
        call("ClearEnumList", {});
        for (const Entry& entry : m_parameter->entries)
            call("AddEnumEntry", {entry.text.in(language), entry.value});
    }
    if (addBit == nullptr)
        return;
    constexpr std::size_t kIndexed = 3;
    if (addBit->argumentCount == kIndexed) {
        const auto count = static_cast<std::int16_t>(m_parameter->bits.size());
        call("MaxEntries", {count});
        for (std::int16_t i = 0; i < count; ++i) {
            const Entry& bit = m_parameter->bits[static_cast<std::size_t>(i)];
            call("AddBitFieldEntry", {bit.text.in(language), static_cast<std::int16_t>(bit.value), i});
        }
        return;
    }
    call("ClearBitFieldList", {});
    for (const Entry& bit : m_parameter->bits)
        call("AddBitFieldEntry", {bit.text.in(language), static_cast<std::int16_t>(bit.value)});
}

void Binding::showOutcome(ReadOutcome outcome)
{
    const OutcomeRow& row = kOutcomes[static_cast<std::size_t>(outcome)];
    explain(outcome == ReadOutcome::Busy);
    if (row.cFail)
        setFlag(m_row.cFail, *row.cFail);
    if (row.noData)
        setFlag(m_row.noData, *row.noData || (m_unfit && outcome == ReadOutcome::Live));
    // Waiting freezes a control. Nobody is thrown out of a field that he works in, nor kept out of one whose value
    // is known only because the device is slow.
    const bool keepsOpen = outcome == ReadOutcome::Late && m_parameter->writable && !shown.empty();
    setFlag(m_row.waiting, row.waiting && !keepsOpen && !isInHand() && !m_typed.hasFocus());
    // Leaving a field of whole numbers fills it.
    if (shown.empty() && !isInHand() && m_row.value->field.kind == core::ValueKind::Int32)
        showNothing();
}

void Binding::await()
{
    setFlag(m_row.cFail, false);
    setFlag(m_row.waiting, !isInHand() && !m_typed.hasFocus());
}

void Binding::explain(bool busy)
{
    const bool strange = m_stranger && isChoice();
    m_texts.explainNoData(busy      ? "MSG_DEVICEBUSY"
                          : strange ? "MSG_NOENTRY"
                                    : "",
                          strange && !busy ? std::to_string(*m_stranger) : std::string());
}

void Binding::showNothing()
{
    shown.clear();
    seen.clear();
    m_typed.forget();
    m_unfit = m_isOfOtherDevice = false;
    quietly([&] {
        dropStranger();
        monitor::showNothing(m_control);
    });
    if (!isChoice())
        setFlag(m_row.modified, false);
}

std::string Binding::textOf(std::span<const std::uint16_t> registers, const std::string& language,
                            std::uint32_t mask) const
{
    const ShownValue value = describe(*m_parameter, registers, shownUnit(), language, mask);
    const std::string_view label = fc_GetUnitLabel(value.unit);
    return label.empty() ? value.text : value.text + ' ' + std::string(label);
}

Variant Binding::valueFor(std::span<const std::uint16_t> registers, const std::string& language) const
{
    const core::ValueKind kind = m_row.value->field.kind;
    if (kind == core::ValueKind::Text && m_parameter->location.type != ValueType::Text)
        return textOf(registers, language);
    const bool integer = kind == core::ValueKind::Int32 && m_row.unit == nullptr && m_parameter->scale == 1;
    if (integer && (isInteger(m_parameter->location.type) || m_parameter->location.type == ValueType::Bit))
        return decodeInteger(m_parameter->location, registers);
    return decode(*m_parameter, registers);
}

bool Binding::showValue(std::span<const std::uint16_t> registers, const std::string& language)
{
    shown = seen = Registers(registers.begin(), registers.end());
    m_typed.forget();
    m_isOfOtherDevice = false;
    m_unfit = true;
    quietly([&] {
        dropStranger();
        try {
            const Variant value = valueFor(registers, language);
            if (!value.isEmpty()) {
                m_control.put(*m_row.value, value);
                m_unfit = false;
                nameStranger(value);
            }
        } catch (const RunTimeError&) {
            // A device may send what is no number of this unit, or more than the control can hold.
        }
        if (m_unfit && !m_stranger)
            monitor::showNothing(m_control);
    });
    explain(false);
    setFlag(m_row.noData, m_unfit);
    return !m_unfit;
}

void Binding::nameStranger(const Variant& value)
{
    const bool isList = m_control.info().method("AddEnumEntry") != nullptr;
    if (m_parameter->entries.empty() || !(isList || isChoice()))
        return;
    const std::int32_t number = value.toInt32();
    if (std::ranges::find(m_parameter->entries, number, &Entry::value) != m_parameter->entries.end())
        return;
    m_stranger = number;
    // A list shows the number, with the control's own sign that it is none of the entries; buttons have no place
    // for one but their explanation.
    if (isList)
        m_control.call("AddEnumEntry", std::array<Variant, 2>{std::to_string(number), number});
    else
        m_unfit = true;
}

void Binding::dropStranger()
{
    if (m_stranger && m_control.info().method("RemoveEnumEntry") != nullptr)
        m_control.call("RemoveEnumEntry", std::array<Variant, 1>{*m_stranger});
    m_stranger.reset();
}

void Binding::tellOther(std::span<const std::uint16_t> registers, const std::string& language)
{
    if (m_row.changed == nullptr)
        return;
    const std::uint32_t mask =
        m_row.bitIndex != nullptr && m_parameter->location.type != ValueType::Bit
            ? decodeBits(m_parameter->location, relevant(Registers(registers.size(), UINT16_MAX)))
            : 0;
    quietly([&] { m_texts.explainChange(textOf(registers, language, mask)); });
    if (m_row.other != nullptr) {
        try {
            Variant value = valueFor(registers, {});
            if (m_row.bitIndex != nullptr)
                value = decodeBits(m_parameter->location, relevant(registers)) != 0;
            else if (m_row.unit != nullptr && value.isNumber())
                value = convert(value.number(), m_parameter->unitType, m_parameter->unit, shownUnit());
            quietly([&] { m_control.put(*m_row.other, value); });
        } catch (const RunTimeError&) {
            // The flag alone must do: the other value does not fit the control.
        }
    }
    quietly([&] { m_control.put(*m_row.changed, true); });
}

void Binding::tellOtherDevice()
{
    quietly([&] { m_texts.explainChange({}); });
    setFlag(m_row.changed, true);
    m_isOfOtherDevice = true;
}

void Binding::forgetOther()
{
    setFlag(m_row.changed, false);
    m_isOfOtherDevice = false;
}

Registers Binding::relevant(std::span<const std::uint16_t> registers) const
{
    std::uint32_t mask = 0;
    if (m_parameter->location.type == ValueType::Bit) {
        mask = 1;
    } else if (m_row.bitIndex != nullptr) {
        const std::int32_t bit = m_control.get(*m_row.bitIndex).toInt32();
        mask = bit >= 0 && bit <= kHighestBit ? 1U << static_cast<unsigned>(bit) : 0;
    } else {
        return {registers.begin(), registers.end()};
    }
    const Registers none(registers.size(), 0);
    return mergeBits(m_parameter->location, none, mask, decodeBits(m_parameter->location, registers));
}

} // namespace zor::monitor
