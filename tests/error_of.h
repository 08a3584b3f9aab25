#pragma once

#include <zor/platform/error.h>

namespace zor::tests {

/// The number of the error that something raises, 0 for none. Nothing but a RunTimeError may come.
template <class Action>
int errorOf(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}

} // namespace zor::tests
