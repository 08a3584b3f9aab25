#pragma once

/// What is measured of combo box and list box on either platform.

#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>
#include <zor/controls/choice/list_box/ctx_ZorListBox.h>

#include <benchmark/benchmark.h>

namespace zor::bench {

inline constexpr int kFull = 32'767;

inline void fill(ctx_ZorComboBox& box, std::int64_t count)
{
    for (int i = 0; i < count; ++i)
        box.AddEnumEntry("an entry of the usual length", i);
}

inline void fill(ctx_ZorListBox& box, std::int64_t count)
{
    for (int i = 0; i < count; ++i)
        box.AddBitFieldEntry("an entry of the usual length", static_cast<std::int16_t>(i % 31));
}

template <class Box>
void fillFull(benchmark::State& state, platform::Container& container)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto box = Box::create(container);
        box->initialiseProperties();
        state.ResumeTiming();
        fill(*box, kFull);
        state.PauseTiming();
        box.reset();
        state.ResumeTiming();
    }
}

inline void fillCombo(benchmark::State& state, platform::Container& container)
{
    fillFull<ctx_ZorComboBox>(state, container);
}
inline void fillList(benchmark::State& state, platform::Container& container)
{
    fillFull<ctx_ZorListBox>(state, container);
}

/// Lengths from which one sees whether the time is linear.
inline void lengths(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(10, kFull)->Unit(benchmark::kMicrosecond);
}

/// The last entry and the first in turn: the longest way.
inline void applyCombo(benchmark::State& state, platform::Container& container)
{
    auto box = ctx_ZorComboBox::create(container);
    box->initialiseProperties();
    fill(*box, state.range(0));
    bool last = false;
    for (auto _ : state)
        box->DeviceValue((last = !last) ? static_cast<std::int32_t>(state.range(0)) - 1 : 0);
}

/// All bits and none in turn: every mark changes with each value.
inline void applyList(benchmark::State& state, platform::Container& container)
{
    auto box = ctx_ZorListBox::create(container);
    box->initialiseProperties();
    fill(*box, state.range(0));
    bool all = false;
    for (auto _ : state)
        box->DeviceValue((all = !all) ? -1 : 0);
}

} // namespace zor::bench
