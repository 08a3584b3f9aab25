#pragma once

/// What a key does to a widget that is plain memory.

#include <zor/platform/key_codes.h>
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

/// A key, as handlers have left it, on the widget that has the focus.
void applyKey(Widget& widget, const Stroke& stroke);

} // namespace zor::platform::headless
