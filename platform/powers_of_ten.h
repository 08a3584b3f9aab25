#pragma once

#include <array>

namespace zor::platform {

/// The powers of ten by which numbers of up to 15 digits are scaled; all are exact.
inline constexpr std::array kPowersOfTen{1.0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

} // namespace zor::platform
