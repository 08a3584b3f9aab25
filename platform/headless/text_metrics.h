#pragma once

/// Text widths without a font: the same on every machine, so that a layout can be checked to the twip.

#include <zor/platform/widgets.h>

#include <string_view>

namespace zor::platform::headless {

/// Height of a line of text, in twips.
inline constexpr Twips kLineHeight = 195;

/// Width of a text in twips: every character has the width of its class (narrow, common, wide, beyond
/// Latin), a bold one 15 more. Line breaks count as common characters.
[[nodiscard]] Twips textWidth(std::string_view text, bool bold) noexcept;

} // namespace zor::platform::headless
