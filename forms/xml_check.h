#pragma once

/// Looks a form file over before anything is built from it.

#include <cstddef>
#include <string_view>

namespace zor::forms {

/// @name How large a form may be
/// Ten thousand controls stay well below.
/// @{
inline constexpr std::size_t kMostBytes = 64UL * 1024 * 1024;
inline constexpr std::size_t kMostElements = 1'000'000;
inline constexpr std::size_t kDeepest = 200;
/// @}

/// The line a position is in, counted from 1.
[[nodiscard]] std::size_t lineOf(std::string_view text, std::size_t position) noexcept;

/// Raises FormError for what is not well-formed XML in UTF-8, for a document type definition, an entity that XML
/// itself does not know, and for a form beyond the limits. In one pass, with memory for the open elements alone.
void checkXml(std::string_view text, std::string_view file);

} // namespace zor::forms
