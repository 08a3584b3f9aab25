// Lists of 32,767 entries on the headless platform: filling them, and applying a value; and a check box's value.

#include <zor/bench/choice_cases.h>
#include <zor/controls/choice/check_box/ctx_ZorCheckBox.h>
#include <zor/platform/headless/container.h>

namespace {

using namespace zor;
using platform::headless::HeadlessContainer;

void fillCombo(benchmark::State& state)
{
    HeadlessContainer container;
    bench::fillCombo(state, container);
}

void fillList(benchmark::State& state)
{
    HeadlessContainer container;
    bench::fillList(state, container);
}

void applyCombo(benchmark::State& state)
{
    HeadlessContainer container;
    bench::applyCombo(state, container);
}

void applyList(benchmark::State& state)
{
    HeadlessContainer container;
    bench::applyList(state, container);
}

void applyCheck(benchmark::State& state)
{
    HeadlessContainer container;
    auto box = ctx_ZorCheckBox::create(container);
    box->initialiseProperties();
    std::int32_t value = 0;
    for (auto _ : state)
        box->DeviceValue(++value);
}

BENCHMARK(fillCombo)->Name("fill a combo box/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(fillList)->Name("fill a list box/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(applyCombo)->Name("value of a combo box/zor")->Apply(bench::lengths);
BENCHMARK(applyList)->Name("value of a list box/zor")->Apply(bench::lengths);
BENCHMARK(applyCheck)->Name("value of a check box/zor");

} // namespace
