#pragma once

/// How the program ends, and what it says then.

#include <zor/monitor/device/device.h>

#include <stdexcept>
#include <string>

namespace zor::monitor {

/// The program's exit status.
enum ExitStatus : int {
    kWell = 0,
    kUnhealthy = 1, ///< of a comparison: different
    kUsage = 2,
    kSilent = 3, ///< of a comparison whose device did not answer
};

/// What has been asked for cannot be had.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Says on the error output why it ends with a status, which is returned.
int fail(int status, const std::string& text);
/// The same with the reason why the device does not answer, and what to try.
int failUnhealthy(std::string text, const Reply& failure, int status = kUnhealthy);
/// Raises FileError where a file cannot be written; what stands there stays. An empty name is none.
void requireWritable(const std::string& file);
/// The status, or that of a usage error when what was printed has not all arrived.
int withOutput(int status);
/// The status, or that of a usage error when lines are missing from the device's files.
int withFiles(Device& device, int status);

} // namespace zor::monitor
