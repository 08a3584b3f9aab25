// Runs the benchmarks of a program and closes with the ratios: of the benchmarks named GROUP/NAME, each is held
// against the group's "zor" of the same length, in processor time. Ratios of one run say more than times, which
// follow the machine's mood.

#include <zor/bench/measures.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

namespace {

long allocated = 0;

class RatioReporter final : public benchmark::ConsoleReporter {
public:
    RatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const bool isMedian = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (!run.error_occurred && (isMedian || (run.run_type == Run::RT_Iteration && run.repetitions <= 1)))
                m_times.push_back({run.run_name.function_name, run.run_name.args, run.GetAdjustedCPUTime()});
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::printf("\n");
        for (const Time& own : m_times) {
            const auto slash = own.name.rfind("/zor");
            if (slash == std::string::npos || slash + 4 != own.name.size())
                continue;
            const std::string group = own.name.substr(0, slash);
            for (const Time& peer : m_times) {
                if (peer.name != own.name && peer.args == own.args && peer.name.rfind(group + '/', 0) == 0)
                    std::printf("ratio  %-36s %6s %-24s takes %8.2f times as long\n", group.c_str(),
                                own.args.c_str(), peer.name.substr(slash + 1).c_str(), peer.time / own.time);
            }
        }
    }

private:
    struct Time {
        std::string name;
        std::string args;
        double time;
    };
    std::vector<Time> m_times;
};

} // namespace

long zor::bench::allocations() noexcept { return allocated; }

void* operator new(std::size_t size)
{
    ++allocated;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
