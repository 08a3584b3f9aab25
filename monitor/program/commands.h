#pragma once

/// What the program does without a window.

#include <zor/monitor/program/options.h>

namespace zor::monitor {

/// Runs the simulated device alone, until the program is ended or its time is over. The exit status, here and
/// below.
int serve(const ParameterFile& file, const Settings& settings);
/// Settings files and the report, with the device or without.
int transfer(const Settings& settings, ParameterFile file);

} // namespace zor::monitor
