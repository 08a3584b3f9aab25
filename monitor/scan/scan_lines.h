#pragma once

/// The addresses of a scan as a user writes them.

#include <zor/monitor/link/device_address.h>

#include <QString>

#include <vector>

namespace zor::monitor {

/// A host, or a serial line with one setting, and the units to ask there.
struct ScanLine {
    QString address; ///< as openLink() takes it, without a unit
    std::vector<std::uint8_t> units;
    [[nodiscard]] QString addressOf(std::uint8_t unit) const;
};

/// An address as openLink() takes it, in which unit may be a list of numbers and ranges (1-5,7), and baud and
/// parity may be lists. Without a unit, 1 on TCP and 1 to 247 on a serial line. A line for each combination of the
/// others. Nothing is asked that is not written there. Raises AddressError.
[[nodiscard]] std::vector<ScanLine> scanLines(const QString& address);

} // namespace zor::monitor
