// A value from one unit to another, against KUnitConversion. A program of its own, because that library stands
// on another version of Qt than the rest.

#include <zor/units/mod_Common.h>

#include <benchmark/benchmark.h>

#include <KUnitConversion/Converter>

namespace {

using namespace zor;

void zorConversion(benchmark::State& state)
{
    double value = 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert(value, Length, LgthU_INCH, LgthU_Mtr));
        benchmark::DoNotOptimize(convert(value, TEMPERATURE, TempU_DegC, TempU_DegF));
        value += 0.5;
    }
}

void kunitConversion(benchmark::State& state)
{
    using namespace KUnitConversion;
    UnitCategory length = Converter().category(LengthCategory);
    UnitCategory temperature = Converter().category(TemperatureCategory);
    const Unit meter = length.unit(Meter);
    const Unit fahrenheit = temperature.unit(Fahrenheit);
    double value = 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(length.convert(Value(value, Inch), meter).number());
        benchmark::DoNotOptimize(temperature.convert(Value(value, Celsius), fahrenheit).number());
        value += 0.5;
    }
}

BENCHMARK(zorConversion)->Name("two conversions/zor");
BENCHMARK(kunitConversion)->Name("two conversions/KUnitConversion");

} // namespace
