#pragma once

/// A device's settings in a file: what every writable parameter held at one time.

#include <zor/monitor/data/codec.h>

#include <QByteArray>

#include <string>
#include <vector>

namespace zor::monitor {

/// What one parameter held.
struct Setting {
    std::string tag;
    Variant value; ///< a number (double) in `unit`, or a text
    MEAS_TYPE unit = NoneU;
    Registers registers{}; ///< as they were read; may be missing
    int line = 0;          ///< of the file that it was read from
};

struct SettingsFile {
    std::string name; ///< of the file, for people; not written into it
    std::string deviceType;
    std::string deviceVersion;
    std::string date; ///< ISO 8601, UTC
    std::string title;
    std::vector<Setting> settings;
};

/// Reads and checks the text of a settings file; `name` stands in its errors. Raises FileError with the line and
/// the reason for anything that is not as docs/settings-file.md says.
[[nodiscard]] SettingsFile readSettingsFile(std::string_view text, const std::string& name);

/// The same from a file. Raises FileError also where it cannot be read or has more than 16 MB.
[[nodiscard]] SettingsFile loadSettingsFile(const std::string& name);

/// The text of a settings file.
[[nodiscard]] QByteArray textOf(const SettingsFile& file);

/// What a parameter holds, as the file says it: a number as short as its type allows. `registers` must hold a
/// value.
[[nodiscard]] Setting settingOf(const Parameter& parameter, const Registers& registers);

/// The registers that a setting asks for.
struct Wanted {
    Registers registers{}; ///< empty when it has none
    Unfit unfit = Unfit::No;
};

/// The registers of the file where they say what the value says; else those of the value, which counts: it has
/// been edited, or the device lays its registers out otherwise. A number in a unit of another kind is none.
[[nodiscard]] Wanted wantedOf(const Parameter& parameter, const Setting& setting);

} // namespace zor::monitor
