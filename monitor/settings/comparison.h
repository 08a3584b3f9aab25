#pragma once

/// What differs between a settings file and a device, or another file, and what it would take to even it out.

#include <zor/monitor/session/changes.h>
#include <zor/monitor/session/session.h>
#include <zor/monitor/settings/settings_file.h>

namespace zor::monitor {

enum class Verdict : std::uint8_t {
    Same,
    Different,
    MissingHere,  ///< the file has it, the device has not
    MissingThere, ///< the device has it, the file has not
    NotWritable,  ///< the file has it, the device does not let it be written
    Unfit,        ///< the file's value is none for this parameter
};

/// What the file is compared with: a device as it was read, or another file.
struct Held {
    std::string deviceType;
    std::string deviceVersion;
    unsigned device = 0;              ///< as the session counts them
    std::vector<Registers> registers; ///< of each parameter; empty where there is no value
};
[[nodiscard]] Held heldBy(const Session& session);
[[nodiscard]] Held heldBy(const ParameterFile& parameters, const SettingsFile& file);

struct Compared {
    Verdict verdict = Verdict::Same;
    std::string tag;
    std::optional<std::size_t> parameter{};
    Problem problem = Problem::None; ///< why the file's value cannot be written
    Registers there{};               ///< what the file asks for
    Registers here{};
    std::string fileText{}; ///< in `unit`
    std::string deviceText{};
    MEAS_TYPE unit = NoneU;
};

struct Comparison {
    std::vector<Compared> rows; ///< of every tag: in the order of the parameter file, then those that it lacks
    bool otherType = false;     ///< the file is of another type of device; unknown counts as any
    bool otherVersion = false;
    unsigned device = 0;
    [[nodiscard]] std::size_t count(Verdict verdict) const;
    [[nodiscard]] bool isSame() const { return count(Verdict::Same) == rows.size(); }
};

/// Writes nothing. Values are shown in the units of the parameter file.
[[nodiscard]] Comparison compare(const ParameterFile& parameters, const SettingsFile& file, const Held& held,
                                 const std::string& language);

/// What gives the device the values of the file where they differ, for review: bits as an edit of those that
/// differ, so that others in the register stay; values outside the limits with that problem.
[[nodiscard]] std::vector<Change> changesOf(const ParameterFile& parameters, const Comparison& comparison,
                                            const std::string& language);

/// The parameters that must have been read for a comparison with the file, or for a new file: those that can be
/// written, and those that it has.
[[nodiscard]] std::vector<std::size_t> concerned(const ParameterFile& parameters, const SettingsFile& file);

/// For a settings file: what the parameters that can be written hold, as far as the device has a value.
[[nodiscard]] SettingsFile settingsOf(const Session& session);

/// English names of the verdicts, in their order, as the command line says them.
[[nodiscard]] std::span<const std::string_view> verdictNames() noexcept;
/// Why a value of the file cannot be written, in English; empty for Problem::None.
[[nodiscard]] std::string_view reasonOf(Problem problem) noexcept;

} // namespace zor::monitor
