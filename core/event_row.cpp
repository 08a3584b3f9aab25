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

SinkList::Iteration::~Iteration()
{
    if (--list.m_depth.isNone() && list.m_gaps) {
        std::erase(list.m_entries, Entry{});
        list.m_gaps = false;
    }
}

} // namespace zor::core
