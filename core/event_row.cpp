#include <zor/core/event_row.h>

#include <algorithm>

namespace zor::core {

void SinkList::remove(Entry entry) noexcept
{
    const auto at = std::find(m_entries.begin(), m_entries.end(), entry);
    if (at == m_entries.end())
        return;
    if (m_depth.isNone()) {
        m_entries.erase(at);
        return;
    }
    *at = {};
    m_gaps = true;
}

void SinkList::closeGaps() noexcept
{
    std::erase(m_entries, Entry{});
    m_gaps = false;
}

} // namespace zor::core
