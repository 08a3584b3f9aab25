#include "core/property_row.h"

namespace zor::core {
namespace {

template <class T>
T convertTo(const Variant& value)
{
    if constexpr (std::is_same_v<T, bool>)
        return value.toBoolean();
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return value.toInt16();
    else if constexpr (std::is_same_v<T, double>)
        return value.toDouble();
    else if constexpr (std::is_same_v<T, std::string>)
        return value.toText();
    else if constexpr (std::is_same_v<T, Variant>)
        return value;
    else
        return static_cast<T>(value.toInt32());
}

} // namespace

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
    return std::visit(
        [](const auto* at) -> Variant {
            if constexpr (std::is_enum_v<std::decay_t<decltype(*at)>>)
                return static_cast<std::int32_t>(*at);
            else
                return *at;
        },
        field);
}

void storeInto(const FieldRef& field, const Variant& value)
{
    std::visit([&](auto* at) { *at = convertTo<std::decay_t<decltype(*at)>>(value); }, field);
}

} // namespace zor::core
