#pragma once

/// Qt's keys and buttons as the codes that events carry.

#include <QKeyEvent>

#include <cstdint>

namespace zor::platform::qt {

[[nodiscard]] std::int16_t codeOf(const QKeyEvent& key);
/// The character a key press enters: 1 to 255, "?" beyond Latin-1, 0 for none.
[[nodiscard]] std::int16_t characterOf(const QKeyEvent& key);
[[nodiscard]] std::int16_t shiftOf(Qt::KeyboardModifiers modifiers);
[[nodiscard]] std::int16_t buttonsOf(Qt::MouseButtons buttons);
/// The Qt key of a code, Key_unknown where there is none.
[[nodiscard]] Qt::Key keyOf(std::int16_t code);

} // namespace zor::platform::qt
