#pragma once

/// What happened to one control, and what the host's handlers do about it.

#include <zor/core/control.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zor::console {

/// Names in the order in which they came, until they are asked for. Keeps a million and then says that
/// there were more: a script that never asks must not fill the memory.
class Log {
public:
    void add(std::string item);
    /// The items separated by blanks, "-" for none; the log is empty afterwards.
    [[nodiscard]] std::string take();

private:
    std::vector<std::string> m_items;
    bool m_isCut = false;
};

/// Something the host does in an event.
struct Handler {
    std::string_view event;
    std::function<void(platform::EventArgs)> act;
};

/// Listens to one control. Shared, because a command run inside an event may destroy the control.
class Recorder final : public core::EventSink, public std::enable_shared_from_this<Recorder> {
public:
    explicit Recorder(core::Control& control) : m_control(&control) { control.subscribe(*this); }
    virtual ~Recorder() { detach(); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The control is about to end.
    void detach() noexcept;
    void event(core::Control& control, const core::EventRow& row, platform::EventArgs args) override;

    void addHandler(Handler handler);
    void removeHandlers(std::string_view event);

    Log events;
    Log notices;

private:
    using Handlers = std::vector<std::shared_ptr<const Handler>>;

    core::Control* m_control;
    Handlers m_handlers;
};

} // namespace zor::console
