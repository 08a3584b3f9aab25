#pragma once

/// The entries of a list as hosts fill and look them up: a text and a 32-bit value each.

#include <zor/platform/variant.h>
#include <zor/platform/widgets.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zor::controls {

/// The host's side of a combo box's or list box's entries. They live in the widget, in the order in which
/// they were added; neither texts nor values need be unique, and every lookup takes the first that matches.
class EntryList {
public:
    /// Positions are 16-bit numbers.
    static constexpr std::int32_t kMost = 32'767;
    /// The answer of a lookup that finds nothing.
    static constexpr std::string_view kNotFound = "ERROR";

    explicit EntryList(platform::EntryWidget& widget) noexcept : m_widget(widget) {}

    /// Appends an entry. A full list raises Overflow and stays as it is.
    void append(std::string_view text, std::int32_t value);
    /// Removes the first entry with the value, if there is one.
    void remove(std::int32_t value);
    void clear() { m_widget.clear(); }

    [[nodiscard]] bool isEmpty() const { return m_widget.count() == 0; }
    [[nodiscard]] std::int16_t count() const { return static_cast<std::int16_t>(m_widget.count()); }
    /// Position of the first entry with the value.
    [[nodiscard]] std::optional<std::int32_t> find(std::int32_t value) const;
    /// Value of the entry at the current position.
    [[nodiscard]] std::optional<std::int32_t> currentValue() const;

    /// @name Answers to the host
    /// "ERROR" stands for an entry that is not there, and is the only element for an empty list.
    /// @{
    [[nodiscard]] std::string textOf(std::int32_t value) const;
    /// The 32-bit value of the first entry with exactly this text, else the string "ERROR".
    [[nodiscard]] Variant valueOf(std::string_view text) const;
    [[nodiscard]] std::vector<std::string> texts() const;
    [[nodiscard]] std::vector<Variant> values() const;
    /// @}

private:
    platform::EntryWidget& m_widget;
};

} // namespace zor::controls
