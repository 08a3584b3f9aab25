#pragma once

/// Texts as the controls need them: UTF-8, counted in characters, never trusted.

#include <cstddef>
#include <string>
#include <string_view>

namespace zor::platform {

/// Number of characters (code points). A byte that is not part of valid UTF-8 counts as one character.
[[nodiscard]] std::size_t characterCount(std::string_view text) noexcept;

/// Byte offset at which the character number `index` (from 0) starts; the length of the text when it has
/// no such character.
[[nodiscard]] std::size_t byteOffset(std::string_view text, std::size_t index) noexcept;

/// Takes the first character off a text that is not empty; U+FFFD for a byte that is not valid UTF-8.
char32_t takeCharacter(std::string_view& text) noexcept;

/// Appends a character in UTF-8; U+FFFD for a number that is none.
void appendCharacter(std::string& text, char32_t character);

/// Whether every byte is part of valid UTF-8 (no overlong forms, no surrogates).
[[nodiscard]] bool isUtf8(std::string_view text) noexcept;

/// The text with every byte that is not valid UTF-8 (overlong forms and surrogates included) replaced by
/// U+FFFD. Embedded NULs stay.
[[nodiscard]] std::string validUtf8(std::string_view text);

/// Without the blanks (U+0020) at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// Whether two texts are equal without regard to case, at least for the letters of Latin-1. What is no UTF-8 is
/// U+FFFD here, one byte as the other.
[[nodiscard]] bool equalIgnoringCase(std::string_view left, std::string_view right) noexcept;

/// Negative, 0 or positive: order of two texts, character by character without regard to case.
[[nodiscard]] int compareIgnoringCase(std::string_view left, std::string_view right) noexcept;

/// Upper case, at least for the letters of Latin-1 (the sharp s and the y with diaeresis stay).
[[nodiscard]] std::string upperCase(std::string_view text);

} // namespace zor::platform
