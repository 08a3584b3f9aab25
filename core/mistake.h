#pragma once

/// What a table says wrongly.

namespace zor::core {

/// Called while a table is looked over at compile time: no constant expression may reach it, so the compiler stops
/// and shows the text.
inline void mistake(const char* /*whatToDo*/) noexcept {}

} // namespace zor::core
