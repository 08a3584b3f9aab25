#pragma once

/// Settings files from the command line, without a window.

#include <zor/monitor/session/session.h>

#include <iosfwd>
#include <string>

namespace zor::monitor {

struct SettingsTask {
    std::string save;            ///< a file, or empty
    std::string load;            ///< a file, or empty
    std::string compare;         ///< a file, or empty
    std::string against;         ///< a file instead of the device
    bool yes = false;            ///< loading writes
    bool json = false;           ///< comparing prints JSON, for which English must be in force
    std::string language = "en"; ///< the one in force

    [[nodiscard]] bool isGiven() const { return !(save.empty() && load.empty() && compare.empty()); }
    [[nodiscard]] bool needsDevice() const { return against.empty(); }
};

/// Compares two files: 0 the same, 1 different. Raises FileError for a bad file.
int compareFiles(const ParameterFile& parameters, const SettingsTask& task, std::ostream& out);

/// Does the task with a session that has been started, in the program's event loop. The exit status:
/// saving: 0, 1 when the device did not answer; loading: 0 when all took, 1 when not; comparing: 0 the same,
/// 1 different, 3 when the device did not answer; each 2 without the operator's yes. Raises FileError for a file
/// that is bad or cannot be written, before anything is asked of the device.
int runSettings(Session& session, const SettingsTask& task, std::ostream& out, std::ostream& errors);

} // namespace zor::monitor
