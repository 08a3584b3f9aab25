#pragma once

/// No file that the options name is written over another.

#include <zor/monitor/program/options.h>

namespace zor::monitor {

/// Raises UsageError where a file is to be written that another option reads or writes.
void refuseClashes(const Settings& settings);

} // namespace zor::monitor
