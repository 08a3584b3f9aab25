#include <zor/platform/number_text.h>
#include <zor/platform/regional.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <cmath>

namespace zor {

std::string_view fc_GetUnitID(MEAS_TYPE i_Unit) noexcept
{
    const units::UnitRow* row = units::rowOf(i_Unit);
    return row != nullptr ? row->messageId : "UNIT_ERROR";
}

std::string_view fc_GetUnitLabel(MEAS_TYPE i_Unit) noexcept
{
    const units::UnitRow* row = units::rowOf(i_Unit);
    return row != nullptr ? row->label : std::string_view{};
}

bool hasPattern(MEAS_TYPE unit) noexcept { return units::rowOf(unit) != nullptr; }

std::string formatValueText(double value, MEAS_TYPE unit, std::int16_t digits)
{
    const units::UnitRow* row = units::rowOf(unit);
    if (row == nullptr)
        return {};
    const int decimals = row->decimals == units::kCallersDecimals ? std::max<int>(digits, 0) : row->decimals;
    return platform::formatFixed(value, decimals);
}

Variant fc_FormatValue(const Variant& v_Value, MEAS_TYPE i_Unit, std::int16_t i_Digits)
{
    const std::optional<double> number = hasPattern(i_Unit) ? validNumber(v_Value) : std::nullopt;
    return number ? Variant(formatValueText(*number, i_Unit, i_Digits)) : Variant();
}

std::optional<double> validNumber(std::string_view text) noexcept
{
    const std::optional<platform::NumberReading> number = platform::readNumber(text);
    if (!number)
        return std::nullopt;
    const std::string_view mantissa = text.substr(0, number->mantissa);
    double read = number->value;
    if (mantissa.size() < text.size()) {
        const std::optional<platform::NumberReading> alone = platform::readNumber(mantissa);
        if (!alone)
            return std::nullopt;
        read = alone->value;
    }
    // A separator that changes the magnitude for one reader but not for the other makes the text ambiguous.
    // Without groups the other reader sees at least the whole number, and up to here exactly that.
    constexpr double kWholeNumbersAreExact = 1e15;
    const bool agree = !number->isGrouped && std::fabs(read) < kWholeNumbersAreExact;
    if (!agree && !(std::fabs(platform::leadingNumber(mantissa) - read) <= 1.0))
        return std::nullopt;
    return number->value;
}

std::optional<double> validNumber(const Variant& value) noexcept
{
    if (value.isText())
        return validNumber(std::string_view(value.text()));
    const double number = value.number();
    return value.isNumber() && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool fb_IsValidNumber(const Variant& v_Value) noexcept { return validNumber(v_Value).has_value(); }

std::optional<std::int32_t> memberValue(std::string_view name) noexcept
{
    for (const units::UnitRow& row : units::kUnits) {
        if (row.name == name)
            return static_cast<std::int32_t>(row.unit);
    }
    for (const units::UnitTypeRow& row : units::kUnitTypes) {
        if (row.name == name)
            return static_cast<std::int32_t>(row.type);
    }
    for (const auto* rows : {&units::kRegisterTypes, &units::kEntryTypes}) {
        for (const units::WordRow& row : *rows) {
            if (row.name == name)
                return row.value;
        }
    }
    return std::nullopt;
}

} // namespace zor
