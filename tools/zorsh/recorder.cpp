#include <zor/tools/zorsh/notation.h>
#include <zor/tools/zorsh/recorder.h>

#include <algorithm>

namespace zor::console {
namespace {

constexpr std::size_t kMostKept = 1'000'000;

} // namespace

void Log::add(std::string item)
{
    if (m_items.size() < kMostKept)
        m_items.push_back(std::move(item));
    else
        m_isCut = true;
}

std::string Log::take()
{
    std::string line;
    for (const std::string& item : m_items)
        line.append(line.empty() ? "" : " ").append(item);
    if (m_isCut)
        line += " ...";
    m_items.clear();
    m_isCut = false;
    return line.empty() ? "-" : line;
}

void Recorder::detach() noexcept
{
    if (m_control != nullptr)
        m_control->unsubscribe(*this);
    m_control = nullptr;
}

void Recorder::addHandler(Handler handler)
{
    m_handlers.push_back(std::make_shared<const Handler>(std::move(handler)));
}

void Recorder::removeHandlers(std::string_view event)
{
    std::erase_if(m_handlers, [&](const auto& handler) { return handler->event == event; });
}

void Recorder::event(core::Control& /*control*/, const core::EventRow& row, platform::EventArgs args)
{
    events.add(printEvent(row.name, args));
    if (m_handlers.empty())
        return;
    // A command may take handlers away, add some, or destroy the control: the rest of the handler runs.
    const std::shared_ptr<Recorder> self = shared_from_this();
    const Handlers before = m_handlers;
    for (const auto& handler : before) {
        if (handler->event != row.name)
            continue;
        if (std::ranges::find(m_handlers, handler) == m_handlers.end())
            continue;
        handler->act(args);
    }
}

} // namespace zor::console
