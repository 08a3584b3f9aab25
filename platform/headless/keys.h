#pragma once

/// What a key does to a widget that is plain memory.

#include <zor/platform/widgets.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace zor::platform::headless {

/// The character that a handler made of a key press.
[[nodiscard]] std::string characterOf(std::int16_t code);

/// The code a key press reports for a character: its own for Latin-1, "?" beyond.
[[nodiscard]] std::int16_t codeOf(std::string_view character);

/// A field of one line takes no control characters from the keyboard: Enter and Tab are keys, not letters.
[[nodiscard]] bool isTyped(std::int16_t ascii);

/// What a click or the space bar does: a check box changes, an option button becomes selected.
void pushToggle(ToggleButton& button);

/// The key `code` on the widget that has the focus; `press` is the character that its key press was left with.
void applyKey(Widget& widget, std::int16_t code, std::int16_t press);

} // namespace zor::platform::headless
