// Up-down, slider and label on the headless platform: a device value with a listener, and ten thousand controls.

#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/controls/numeric/slider/ctx_ZorSlider.h>
#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/memory_bag.h>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <vector>

namespace {

using namespace zor;
using platform::headless::HeadlessContainer;
using platform::headless::MemoryPropertyBag;

constexpr std::size_t kMany = 10'000;

template <class Interface>
struct Listener : Interface {
    void OutputValueChange() override { ++outputs; }
    long outputs = 0;
};

struct LabelListener : __ctx_ZorLabel {
    void labelChange() override { ++changes; }
    long changes = 0;
};

template <class Control, class Interface>
void deviceValue(benchmark::State& state)
{
    HeadlessContainer container;
    const auto control = Control::create(container);
    control->initialiseProperties();
    control->MaxValue(100'000);
    Listener<Interface> listener;
    control->subscribe(listener);
    int value = 0;
    for (auto _ : state)
        control->DeviceValue(++value % 100'000);
    benchmark::DoNotOptimize(listener.outputs);
    control->unsubscribe(listener);
}

void labelValue(benchmark::State& state)
{
    HeadlessContainer container;
    const auto label = ctx_ZorLabel::create(container);
    label->initialiseProperties();
    LabelListener listener;
    label->subscribe(listener);
    bool other = false;
    for (auto _ : state)
        label->DeviceValue((other = !other) ? "12.5 m" : "12.6 m");
    benchmark::DoNotOptimize(listener.changes);
    label->unsubscribe(listener);
}

/// Creates many controls, each made ready by `prepare`.
template <class Control, class Prepare>
void createMany(benchmark::State& state, Prepare&& prepare)
{
    HeadlessContainer container;
    double bytes = 0;
    for (auto _ : state) {
        std::vector<core::ControlPtr<Control>> controls;
        controls.reserve(kMany);
        const auto before = mallinfo2().uordblks;
        for (std::size_t i = 0; i < kMany; ++i) {
            controls.push_back(Control::create(container));
            prepare(*controls.back());
        }
        bytes = static_cast<double>(mallinfo2().uordblks - before) / kMany;
        state.PauseTiming();
        controls.clear();
        state.ResumeTiming();
    }
    state.counters["bytes_each"] = bytes;
}

template <class Control>
void create(benchmark::State& state)
{
    createMany<Control>(state, [](Control& control) { control.initialiseProperties(); });
}

template <class Control>
void restore(benchmark::State& state)
{
    MemoryPropertyBag bag;
    bag.set("DeviceTag", "Distance");
    bag.set("MaxValue", 30000.0);
    createMany<Control>(state, [&](Control& control) { control.readProperties(bag); });
}

BENCHMARK(deviceValue<ctx_ZorUpDown, __ctx_ZorUpDown>)->Name("DeviceValue, changing, up-down/zor");
BENCHMARK(deviceValue<ctx_ZorSlider, __ctx_ZorSlider>)->Name("DeviceValue, changing, slider/zor");
BENCHMARK(labelValue)->Name("DeviceValue, changing, label/zor");
BENCHMARK(create<ctx_ZorUpDown>)->Name("create 10,000 up-downs/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(create<ctx_ZorSlider>)->Name("create 10,000 sliders/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(restore<ctx_ZorUpDown>)->Name("restore 10,000 up-downs/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(restore<ctx_ZorSlider>)->Name("restore 10,000 sliders/zor")->Unit(benchmark::kMillisecond);

} // namespace
