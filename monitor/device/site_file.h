#pragma once

/// The devices of a site, in a file.

#include <zor/monitor/device/device.h>

#include <QByteArray>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace zor::monitor {

struct SiteFile {
    QString title;
    std::vector<DeviceEntry> devices; ///< at least one; names of files count from where the program was started,
                                      ///< those of one that was read are whole
};

/// A file that one device would write over what another writes or reads.
struct FileClash {
    std::size_t device; ///< in the list
    const char* member; ///< of the site file that names it: "log" or "frames"
    const char* reason; ///< an English text of the context "texts", with the member in place of %1
};

/// The first of them among devices that are open at a time; `site` is a file that is read as well, or empty.
[[nodiscard]] std::optional<FileClash> clashIn(std::span<const DeviceEntry> devices, const QString& site = {});

/// Reads and checks the text of a site file; `name` stands in its errors, and names of files in it count from its
/// folder. Raises FileError with the line and the reason for anything that is not as docs/site-file.md says. What
/// the entries name is not looked at.
[[nodiscard]] SiteFile readSiteFile(std::string_view text, const QString& name);

/// The same from a file. Raises FileError also where it cannot be read or has more than 16 MB.
[[nodiscard]] SiteFile loadSiteFile(const QString& name);

/// The text of a site file that will stand in `folder`: names of files below it count from there.
[[nodiscard]] QByteArray textOf(const SiteFile& site, const QString& folder);

} // namespace zor::monitor
