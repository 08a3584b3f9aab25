#include <zor/monitor/session/value_texts.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zor::monitor {
namespace {

std::string nameOf(const std::vector<Entry>& entries, std::int32_t value, const std::string& language)
{
    const auto found = std::ranges::find(entries, value, &Entry::value);
    return found == entries.end() ? std::string() : found->text.in(language);
}

std::string describeBits(const Parameter& parameter, std::uint32_t bits, const std::string& language,
                         std::uint32_t mask)
{
    std::string text;
    for (std::int32_t bit = 0; bit < 32; ++bit) {
        const std::uint32_t one = 1U << static_cast<unsigned>(bit);
        if (((mask == 0 ? bits : mask) & one) == 0)
            continue;
        std::string name = nameOf(parameter.bits, bit, language);
        if (name.empty())
            name = parameter.location.type == ValueType::Bit ? "" : std::to_string(bit);
        text.append(text.empty() ? "" : ", ").append(name);
        if (mask != 0)
            text.append(name.empty() ? "" : "=").append((bits & one) != 0 ? "1" : "0");
    }
    return text.empty() ? "-" : text;
}

/// A number of the device in the unit `shown`.
using DescribeNumber = std::string (*)(const Parameter&, double value, MEAS_TYPE shown);

std::string describeNumber(const Parameter& parameter, double value, MEAS_TYPE shown)
{
    const bool unitless = shown == NoneU;
    const bool whole = unitless && !parameter.appearance.digits && value == std::floor(value);
    const std::int16_t digits = whole ? std::int16_t{0} : parameter.appearance.digits.value_or(kUsualDigits);
    return formatValueText(convert(value, parameter.unitType, parameter.unit, shown), shown, digits);
}

std::string describeNumberExactly(const Parameter& parameter, double value, MEAS_TYPE shown)
{
    if (parameter.location.type == ValueType::Bit)
        return describeNumber(parameter, value, shown);
    constexpr std::int16_t kMostDigits = 15;
    const Encoded wanted = encode(parameter, value);
    const double number = convert(value, parameter.unitType, parameter.unit, shown);
    std::string usual = describeNumber(parameter, value, shown);
    const std::size_t point = usual.find_last_not_of("0123456789");
    const bool whole = point == std::string::npos || point == 0;
    for (std::size_t digits = whole ? 0 : usual.size() - point - 1; digits <= kMostDigits; ++digits) {
        std::string text = formatValueText(number, NoneU, static_cast<std::int16_t>(digits));
        const std::optional<double> read = validNumber(std::string_view(text));
        if (read && encode(parameter, convert(*read, parameter.unitType, shown, parameter.unit)).registers ==
                        wanted.registers)
            return text;
    }
    return usual;
}

/// The shortest text that reads back as the number, without an exponent as far as people read it so.
template <class Number>
std::string shortest(Number number)
{
    constexpr double kLeast = 1e-6;
    constexpr double kMost = 1e15;
    const double size = std::fabs(static_cast<double>(number));
    const bool plain = number == 0 || (size >= kLeast && size < kMost);
    std::array<char, 64> text{};
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number, format).ptr};
}

/// Scaling an integer leaves digits behind that neither the device nor the operator has put there.
double withoutRest(double value)
{
    constexpr int kExact = 15;
    std::array<char, 32> text{};
    char* const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kExact).ptr;
    std::from_chars(text.data(), end, value);
    return value;
}

std::string numberText(const Parameter& parameter, std::span<const std::uint16_t> registers)
{
    const double value = decode(parameter, registers).number();
    switch (parameter.location.type) {
    case ValueType::Float32: return shortest(static_cast<float>(value));
    case ValueType::Float64: return shortest(value);
    default: return shortest(withoutRest(value));
    }
}

ShownValue describeWith(DescribeNumber number, const Parameter& parameter,
                        std::span<const std::uint16_t> registers, MEAS_TYPE shown, const std::string& language,
                        std::uint32_t mask)
{
    if (registers.empty())
        return {"?", NoneU};
    if (mask != 0 || !parameter.bits.empty())
        return {describeBits(parameter, decodeBits(parameter.location, registers), language, mask), NoneU};
    if (!parameter.entries.empty()) {
        const std::int32_t value = decodeInteger(parameter.location, registers);
        const std::string name = nameOf(parameter.entries, value, language);
        return {name.empty() ? std::to_string(value) : name, NoneU};
    }
    const Variant value = decode(parameter, registers);
    if (!value.isNumber())
        return {value.isEmpty() ? "?" : value.text(), NoneU};
    try {
        return {number(parameter, value.number(), shown), shown};
    } catch (const RunTimeError&) {
        return {value.toText(), parameter.unit};
    }
}

} // namespace

std::int32_t decodeInteger(const Location& location, std::span<const std::uint16_t> registers)
{
    const std::uint32_t raw = decodeBits(location, registers);
    return location.type == ValueType::Int16 ? static_cast<std::int16_t>(raw) : static_cast<std::int32_t>(raw);
}

ShownValue describe(const Parameter& parameter, std::span<const std::uint16_t> registers, MEAS_TYPE shown,
                    const std::string& language, std::uint32_t mask)
{
    return describeWith(describeNumber, parameter, registers, shown, language, mask);
}

ShownValue describeExactly(const Parameter& parameter, std::span<const std::uint16_t> registers, MEAS_TYPE shown,
                           const std::string& language, std::uint32_t mask)
{
    return describeWith(describeNumberExactly, parameter, registers, shown, language, mask);
}

std::string recordText(const Parameter& parameter, std::span<const std::uint16_t> registers, std::uint32_t mask)
{
    const bool named = mask != 0 || !parameter.bits.empty() || !parameter.entries.empty();
    if (named || registers.empty() || !decode(parameter, registers).isNumber())
        return describe(parameter, registers, parameter.unit, "en", mask).text;
    return numberText(parameter, registers);
}

double recordNumber(const Parameter& parameter, std::span<const std::uint16_t> registers)
{
    const std::string text = numberText(parameter, registers);
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace zor::monitor
