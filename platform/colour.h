#pragma once

/// Colours: 0xRRGGBB, or one of the system colours, which keep their meaning when the theme changes.

#include <cstdint>

namespace zor {

/// A 32-bit colour: 0x00RRGGBB, or 0x800000NN for a system colour.
using Colour = std::uint32_t;

/// Composes a colour; each part counts modulo 256.
[[nodiscard]] constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) noexcept
{
    return (red & 0xFFU) << 16U | (green & 0xFFU) << 8U | (blue & 0xFFU);
}

/// Marks a system colour.
inline constexpr Colour kSystemColourBit = 0x80000000U;

/// Back of text fields and lists.
inline constexpr Colour WindowBackground = kSystemColourBit | 0x05U;
/// Back of forms and buttons.
inline constexpr Colour ButtonFace = kSystemColourBit | 0x0FU;
/// Text on them.
inline constexpr Colour ButtonText = kSystemColourBit | 0x12U;

inline constexpr Colour kRed = rgb(255, 0, 0);      ///< text of a control without communication
inline constexpr Colour kYellow = rgb(255, 255, 0); ///< field with an edit that is not yet in the device

} // namespace zor
