#pragma once

/// The arithmetic of widgets with a whole value between two ends, the same on every platform.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace zor::platform {

/// A value that never leaves its ends. Ends turned upside down hold it at the lower one.
struct WholeRange {
    std::int32_t value = 0;    ///< where it stands
    std::int32_t minimum = 0;  ///< the lower end
    std::int32_t maximum = 10; ///< the upper end

    /// Cut to the ends; whether the value has changed.
    bool moveTo(std::int32_t position) noexcept
    {
        const std::int32_t cut = std::max(std::min(position, maximum), minimum);
        return std::exchange(value, cut) != cut;
    }
    /// One step within the ends; whether the value has changed.
    bool step(bool up) noexcept
    {
        if (up ? value >= maximum : value <= minimum)
            return false;
        value += up ? 1 : -1;
        return true;
    }
};

/// Number of ticks that stand `frequency` (at least 1) apart on a track, both ends included.
[[nodiscard]] constexpr std::int32_t tickCount(const WholeRange& range, std::int32_t frequency) noexcept
{
    const std::int64_t length = std::int64_t{range.maximum} - range.minimum;
    const std::int64_t count = length <= 0 ? 1 : (length + frequency - 1) / frequency + 1;
    return static_cast<std::int32_t>(std::min<std::int64_t>(count, std::numeric_limits<std::int32_t>::max()));
}

/// How far Page Up and Page Down move a track: ten pages from end to end.
[[nodiscard]] constexpr std::int32_t pageStep(const WholeRange& range) noexcept
{
    constexpr std::int64_t kPages = 10;
    const std::int64_t length = std::int64_t{range.maximum} - range.minimum;
    return static_cast<std::int32_t>(std::max<std::int64_t>(length / kPages, 1));
}

} // namespace zor::platform
