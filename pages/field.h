#pragma once

/// One field of a property page as data.

#include <cstdint>
#include <span>
#include <string_view>

namespace zor::pages {

class Page;

/// What a field is made of.
enum class FieldKind : std::uint8_t {
    Text,   ///< a text field behind its caption
    List,   ///< a drop-down list; the position is the property's value
    Number, ///< a text field with spin buttons, which hold the accepted number
    Check,  ///< a check box, which carries the caption itself
};

/// The name of a kind, for people.
[[nodiscard]] constexpr std::string_view kindName(FieldKind kind) noexcept
{
    switch (kind) {
    case FieldKind::Text: return "text";
    case FieldKind::List: return "list";
    case FieldKind::Number: return "number";
    case FieldKind::Check: return "check";
    }
    return "?";
}

/// A field of a page.
struct Field {
    /// Its name on the page.
    std::string_view widget;
    /// What it is made of.
    FieldKind kind;
    /// What stands beside it, or on it.
    std::string_view caption;
    /// What it shows and writes.
    std::string_view property;
    /// What it says, for people: the field's tooltip.
    std::string_view meaning;
    /// Of a list.
    std::span<const std::string_view> items{};
    /// Of a number: the name of the spin buttons, and their ends.
    std::string_view spinButton{};
    /// Lowest number.
    std::int32_t minimum = 0;
    /// Highest number.
    std::int32_t maximum = 0;
    /// What Apply does instead of writing the property.
    void (*write)(Page&) = nullptr;
    /// What a click by the user of the page does beside marking the page as changed.
    void (*clicked)(Page&) = nullptr;
    /// Whether the user can use the field now; nullptr: always.
    bool (*usable)(const Page&) = nullptr;
};

} // namespace zor::pages
