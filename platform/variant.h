#pragma once

/// Variant values: what properties, property bags and the console exchange.

#if !defined(_MSVC_LANG) && __cplusplus < 202002L
#error "ZorSmartControls needs C++20 (-std=c++20)"
#endif

#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace zor {

template <class T>
concept Arithmetic = std::is_arithmetic_v<T>;

template <class T>
concept NotCharacter = !std::is_same_v<std::remove_const_t<T>, char>;

/// A value that is empty, a boolean, a 16- or 32-bit integer, a double or a UTF-8 string.
///
/// The to...() functions convert the way the platform converts between types: a boolean counts as -1 or 0
/// as a number, a double becomes an integer by rounding halves to the even neighbour, a text is read with
/// the user's separators, Empty is 0, False or "". What has no such reading raises TypeMismatch, what does
/// not fit raises Overflow.
class Variant {
public:
    /// What it holds.
    using Storage = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, std::string>;

    Variant() noexcept = default;
    /// Any number: a boolean, an integer with 16 or with 32 bits, whichever its type needs, or a double. A value
    /// of a wider type that does not fit raises Overflow.
    template <Arithmetic T>
    Variant(T value) noexcept(alwaysFits<T>) : m_value(stored(value))
    {}
    /// A text in UTF-8.
    Variant(std::string value) noexcept : m_value(std::move(value)) {}
    /// A text in UTF-8.
    Variant(std::string_view value) : m_value(std::string(value)) {}
    /// A text in UTF-8.
    Variant(const char* value) : m_value(std::string(value)) {}
    /// Takes a text over; one that is a text already keeps its place for it.
    template <std::same_as<std::string> Text>
    Variant& operator=(Text&& value)
    {
        m_value = std::forward<Text>(value);
        return *this;
    }
    /// No other pointer is a value.
    template <NotCharacter T>
    Variant(T* value) = delete;
    Variant(std::nullptr_t) = delete;

    /// Whether there is no value.
    [[nodiscard]] bool isEmpty() const noexcept { return holds<std::monostate>(); }
    /// Whether it is a text.
    [[nodiscard]] bool isText() const noexcept { return holds<std::string>(); }
    /// Whether it is a boolean.
    [[nodiscard]] bool isBoolean() const noexcept { return holds<bool>(); }
    /// An integer or a double; a boolean and a numeric text are not.
    [[nodiscard]] bool isNumber() const noexcept
    {
        return holds<std::int16_t>() || holds<std::int32_t>() || holds<double>();
    }

    /// Whether it holds this type exactly.
    template <class T>
    [[nodiscard]] bool holds() const noexcept
    {
        return std::holds_alternative<T>(m_value);
    }

    /// Any number other than 0 is true; the texts "True" and "False" as they say, any other text as its number.
    [[nodiscard]] bool toBoolean() const;
    /// As an integer of 16 bits.
    [[nodiscard]] std::int16_t toInt16() const;
    /// As an integer of 32 bits.
    [[nodiscard]] std::int32_t toInt32() const;
    /// As a number.
    [[nodiscard]] double toDouble() const;
    /// Numbers in 15 significant digits with the user's decimal separator, with an exponent from 1E+15 on and
    /// below 1E-04 ("1E-05"); booleans as "True" and "False". An infinite or undefined number raises Overflow.
    [[nodiscard]] std::string toText() const;
    /// The string itself; only for a value that isText().
    [[nodiscard]] const std::string& text() const noexcept { return *std::get_if<std::string>(&m_value); }
    /// The number of a value that isNumber(), as a double.
    [[nodiscard]] double number() const noexcept
    {
        if (const auto* value = std::get_if<double>(&m_value))
            return *value;
        if (const auto* value = std::get_if<std::int32_t>(&m_value))
            return *value;
        const auto* value = std::get_if<std::int16_t>(&m_value);
        return value != nullptr ? *value : 0.0;
    }

    /// The value as it is kept.
    [[nodiscard]] const Storage& storage() const noexcept { return m_value; }
    [[nodiscard]] Storage& storage() noexcept { return m_value; }

    /// Equal values: numbers compare as numbers whatever their width (16-bit 3 equals double 3), texts byte
    /// by byte, booleans with booleans, Empty with Empty. Anything else is unequal. A property bag leaves a
    /// value out when it equals its default in this sense.
    friend bool operator==(const Variant& left, const Variant& right) noexcept;

private:
    template <class T>
    static constexpr bool alwaysFits = std::is_floating_point_v<T> ? sizeof(T) <= sizeof(double)
                                                                   : std::numeric_limits<T>::digits <= 31;

    template <class T>
    static Storage stored(T value) noexcept(alwaysFits<T>)
    {
        if constexpr (std::is_same_v<T, bool>) {
            return value;
        } else if constexpr (std::is_floating_point_v<T>) {
            const auto number = static_cast<double>(value);
            if (!alwaysFits<T> && std::isinf(number) && !std::isinf(value))
                raiseOverflow();
            return number;
        } else {
            using Wide = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
            using Kept = std::conditional_t<std::numeric_limits<T>::digits <= 15, std::int16_t, std::int32_t>;
            if (!std::in_range<Kept>(static_cast<Wide>(value)))
                raiseOverflow();
            return static_cast<Kept>(value);
        }
    }
    [[noreturn]] static void raiseOverflow();

    Storage m_value;
};

/// Rounds to the nearest whole number, halves to the even neighbour, whatever the floating-point mode;
/// raises Overflow outside the type's range and for a value that is not a number.
[[nodiscard]] std::int32_t roundToInt32(double value);
/// As roundToInt32(), to 16 bits.
[[nodiscard]] std::int16_t roundToInt16(double value);

} // namespace zor
