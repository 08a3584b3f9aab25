#include <zor/core/commit_filter.h>
#include <zor/core/control.h>
#include <zor/platform/widgets.h>

namespace zor::core {

CommitFilter::CommitFilter(Control& control) noexcept
    : m_control(control), m_output(control.info().property("OutputValue")),
      m_device(control.info().property("DeviceValue")), m_own(control.info().property("ModifiedValue")),
      m_modified(control.info().property("DataModified")),
      m_isField(dynamic_cast<const platform::TextField*>(control.widget(1)) != nullptr)
{}

std::optional<Variant> CommitFilter::take()
{
    if (m_output == nullptr)
        return {};
    Variant value = m_control.get(*m_output);
    const bool isEdit = m_control.get(*m_modified).toBoolean();
    // A slider reads both times its ScaleFactor.
    const bool isDevice = m_control.get(*m_own) == m_control.get(*m_device);
    const bool isOther = m_last ? !(*m_last == value) : isEdit || !isDevice;
    m_last = value;
    if (!m_control.isByOperator()) {
        // What was handed over is settled by the device's own value, and by nothing else that the host writes.
        m_isCommitted = m_isCommitted && !isDevice;
        return {};
    }
    if (!isOther || (m_isField && !isEdit && !m_isCommitted))
        return {};
    m_isCommitted = true;
    return value;
}

void CommitFilter::forget() noexcept
{
    m_last.reset();
    m_isCommitted = false;
}

} // namespace zor::core
