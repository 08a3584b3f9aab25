#pragma once

/// Values as form files write them.

#include <zor/core/property_row.h>

#include <optional>
#include <string>
#include <string_view>

namespace zor::forms {

/// How a value stands in a form: the element's name ("enum", "number") and its text, without escapes.
struct Written {
    std::string element;
    std::string text;
};

/// A form's spelling of a value of a property. Nothing for the empty value, which a form cannot hold. Enumeration
/// members are qualified by the class that publishes them to Qt.
[[nodiscard]] std::optional<Written> writtenValue(core::ValueKind kind, const Variant& value);

/// The value behind an element; nothing when its text is no such value, or names no member of the property's
/// enumeration. Elements that hold no plain value (a font, a size) have none.
[[nodiscard]] std::optional<Variant> readValue(core::ValueKind kind, std::string_view element,
                                               std::string_view text);

/// References replaced by what they stand for; line ends as they count.
[[nodiscard]] std::string unescaped(std::string_view text);

/// As Qt Designer writes it. What XML cannot hold becomes U+FFFD.
[[nodiscard]] std::string escaped(std::string_view text);

} // namespace zor::forms
