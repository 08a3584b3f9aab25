#pragma once

#include <QApplication>
#include <benchmark/benchmark.h>

namespace zor::bench {

/// The one application of the program, offscreen whatever display there is.
inline void startQt()
{
    static int argc = 1;
    static char name[] = "bench";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Ends with the process: as a static object it would end after the plugins it needs.
    static const auto* const application = new QApplication(argc, argv);
    benchmark::DoNotOptimize(application);
}

} // namespace zor::bench
