#pragma once

/// The types that properties, arguments and results have, and what converts between them and values of any type.

#include <zor/core/shared_text.h>
#include <zor/platform/error.h>
#include <zor/platform/macros_aside.h>
#include <zor/platform/variant.h>
#include <zor/units/unit_types.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace zor::core {

/// What a property, an argument or a result holds. The enumerations accept any 32-bit integer.
enum class ValueKind : std::uint8_t {
    Boolean,
    Int16,
    Int32,
    Double,
    Text,
    Any,
    UnitType,
    MeasType,
    RegisterType,
    EntryType,
    Colour, ///< a 32-bit colour, written as a signed or an unsigned integer
};

/// The name of a kind, for people ("16-bit integer").
[[nodiscard]] std::string_view kindName(ValueKind kind) noexcept;

/// Whether a kind is one of the published enumerations.
[[nodiscard]] constexpr bool isEnumeration(ValueKind kind) noexcept
{
    return kind >= ValueKind::UnitType && kind <= ValueKind::EntryType;
}

/// A constant in a table.
using Literal = std::variant<std::monostate, bool, std::int32_t, double, std::string_view>;

/// The constant as a value.
[[nodiscard]] Variant toVariant(const Literal& literal);

/// Where a control keeps a property.
using FieldRef = std::variant<bool*, std::int16_t*, std::int32_t*, double*, std::string*, SharedText*, Variant*,
                              UNIT_TYPE*, MEAS_TYPE*, REGISTER_TYPE*, ENTRY_TYPE*>;

/// The value of a field.
[[nodiscard]] Variant valueOf(const FieldRef& field);

/// Converts to the field's type and stores; TypeMismatch or Overflow leave the field as it was.
void storeInto(const FieldRef& field, const Variant& value);

/// No property is infinite or undefined: raises Overflow for such a number.
inline void requireFinite(double value)
{
    if (!std::isfinite(value))
        raiseError(ErrorNumber::Overflow);
}
/// An integer is finite, and what is no number is none that is not.
inline void requireFinite(const Variant& value)
{
    if (const auto* number = std::get_if<double>(&value.storage()))
        requireFinite(*number);
}

namespace detail {

template <class T>
inline constexpr bool isText = std::is_same_v<T, std::string> || std::is_same_v<T, SharedText>;
/// What a field of type T takes.
template <class T>
using Taken = std::conditional_t<isText<T>, std::string, T>;

template <class T>
consteval ValueKind kindOf()
{
    if constexpr (std::is_same_v<T, bool>)
        return ValueKind::Boolean;
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return ValueKind::Int16;
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return ValueKind::Int32;
    else if constexpr (std::is_same_v<T, double>)
        return ValueKind::Double;
    else if constexpr (isText<T> || std::is_same_v<T, std::string_view>)
        return ValueKind::Text;
    else if constexpr (std::is_same_v<T, UNIT_TYPE>)
        return ValueKind::UnitType;
    else if constexpr (std::is_same_v<T, MEAS_TYPE>)
        return ValueKind::MeasType;
    else if constexpr (std::is_same_v<T, REGISTER_TYPE>)
        return ValueKind::RegisterType;
    else if constexpr (std::is_same_v<T, ENTRY_TYPE>)
        return ValueKind::EntryType;
    else if constexpr (std::is_same_v<T, std::uint32_t>)
        return ValueKind::Colour;
    else {
        static_assert(std::is_same_v<T, Variant>);
        return ValueKind::Any;
    }
}

/// A colour out of a number: a system colour has the highest bit set, so it may come as a negative number.
[[nodiscard]] std::uint32_t toColour(const Variant& value);

/// The value as a T. TypeMismatch and Overflow as the variant's own conversions.
template <class T>
[[nodiscard]] T convertTo(const Variant& value)
{
    requireFinite(value);
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
    else if constexpr (std::is_same_v<T, std::uint32_t>)
        return toColour(value);
    else
        return static_cast<T>(value.toInt32());
}

/// The constant of a property of type T, a text as a view; the type's first value where there is none.
template <class T>
[[nodiscard]] auto constantOf(const Literal& literal)
{
    if constexpr (std::is_same_v<T, Variant>) {
        return core::toVariant(literal);
    } else {
        using Kept = std::conditional_t<
            isText<T>, std::string_view,
            std::conditional_t<std::is_same_v<T, bool> || std::is_same_v<T, double>, T, std::int32_t>>;
        using Given = std::conditional_t<isText<T>, std::string_view, T>;
        const auto* kept = std::get_if<Kept>(&literal);
        return kept != nullptr ? static_cast<Given>(*kept) : Given{};
    }
}

template <class T>
[[nodiscard]] Variant toVariant(const T& value)
{
    if constexpr (std::is_enum_v<T>)
        return static_cast<std::int32_t>(value);
    else if constexpr (std::is_same_v<T, SharedText>)
        return Variant(value.text());
    else
        return Variant(value);
}

} // namespace detail
} // namespace zor::core

#include <zor/platform/macros_back.h>
