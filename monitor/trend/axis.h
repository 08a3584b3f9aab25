#pragma once

/// Where the marks of an axis stand.

#include <cstdint>

namespace zor::monitor {

/// What an axis shows.
struct Span {
    double low = 0;
    double high = 1;
    [[nodiscard]] double size() const { return high - low; }
};

/// The least round step (1, 2 or 5 times a power of ten) by which a span has no more than so many marks.
[[nodiscard]] double roundStep(double size, int most);

/// Decimals that tell the marks of a step apart.
[[nodiscard]] int decimalsFor(double step);

/// The same for milliseconds, by which people count: seconds, minutes, hours and days that go into the next
/// larger.
[[nodiscard]] std::int64_t timeStep(std::int64_t milliseconds, int most);

/// Some room above and below the values; a span of its own where there is only one.
[[nodiscard]] Span withRoom(Span values);

} // namespace zor::monitor
