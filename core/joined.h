#pragma once

/// A table out of several parts.

#include <algorithm>
#include <array>
#include <cstddef>

namespace zor::core {

/// One table out of several parts, in their order.
template <class T, std::size_t... N>
[[nodiscard]] constexpr auto joined(const std::array<T, N>&... parts)
{
    std::array<T, (N + ...)> table{};
    auto at = table.begin();
    ((at = std::ranges::copy(parts, at).out), ...);
    return table;
}

} // namespace zor::core
