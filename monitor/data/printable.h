#pragma once

/// Texts of a device or a file where they must not steer who shows them: a terminal, a line of a table.

#include <string>
#include <string_view>

namespace zor::monitor {

/// A text in UTF-8 with a question mark for each control character.
[[nodiscard]] std::string printable(std::string_view utf8);

/// The same of bytes of which nobody says what they are: nothing but ASCII stays.
[[nodiscard]] std::string printableAscii(std::string_view bytes);

} // namespace zor::monitor
