#pragma once

/// What stands in a file that somebody has named.

#include <string>

namespace zor::monitor {

/// The whole of it. Raises FileError where it cannot be read or has more than 16 MB.
[[nodiscard]] std::string contentOf(const std::string& name);

} // namespace zor::monitor
