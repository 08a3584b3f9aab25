#include <zor/monitor/trend/axis.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zor::monitor {

double roundStep(double size, int most)
{
    const double least = size / std::max(1, most);
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least)
            return factor * power;
    }
    return 10 * power;
}

int decimalsFor(double step)
{
    constexpr double kSlack = 1e-9;
    constexpr double kMost = 12;
    return static_cast<int>(std::clamp(-std::floor(std::log10(step) + kSlack), 0.0, kMost));
}

std::int64_t timeStep(std::int64_t milliseconds, int most)
{
    constexpr std::int64_t kSecond = 1000;
    constexpr std::int64_t kMinute = 60 * kSecond;
    constexpr std::int64_t kHour = 60 * kMinute;
    constexpr std::int64_t kDay = 24 * kHour;
    constexpr std::array<std::int64_t, 22> kSteps{
        100,          200,       500,         kSecond,     2 * kSecond,  5 * kSecond,  10 * kSecond, 15 * kSecond,
        30 * kSecond, kMinute,   2 * kMinute, 5 * kMinute, 10 * kMinute, 15 * kMinute, 30 * kMinute, kHour,
        2 * kHour,    3 * kHour, 6 * kHour,   12 * kHour,  kDay,         7 * kDay};
    const std::int64_t least = milliseconds / std::max(1, most);
    const auto* const step = std::ranges::lower_bound(kSteps, least);
    return step != kSteps.end() ? *step : (least + kDay - 1) / kDay * kDay;
}

Span withRoom(Span values)
{
    constexpr double kRoom = 0.05;
    constexpr double kLeast = 1e-9; ///< of the size of the values: below, it is the rounding that would be drawn
    const double size = std::max(std::fabs(values.low), std::fabs(values.high));
    if (values.size() <= size * kLeast) {
        const double half = size > 0 ? size * kRoom : 1;
        return {values.low - half, values.high + half};
    }
    return {values.low - values.size() * kRoom, values.high + values.size() * kRoom};
}

} // namespace zor::monitor
