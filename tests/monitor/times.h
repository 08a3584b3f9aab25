#pragma once

namespace zor::tests {

/// A round of polling, how long a device has for its answer, and how long a test waits for what must come, in
/// milliseconds.
inline constexpr int kPeriod = 150;
inline constexpr int kDeadline = 300;
inline constexpr int kPatience = 5000;

} // namespace zor::tests
