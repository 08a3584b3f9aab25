#pragma once

/// How the program ends, and what it says then.

#include <zor/monitor/device/device.h>

#include <stdexcept>
#include <string>

namespace zor::monitor {

/// The program's exit status; a comparison has one more.
enum ExitStatus : int { kWell = 0, kUnhealthy = 1, kUsage = 2 };

/// What has been asked for cannot be had.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Says on the error output why it ends with a status, which is returned.
int fail(int status, const std::string& text);
/// The same with the reason why the device does not answer, and what to try.
int failUnhealthy(std::string text, const Reply& failure, int status = kUnhealthy);
/// The status, or that of a usage error when lines are missing from the device's files.
int withFiles(Device& device, int status);

} // namespace zor::monitor
