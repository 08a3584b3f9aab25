#pragma once

/// What the program is told when it is started.

#include <zor/monitor/device/device.h>
#include <zor/monitor/program/settings_commands.h>
#include <zor/monitor/session/unit_system.h>

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zor::monitor {

/// The options, as they were given.
struct Settings {
    std::string form;
    std::string parameters;
    std::string device;
    std::string screenshot;
    std::string log;
    std::string frames;
    std::string language;
    std::string units = "form";
    int period = 500;
    int timeout = 0;
    int runFor = 0;
    int serve = 0;
    int tab = 0;
    std::vector<std::string> trend;
    std::vector<std::string> saveTrend;
    std::string report;
    std::vector<std::string> scan;
    SettingsTask task;
    std::string site;
    bool asks = false; ///< the operator is asked what to show
};

/// Says where each option goes, and what it takes.
void addOptions(CLI::App& app, Settings& settings);

/// How values are to be shown.
[[nodiscard]] UnitSystem unitsOf(const Settings& settings);
/// The one device that the options name.
[[nodiscard]] DeviceEntry entryOf(const Settings& settings);

} // namespace zor::monitor
