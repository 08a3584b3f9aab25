#pragma once

/// Numbers and their texts, with the user's separators. Nothing here depends on setlocale, and nothing
/// allocates when the result fits a small string.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zor::platform {

/// The value with exactly `decimals` decimal places (0 or more), at least one integer digit, no grouping
/// and no exponent however large, the user's decimal separator. Rounds half away from zero on the shortest
/// decimal that reads back as the same double: 1.005 with two places is 1.01, 2.5 with none is 3, -0.5 is
/// -1. A negative value keeps its minus sign even when it rounds to zero: -0.04 with one place is -0.0.
/// Infinite and undefined values raise Overflow.
[[nodiscard]] std::string formatFixed(double value, int decimals);

/// Plain double-to-text: up to 15 significant digits, no trailing zeros, the user's decimal separator, no
/// grouping; from 1e15 up and below 1e-4 as mantissa and exponent (1E+15, 2.5E-05). 0 and -0 are "0".
[[nodiscard]] std::string doubleToText(double value);

/// Whether a text is a number to this user: blanks around it, one sign in front, digits with the user's
/// grouping separators between digits before the decimal separator, the decimal separator, an exponent
/// (E or e, an optional sign, digits). At least one digit in the mantissa. No currency, hexadecimal,
/// trailing sign, inf or nan.
[[nodiscard]] bool isNumericText(std::string_view text) noexcept;

/// The number of a text for which isNumericText() holds. Any other text raises TypeMismatch; a number
/// beyond the range of a double raises Overflow; one too small to represent is 0.
[[nodiscard]] double textToDouble(std::string_view text);

/// A text that is a number, as it was read.
struct NumberReading {
    double value = 0;
    std::size_t mantissa = 0; ///< bytes of the text in front of its exponent; all of them when it has none
    bool isGrouped = false;   ///< the user's grouping separator stands in it
};

/// As textToDouble(), without raising: nothing for what it would raise.
[[nodiscard]] std::optional<NumberReading> readNumber(std::string_view text) noexcept;

/// The number a text starts with, independent of the user's settings: blanks are skipped, "." is the
/// decimal point, reading stops at the first character that cannot continue a number; 0 when there is none.
[[nodiscard]] double leadingNumber(std::string_view text) noexcept;

} // namespace zor::platform
