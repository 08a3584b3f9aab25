// Numbers to texts and back, against the standard library and QLocale. Not all peers do the same: only QLocale
// knows the user's separators, and snprintf and to_chars round the binary value instead of the decimal one.

#include <zor/platform/number_text.h>
#include <zor/units/mod_Common.h>

#include <QLocale>
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstdio>

namespace {

using namespace zor;

constexpr std::array kValues{1234.5678, 0.0625, -17.8, 48210.125};
constexpr std::array<std::string_view, 4> kTexts{"1234.568", "0.063", "-17.8", "48210.125"};

void zorValueText(benchmark::State& state)
{
    for (auto _ : state) {
        for (const double value : kValues)
            benchmark::DoNotOptimize(formatValueText(value, LgthU_Mtr, 3));
    }
}

void toCharsText(benchmark::State& state)
{
    std::array<char, 64> buffer{};
    for (auto _ : state) {
        for (const double value : kValues) {
            const auto end =
                std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 3)
                    .ptr;
            benchmark::DoNotOptimize(std::string(buffer.data(), end));
        }
    }
}

void snprintfText(benchmark::State& state)
{
    std::array<char, 64> buffer{};
    for (auto _ : state) {
        for (const double value : kValues) {
            const int length = std::snprintf(buffer.data(), buffer.size(), "%.3f", value);
            benchmark::DoNotOptimize(std::string(buffer.data(), static_cast<std::size_t>(length)));
        }
    }
}

void qlocaleText(benchmark::State& state)
{
    const QLocale locale(QLocale::English);
    for (auto _ : state) {
        for (const double value : kValues)
            benchmark::DoNotOptimize(locale.toString(value, 'f', 3));
    }
}

void zorNumberTest(benchmark::State& state)
{
    for (auto _ : state) {
        for (const std::string_view text : kTexts)
            benchmark::DoNotOptimize(validNumber(text));
    }
}

void qlocaleNumberTest(benchmark::State& state)
{
    const QLocale locale(QLocale::English);
    std::array<QString, kTexts.size()> texts;
    for (std::size_t i = 0; i < kTexts.size(); ++i)
        texts[i] = QString::fromUtf8(kTexts[i].data(), static_cast<qsizetype>(kTexts[i].size()));
    for (auto _ : state) {
        for (const QString& text : texts) {
            bool ok = false;
            benchmark::DoNotOptimize(locale.toDouble(text, &ok));
            benchmark::DoNotOptimize(ok);
        }
    }
}

BENCHMARK(zorValueText)->Name("text of four values/zor");
BENCHMARK(toCharsText)->Name("text of four values/std::to_chars");
BENCHMARK(snprintfText)->Name("text of four values/snprintf");
BENCHMARK(qlocaleText)->Name("text of four values/QLocale");
BENCHMARK(zorNumberTest)->Name("test and read four texts/zor");
BENCHMARK(qlocaleNumberTest)->Name("test and read four texts/QLocale");

} // namespace
