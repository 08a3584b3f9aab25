#include <zor/platform/headless/memory_bag.h>

namespace zor::platform::headless {

std::size_t MemoryPropertyBag::find(std::string_view name) const noexcept
{
    const std::size_t count = m_entries.size();
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t at = (m_next + step) % count;
        if (m_entries[at].first == name)
            return at;
    }
    return count;
}

Variant MemoryPropertyBag::ReadProperty(std::string_view name, const Variant& defaultValue) const
{
    const std::size_t at = find(name);
    if (at == m_entries.size())
        return defaultValue;
    m_next = at + 1;
    return m_entries[at].second;
}

void MemoryPropertyBag::WriteProperty(std::string_view name, const Variant& value, const Variant& defaultValue)
{
    if (!(value == defaultValue))
        return set(name, value);
    if (const std::size_t at = find(name); at != m_entries.size())
        m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(at));
}

void MemoryPropertyBag::set(std::string_view name, Variant value)
{
    const std::size_t at = find(name);
    if (at == m_entries.size())
        m_entries.emplace_back(name, std::move(value));
    else
        m_entries[at].second = std::move(value);
}

} // namespace zor::platform::headless
