#pragma once

/// What several benchmarks measure: memory from the heap, and the lengths that show whether work is linear.

#include <benchmark/benchmark.h>

#include <limits>
#include <malloc.h>

namespace zor::bench {

/// How often `operator new` has been called.
[[nodiscard]] long allocations() noexcept;

/// Counts what one round of a loop allocates, as `allocations`. Ends after the loop.
class Allocations {
public:
    explicit Allocations(benchmark::State& state) noexcept : m_state(state), m_before(allocations()) {}
    ~Allocations()
    {
        m_state.counters["allocations"] =
            static_cast<double>(allocations() - m_before) / static_cast<double>(m_state.iterations());
    }
    Allocations(const Allocations&) = delete;
    Allocations& operator=(const Allocations&) = delete;

private:
    benchmark::State& m_state;
    long m_before;
};

/// Makes things anew in each round, and counts the bytes of each as `bytes_each`. `make(n)` gives what holds n of
/// them; what it costs to give them up is not measured.
template <class Make>
void createMany(benchmark::State& state, Make&& make)
{
    // What is given up stays with the program: fresh pages are the system's work, many times that of what stands
    // on them.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    double bytes = 0;
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        auto made = make(state.range(0));
        bytes = static_cast<double>(mallinfo2().uordblks - before) / static_cast<double>(state.range(0));
        state.PauseTiming();
        {
            const auto ended = std::move(made);
        }
        state.ResumeTiming();
    }
    state.counters["bytes_each"] = bytes;
}

/// 1, 10, ... 10,000 of something.
inline void tenfold(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1, 10'000)->Unit(benchmark::kMicrosecond);
}

} // namespace zor::bench
