#pragma once

/// Bits of a device value by their number.

#include <cstdint>

namespace zor::controls {

/// The mask of a bit: 1 for bit 0 up to 2^30 for bit 30. Any other number names no bit: its mask is 0, so it
/// is never set in a value and setting it changes nothing.
[[nodiscard]] constexpr std::int32_t bitMask(std::int32_t bit) noexcept
{
    constexpr std::int32_t kHighestBit = 30;
    return bit >= 0 && bit <= kHighestBit ? std::int32_t{1} << bit : 0;
}

/// The value with the bits of the mask set or cleared, all others as they were.
[[nodiscard]] constexpr std::int32_t withBits(std::int32_t value, std::int32_t mask, bool set) noexcept
{
    return set ? value | mask : value & ~mask;
}

} // namespace zor::controls
