#pragma once

#include <zor/tools/zorsh/session.h>

namespace zor::console {

/// Talks to a person on a terminal until `quit` or the end of input: a prompt, and, where the program was
/// built with a line editor, history and completed names. Returns the number of failed expectations.
[[nodiscard]] int converse(Session& session);

} // namespace zor::console
