// What a control hears from its widgets, and what its listeners hear from it.

#include <zor/core/control.h>
#include <zor/platform/error.h>

#include <cassert>
#include <exception>
#include <utility>

namespace zor::core {

void Control::raise(const EventRow* event, platform::EventArgs args)
{
    // A class that raises an event has it in its table.
    assert(event >= &*m_info.events.begin() && event < &*m_info.events.begin() + m_info.events.size());
    // Who destroyed the control does not expect to hear from it again.
    if (m_sinks.empty() || m_ended)
        return;
    m_sinks.each([&](const SinkList::Entry& entry) {
        if (!m_ended)
            deliver(entry, *event, args);
    });
}

namespace {

/// The exception that is being handled; one that tells what it is about tells the event as well.
std::exception_ptr thrownIn(const ClassInfo& info, const EventRow& event)
{
    try {
        throw;
    } catch (const RunTimeError& error) {
        return std::make_exception_ptr(error.of(info.name, event.name));
    } catch (...) {
        return std::current_exception();
    }
}

} // namespace

void Control::deliver(const SinkList::Entry& entry, const EventRow& row, platform::EventArgs args)
{
    try {
        if (entry.generic != nullptr)
            entry.generic->event(*this, row, args);
        else
            row.call(entry.typed, args);
    } catch (...) {
        // The control finishes what it is doing and the other listeners are heard; then the caller learns it.
        if (!m_handlerError)
            m_handlerError = thrownIn(m_info, row);
    }
}

void Control::passOnReportError() { std::rethrow_exception(std::exchange(m_reportError, nullptr)); }

void Control::passOnHandlerError() { std::rethrow_exception(std::exchange(m_handlerError, nullptr)); }

void Control::notice(int widget, platform::Notice notice, platform::EventArgs args)
{
    if (m_ended)
        return;
    // A report in the middle of something goes back to whoever is doing it.
    const bool isByOperator = m_actions.isNone() || m_isByOperator;
    const auto answer = [&] {
        carryOut([&] {
            m_isByOperator = isByOperator;
            onNotice(widget, notice, args);
        });
    };
    if (m_widgetWrites.isNone())
        return answer();
    try {
        answer();
    } catch (...) {
        if (!m_reportError)
            m_reportError = std::current_exception();
    }
}

void Control::onNotice(int widget, platform::Notice notice, platform::EventArgs args)
{
    forward(widget, notice, args);
}

void Control::forward(int widget, platform::Notice notice, platform::EventArgs args)
{
    if (m_sinks.empty())
        return;
    if (const EventRow* row = m_info.events.of(widget, notice))
        raise(row, args);
}

} // namespace zor::core
