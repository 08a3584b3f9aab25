#pragma once

/// A property bag in memory.

#include <zor/platform/property_bag.h>

#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace zor::platform::headless {

/// Keeps the values in the order in which their names were first written.
class MemoryPropertyBag final : public PropertyBag {
public:
    /// Name and value.
    using Entry = std::pair<std::string, Variant>;

    [[nodiscard]] Variant ReadProperty(std::string_view name, const Variant& defaultValue) const override;
    void WriteProperty(std::string_view name, const Variant& value, const Variant& defaultValue) override;

    /// Puts a value under a name, whatever the default; replaces an earlier one.
    void set(std::string_view name, Variant value);
    /// All values. Good until the next write.
    [[nodiscard]] std::span<const Entry> entries() const noexcept { return m_entries; }

private:
    [[nodiscard]] std::size_t find(std::string_view name) const noexcept;

    std::vector<Entry> m_entries;
    /// Where the last value was found: keys are read in about the order in which they were written.
    mutable std::size_t m_next = 0;
};

} // namespace zor::platform::headless
