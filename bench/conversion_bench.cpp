// A value from one unit to another, against UDUNITS-2. Both get a pair of units they have seen before: the
// controls look factor and offset up for every value, UDUNITS prepares a converter once.

#include <zor/units/mod_Common.h>

#include <benchmark/benchmark.h>

#include <array>
#include <udunits2.h>

namespace {

using namespace zor;

struct Pair {
    UNIT_TYPE type;
    MEAS_TYPE from;
    MEAS_TYPE to;
    const char* udunitsFrom;
    const char* udunitsTo;
};

constexpr std::array kPairs{Pair{Length, LgthU_INCH, LgthU_Mtr, "inch", "meter"},
                            Pair{TEMPERATURE, TempU_DegC, TempU_DegF, "degC", "degF"},
                            Pair{PRESSURE, PrU_Bar, PrU_Psi, "bar", "psi"},
                            Pair{TIMEUNITS, TimeU_hr, TimeU_s, "hour", "second"}};

void zorConversion(benchmark::State& state)
{
    double value = 1;
    for (auto _ : state) {
        for (const Pair& pair : kPairs)
            benchmark::DoNotOptimize(convert(value, pair.type, pair.from, pair.to));
        value += 0.5;
    }
}

void udunitsConversion(benchmark::State& state)
{
    ut_set_error_message_handler(ut_ignore);
    ut_system* system = ut_read_xml(nullptr);
    if (system == nullptr)
        return state.SkipWithError("UDUNITS-2 has no unit database");
    std::array<cv_converter*, kPairs.size()> converters{};
    for (std::size_t i = 0; i < kPairs.size(); ++i) {
        ut_unit* from = ut_parse(system, kPairs[i].udunitsFrom, UT_UTF8);
        ut_unit* to = ut_parse(system, kPairs[i].udunitsTo, UT_UTF8);
        converters[i] = ut_get_converter(from, to);
        ut_free(from);
        ut_free(to);
    }
    double value = 1;
    for (auto _ : state) {
        for (const cv_converter* converter : converters)
            benchmark::DoNotOptimize(cv_convert_double(converter, value));
        value += 0.5;
    }
    for (cv_converter* converter : converters)
        cv_free(converter);
    ut_free_system(system);
}

BENCHMARK(zorConversion)->Name("four conversions/zor");
BENCHMARK(udunitsConversion)->Name("four conversions/udunits2");

} // namespace
