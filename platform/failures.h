#pragma once

/// What fails in the middle of an action, and is heard of at its end.

#include <zor/platform/depth.h>

#include <exception>
#include <utility>

namespace zor::platform {

/// What handlers throw. While somebody acts it waits until he is done: a handler that fails takes neither the rest
/// of a click nor the focus from the operator, whether or not an event loop stands around every report.
class Failures {
public:
    /// Runs an action; then throws what failed first in it.
    template <class Action>
    void during(Action&& action)
    {
        const std::exception_ptr before = std::exchange(m_first, nullptr);
        run(std::forward<Action>(action));
        if (const std::exception_ptr mine = std::exchange(m_first, before))
            std::rethrow_exception(mine);
    }
    /// A report ended with an exception.
    void add(const std::exception_ptr& error)
    {
        if (m_actions.isNone())
            std::rethrow_exception(error);
        if (!m_first)
            m_first = error;
    }

private:
    template <class Action>
    void run(Action&& action)
    {
        const Depth::Level level(m_actions);
        try {
            std::forward<Action>(action)();
        } catch (...) {
            add(std::current_exception());
        }
    }

    std::exception_ptr m_first;
    Depth m_actions;
};

} // namespace zor::platform
