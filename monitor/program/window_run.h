#pragma once

/// The program with its window.

#include <zor/monitor/language/languages.h>
#include <zor/monitor/program/options.h>

namespace zor::monitor {

/// Shows devices until the window is closed or the time is over, in the language in force unless another was
/// chosen last. The exit status.
int runWindow(Settings settings, Languages& languages);

} // namespace zor::monitor
