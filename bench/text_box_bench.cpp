// The text box on the headless platform: a device value, and ten thousand controls.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/memory_bag.h>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <vector>

namespace {

using namespace zor;
using platform::headless::HeadlessContainer;
using platform::headless::MemoryPropertyBag;
using Boxes = std::vector<core::ControlPtr<ctx_ZorTextBox>>;

constexpr std::size_t kMany = 10'000;

struct Listener : __ctx_ZorTextBox {
    void OutputValueChange() override { ++outputs; }
    long outputs = 0;
};

void deviceValue(benchmark::State& state, bool listening, bool changing)
{
    HeadlessContainer container;
    auto box = ctx_ZorTextBox::create(container);
    box->initialiseProperties();
    Listener listener;
    if (listening)
        box->subscribe(listener);
    int value = 0;
    for (auto _ : state)
        box->DeviceValue(changing ? ++value % 100'000 : 1234);
    benchmark::DoNotOptimize(listener.outputs);
    if (listening)
        box->unsubscribe(listener);
}

void create(Boxes& boxes, HeadlessContainer& container)
{
    for (std::size_t i = 0; i < kMany; ++i) {
        boxes.push_back(ctx_ZorTextBox::create(container));
        boxes.back()->initialiseProperties();
    }
}

void createMany(benchmark::State& state)
{
    HeadlessContainer container;
    double bytes = 0;
    for (auto _ : state) {
        Boxes boxes;
        boxes.reserve(kMany);
        const auto before = mallinfo2().uordblks;
        create(boxes, container);
        bytes = static_cast<double>(mallinfo2().uordblks - before) / kMany;
        state.PauseTiming();
        boxes.clear();
        state.ResumeTiming();
    }
    state.counters["bytes_each"] = bytes;
}

void storeMany(benchmark::State& state)
{
    HeadlessContainer container;
    Boxes boxes;
    create(boxes, container);
    for (auto _ : state) {
        for (const auto& box : boxes) {
            MemoryPropertyBag bag;
            box->writeProperties(bag);
            benchmark::DoNotOptimize(bag);
        }
    }
}

void restoreMany(benchmark::State& state)
{
    HeadlessContainer container;
    MemoryPropertyBag bag;
    {
        auto box = ctx_ZorTextBox::create(container);
        box->initialiseProperties();
        box->DeviceTag("Distance");
        box->MaxValue(30000);
        box->writeProperties(bag);
    }
    for (auto _ : state) {
        Boxes boxes;
        boxes.reserve(kMany);
        for (std::size_t i = 0; i < kMany; ++i) {
            boxes.push_back(ctx_ZorTextBox::create(container));
            boxes.back()->readProperties(bag);
        }
        state.PauseTiming();
        boxes.clear();
        state.ResumeTiming();
    }
}

BENCHMARK_CAPTURE(deviceValue, changing_no_listener, false, true)->Name("DeviceValue, changing/zor");
BENCHMARK_CAPTURE(deviceValue, changing_listener, true, true)->Name("DeviceValue, changing/with listener");
BENCHMARK_CAPTURE(deviceValue, same_no_listener, false, false)->Name("DeviceValue, the same again/zor");
BENCHMARK_CAPTURE(deviceValue, same_listener, true, false)->Name("DeviceValue, the same again/with listener");
BENCHMARK(createMany)->Name("create 10,000 text boxes/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(storeMany)->Name("store 10,000 text boxes/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(restoreMany)->Name("restore 10,000 text boxes/zor")->Unit(benchmark::kMillisecond);

} // namespace
