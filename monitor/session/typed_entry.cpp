#include <zor/monitor/session/typed_entry.h>
#include <zor/platform/error.h>

#include <utility>

namespace zor::monitor {

bool TypedEntry::hear(const core::EventRow& row)
{
    using platform::Notice;
    switch (row.notice) {
    case Notice::GotFocus:
        m_focused = true;
        m_leaving = false;
        return false;
    case Notice::Validate: leave(); return false;
    case Notice::LostFocus: return take();
    default: break;
    }
    if (row.name == "textChange") {
        m_typing = true;
        m_leaving = false;
        m_value.reset();
    } else if (row.name == "OutputValueChange" && !m_leaving) {
        // A choice, a step or an undone edit.
        forget();
    }
    return false;
}

void TypedEntry::forget()
{
    m_typing = false;
    m_value.reset();
}

void TypedEntry::leave()
{
    m_leaving = true;
    if (!m_typing || m_control.info().method("s_ForceOutputValueUpdate") == nullptr)
        return;
    try {
        m_control.call("s_ForceOutputValueUpdate", {});
    } catch (const RunTimeError&) {
        // The control says itself that the entry is not valid.
    }
}

bool TypedEntry::take()
{
    m_focused = m_leaving = false;
    if (!std::exchange(m_typing, false))
        return false;
    const core::PropertyRow* invalid = m_control.info().property("InvalidEntry");
    if (invalid == nullptr || !m_control.get(*invalid).toBoolean())
        m_value = m_control.property("OutputValue");
    return m_value.has_value();
}

} // namespace zor::monitor
