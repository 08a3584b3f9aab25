// Text box, up-down, slider and label on the headless platform: a device value with a listener, creating, storing
// and restoring.

#include <zor/bench/measures.h>
#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/controls/numeric/slider/ctx_ZorSlider.h>
#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/memory_bag.h>

#include <string>
#include <vector>

namespace {

using namespace zor;
using platform::headless::HeadlessContainer;
using platform::headless::MemoryPropertyBag;

template <class Interface>
struct Listener : Interface {
    void OutputValueChange() override { ++heard; }
    long heard = 0;
};

struct LabelListener : __ctx_ZorLabel {
    void labelChange() override { ++heard; }
    long heard = 0;
};

/// `set` gives the control its i-th value.
template <class Control, class Sink, class Set>
void deviceValue(benchmark::State& state, Set&& set)
{
    HeadlessContainer container;
    const auto control = Control::create(container);
    control->initialiseProperties();
    Sink listener;
    control->subscribe(listener);
    int i = 0;
    {
        const bench::Allocations counted(state);
        for (auto _ : state)
            set(*control, ++i);
    }
    benchmark::DoNotOptimize(listener.heard);
    control->unsubscribe(listener);
}

template <class Control>
struct Many {
    HeadlessContainer container;
    std::vector<core::ControlPtr<Control>> controls;
};

/// Controls, each made ready by `prepare`.
template <class Control, class Prepare>
auto many(std::int64_t count, Prepare&& prepare)
{
    auto made = std::make_unique<Many<Control>>();
    made->controls.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        made->controls.push_back(Control::create(made->container));
        prepare(*made->controls.back());
    }
    return made;
}

template <class Control>
auto initialised(std::int64_t count)
{
    return many<Control>(count, [](Control& control) { control.initialiseProperties(); });
}

template <class Control>
void store(benchmark::State& state)
{
    const auto made = initialised<Control>(state.range(0));
    for (auto _ : state) {
        for (const auto& control : made->controls) {
            MemoryPropertyBag bag;
            control->writeProperties(bag);
            benchmark::DoNotOptimize(bag);
        }
    }
}

template <class Control>
void restore(benchmark::State& state)
{
    MemoryPropertyBag bag;
    bag.set("DeviceTag", "Distance");
    bag.set("MaxValue", 30000.0);
    bench::createMany(state, [&](std::int64_t count) {
        return many<Control>(count, [&](Control& control) { control.readProperties(bag); });
    });
}

template <class Control, class Interface>
void numeric(const std::string& name)
{
    using benchmark::RegisterBenchmark;
    constexpr int kLimit = 100'000;
    const auto values = [](auto number) {
        return [number](benchmark::State& state) {
            deviceValue<Control, Listener<Interface>>(state, [number](Control& control, int i) {
                if (i == 1)
                    control.MaxValue(kLimit);
                control.DeviceValue(number(i));
            });
        };
    };
    const auto named = [&](const char* work) { return work + (", " + name + "/zor"); };
    RegisterBenchmark(named("DeviceValue, changing").c_str(), values([](int i) { return i % kLimit; }));
    RegisterBenchmark(named("DeviceValue, the same again").c_str(), values([](int) { return 1234; }));
    RegisterBenchmark(named("create").c_str(), [](benchmark::State& state) {
        bench::createMany(state, initialised<Control>);
    })->Apply(bench::tenfold);
    RegisterBenchmark(named("store").c_str(), store<Control>)->Arg(1000)->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(named("restore").c_str(), restore<Control>)->Arg(1000)->Unit(benchmark::kMicrosecond);
}

void labelValue(benchmark::State& state)
{
    deviceValue<ctx_ZorLabel, LabelListener>(
        state, [](ctx_ZorLabel& label, int i) { label.DeviceValue(i % 2 == 0 ? "12.5 m" : "12.6 m"); });
}

const bool registered = [] {
    numeric<ctx_ZorTextBox, __ctx_ZorTextBox>("text box");
    numeric<ctx_ZorUpDown, __ctx_ZorUpDown>("up-down");
    numeric<ctx_ZorSlider, __ctx_ZorSlider>("slider");
    benchmark::RegisterBenchmark("DeviceValue, changing, label/zor", labelValue);
    return true;
}();

} // namespace
