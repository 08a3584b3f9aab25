// The value path, step by step, for callgrind: each case runs its work kRounds times between two requests to it,
// and callgrind writes a file of what was executed in between. Without valgrind the requests do nothing.

#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/controls/numeric/slider/ctx_ZorSlider.h>
#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>
#include <zor/platform/headless/container.h>
#include <zor/units/mod_Common.h>

#include <array>
#include <cstdio>
#include <string_view>
#include <valgrind/callgrind.h>

namespace {

using namespace zor;

constexpr int kRounds = 1000; // scripts/instructions divides by it

/// Counts `work(i)` under a name, after a few rounds that nobody counts: the first one resolves symbols and fills
/// strings.
template <class Work>
void count(const char* name, Work&& work)
{
    for (int i = 0; i < 10; ++i)
        work(i);
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < kRounds; ++i)
        work(i + 10);
    CALLGRIND_DUMP_STATS_AT(name);
}

/// Where results go, so that the compiler cannot leave their work out.
volatile double seen = 0;

void countUnits()
{
    struct Pair {
        UNIT_TYPE type;
        MEAS_TYPE from;
        MEAS_TYPE to;
    };
    constexpr std::array kPairs{Pair{Length, LgthU_INCH, LgthU_Mtr}, Pair{TEMPERATURE, TempU_DegC, TempU_DegF},
                                Pair{PRESSURE, PrU_Bar, PrU_Psi}, Pair{TIMEUNITS, TimeU_hr, TimeU_s}};
    constexpr std::array kValues{1234.5678, 0.0625, -17.8, 48210.125};
    constexpr std::array<std::string_view, 4> kTexts{"1234.568", "0.063", "-17.8", "48210.125"};
    const auto fourth = [](int i) { return static_cast<std::size_t>(i % 4); };
    count("conversion", [&](int i) {
        const Pair& pair = kPairs[fourth(i)];
        seen = convert(i, pair.type, pair.from, pair.to);
    });
    count("value text", [&](int i) { seen = formatValueText(kValues[fourth(i)], LgthU_Mtr, 3).front(); });
    count("number test", [&](int i) { seen = validNumber(kTexts[fourth(i)]).value_or(0); });
}

template <class Interface>
struct Listener : Interface {
    void OutputValueChange() override { seen = seen + 1; }
};

struct LabelListener : __ctx_ZorLabel {
    void labelChange() override { seen = seen + 1; }
};

template <class Control, class Interface>
void countNumeric(const char* changing, const char* same)
{
    platform::headless::HeadlessContainer container;
    const auto control = Control::create(container);
    control->initialiseProperties();
    control->MaxValue(100'000);
    control->OutputUnit(LgthU_CM);
    Listener<Interface> listener;
    control->subscribe(listener);
    count(changing, [&](int i) { control->DeviceValue(1000 + 100 * (i % 100)); });
    count(same, [&](int) { control->DeviceValue(1234); });
    control->unsubscribe(listener);
}

template <class Control>
void countCreation(const char* name)
{
    platform::headless::HeadlessContainer container;
    count(name, [&](int) { Control::create(container)->initialiseProperties(); });
}

void countLabel()
{
    platform::headless::HeadlessContainer container;
    const auto label = ctx_ZorLabel::create(container);
    label->initialiseProperties();
    LabelListener listener;
    label->subscribe(listener);
    constexpr std::array<std::string_view, 2> kTexts{"12.5 m", "12.6 m"};
    count("label, changing", [&](int i) { label->DeviceValue(kTexts[static_cast<std::size_t>(i % 2)]); });
    count("label, same", [&](int) { label->DeviceValue(kTexts[0]); });
    label->unsubscribe(listener);
}

} // namespace

int main()
{
    std::printf("rounds %d\n", kRounds);
    countUnits();
    countNumeric<ctx_ZorTextBox, __ctx_ZorTextBox>("text box, changing", "text box, same");
    countNumeric<ctx_ZorUpDown, __ctx_ZorUpDown>("up-down, changing", "up-down, same");
    countNumeric<ctx_ZorSlider, __ctx_ZorSlider>("slider, changing", "slider, same");
    countLabel();
    countCreation<ctx_ZorTextBox>("text box, created");
    countCreation<ctx_ZorSlider>("slider, created");
    return seen < 0 ? 1 : 0;
}
