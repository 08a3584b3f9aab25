#pragma once

/// How values are written in the console, and lines are cut into words.

#include <zor/core/class_info.h>
#include <zor/platform/colour.h>
#include <zor/platform/notice.h>

#include <string>
#include <string_view>
#include <vector>

namespace zor::console {

/// The words of a line, quotes and escapes as written, without a comment. Raises InvalidCall for a string
/// that does not end.
[[nodiscard]] std::vector<std::string_view> words(std::string_view line);

/// The line without a comment and without blanks at its ends.
[[nodiscard]] std::string_view withoutComment(std::string_view line) noexcept;

/// Reads a value: a boolean, a number, a string, Empty, a member of a published enumeration, a system
/// colour. Raises InvalidCall for anything else, Overflow for a number beyond the range of a double.
[[nodiscard]] Variant parseValue(std::string_view word);

/// The same value always in the same spelling, so that expected and printed lines can be compared: one blank
/// where there are several, none behind a comma, strings with the escapes that are printed.
[[nodiscard]] std::string canonical(std::string_view line);

[[nodiscard]] std::string print(const Variant& value);
/// Up to 15 significant digits; an exponent from 1e15 up and below 1e-4.
[[nodiscard]] std::string print(double value);
[[nodiscard]] std::string print(const core::MethodResult& result);
[[nodiscard]] std::string printText(std::string_view text);
[[nodiscard]] std::string printColour(Colour colour);
/// `name`, with the arguments in brackets where there are any.
[[nodiscard]] std::string printEvent(std::string_view name, platform::EventArgs args);

} // namespace zor::console
