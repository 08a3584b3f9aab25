#pragma once

/// A scan from the command line.

#include <zor/monitor/scan/scanner.h>

#include <iosfwd>

namespace zor::monitor {

struct ScanTask {
    std::vector<std::string> addresses; ///< as scanLines() takes them
    int timeout = 0;                    ///< milliseconds for a reply; 0 for the usual
    std::string frames{};               ///< text file for every request and reply; empty for none
    bool progress = false;              ///< whether `errors` is a terminal on which somebody waits
};

/// Milliseconds that a unit has for its answer, unless somebody says otherwise: most units are not there.
inline constexpr int kUsualScanTimeout = 300;

/// Maker, product, revision and what else a device says of itself, with blanks between; safe to be shown.
[[nodiscard]] std::string identificationOf(const ScanHit& hit);

/// Prints a line for each device that answers: address, type, version, identification, round trip; into `errors`
/// the lines that cannot be reached, and why. In the program's event loop. 0 when there was one, 1 when not, 2
/// when frames are missing from their file. Raises AddressError and FileError before anything has been asked.
int runScan(const ScanTask& task, const ParameterFile& file, std::ostream& out, std::ostream& errors);

} // namespace zor::monitor
