#include <zor/core/value_kind.h>

namespace zor::core {

std::string_view kindName(ValueKind kind) noexcept
{
    switch (kind) {
    case ValueKind::Boolean: return "boolean";
    case ValueKind::Int16: return "16-bit integer";
    case ValueKind::Int32: return "32-bit integer";
    case ValueKind::Double: return "double";
    case ValueKind::Text: return "string";
    case ValueKind::Any: return "variant";
    case ValueKind::UnitType: return "UNIT_TYPE";
    case ValueKind::MeasType: return "MEAS_TYPE";
    case ValueKind::RegisterType: return "REGISTER_TYPE";
    case ValueKind::EntryType: return "ENTRY_TYPE";
    case ValueKind::Colour: return "colour";
    }
    return "?";
}

Variant toVariant(const Literal& literal)
{
    return std::visit(
        [](const auto& value) -> Variant {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>)
                return {};
            else
                return value;
        },
        literal);
}

Variant valueOf(const FieldRef& field)
{
    return std::visit([](const auto* at) { return detail::toVariant(*at); }, field);
}

void storeInto(const FieldRef& field, const Variant& value)
{
    std::visit(
        [&](auto* at) {
            using Field = std::decay_t<decltype(*at)>;
            *at = Field(detail::convertTo<detail::Taken<Field>>(value));
        },
        field);
}

std::uint32_t detail::toColour(const Variant& value)
{
    constexpr double kLargestSigned = 2147483647.0;
    constexpr double kLargest = 4294967295.0;
    const double number = value.toDouble();
    if (number > kLargestSigned && number <= kLargest)
        return static_cast<std::uint32_t>(number);
    return static_cast<std::uint32_t>(value.toInt32());
}

} // namespace zor::core
