#include <zor/monitor/data/language_rows.h>
#include <zor/monitor/program/options.h>

#include <CLI/CLI.hpp>

#include <map>

namespace zor::monitor {
namespace {

const std::map<std::string, UnitSystem> kUnitSystems{{"form", UnitSystem::Form},
                                                     {"metric", UnitSystem::Metric},
                                                     {"us", UnitSystem::Us},
                                                     {"device", UnitSystem::Device}};

CLI::Validator endingIn(const char* one, const char* other)
{
    return {[=](const std::string& name) {
                return name.ends_with(one) || name.ends_with(other) ? ""
                                                                    : name + ": neither " + one + " nor " + other;
            },
            "FILE"};
}

} // namespace

void addOptions(CLI::App& app, Settings& settings)
{
    constexpr int kLongest = 86400;
    std::vector<std::string> codes;
    codes.reserve(kLanguages.size());
    for (const LanguageRow& language : kLanguages)
        codes.emplace_back(language.code);
    auto* form =
        app.add_option("--form", settings.form,
                       "form drawn in Qt Designer (.ui); without it, one is made from the parameter file");
    auto* parameters =
        app.add_option("--parameters", settings.parameters,
                       "file that says where the device's parameters lie; without it, the demonstration device's");
    auto* device = app.add_option(
        "--device", settings.device,
        "tcp://HOST:PORT[?unit=N] or rtu:DEVICE[?unit=N&baud=B&parity=P&stop=S]; without it, or with simulated, a "
        "simulated device");
    app.add_option("--period", settings.period, "milliseconds from poll to poll")
        ->check(CLI::Range(kShortestPeriod, kLongestPeriod));
    app.add_option("--timeout", settings.timeout, "milliseconds for a whole reply; without it, the poll period")
        ->check(CLI::Range(kShortestTimeout, kLongestPeriod));
    app.add_option("--run-for", settings.runFor, "seconds to run unattended; prints what was read")
        ->check(CLI::Range(1, kLongest));
    auto* screenshot =
        app.add_option("--screenshot", settings.screenshot, "file for a picture of the window, taken at the end");
    auto* log = app.add_option("--log", settings.log,
                               "CSV file to which reads that change their outcome and writes are added");
    auto* frames =
        app.add_option("--frames", settings.frames, "text file for every request and reply, as they come");
    app.add_option(
           "--language", settings.language,
           "en, de or fr; without it, in the window the one last chosen there, else that of the environment")
        ->check(CLI::IsMember(codes));
    app.add_option("--units", settings.units, "form, metric, us or device")->check(CLI::IsMember(kUnitSystems));
    app.add_option("--tab", settings.tab, "number of the tab in front, from 0")->check(CLI::Range(0, 1000));
    auto* trend =
        app.add_option("--trend", settings.trend, "tags of parameters to be plotted, with commas between")
            ->delimiter(',')
            ->allow_extra_args(false);
    app.add_option("--save-trend", settings.saveTrend,
                   "file for the curves at the end: values (.csv) or a picture (.png)")
        ->check(endingIn(".csv", ".png"))
        ->allow_extra_args(false)
        ->needs(trend);
    auto* save = app.add_option("--save-settings", settings.task.save,
                                "file for what every parameter that can be written holds");
    auto* load = app.add_option("--load-settings", settings.task.load,
                                "settings file to be written into the device, with --yes; without it, only the "
                                "list of what would be");
    auto* compare = app.add_option("--compare", settings.task.compare,
                                   "settings file to be compared with the device, or with another file");
    save->excludes(load, compare);
    load->excludes(compare);
    app.add_flag("--yes", settings.task.yes, "writes what --load-settings lists")->needs(load);
    auto* against =
        app.add_option("--against", settings.task.against, "settings file instead of the device")->needs(compare);
    auto* report =
        app.add_option(
               "--report", settings.report,
               "file for a report (.pdf or .html): with --run-for at the end, else as soon as every parameter has "
               "been read; with --compare or --load-settings as well about that file")
            ->check(endingIn(".pdf", ".html"))
            ->excludes(against);
    app.add_flag("--json", settings.task.json, "prints the comparison as JSON")->needs(compare);
    app.add_option(
           "--scan", settings.scan,
           "addresses to look for devices at, as of --device; unit may be a list (1-10,17), and so may baud "
           "and parity")
        ->excludes(save, load, compare, report);
    app.add_option("--site", settings.site, "file that lists several devices, each with its own files")
        ->excludes(device, parameters, form, log, frames, save, load, compare, report);
    // What nobody would look at is not taken in silence.
    screenshot->excludes(save, load, compare);
    trend->excludes(save, load, compare);
    app.add_option("--serve", settings.serve, "run only the simulated device, on this port")
        ->check(CLI::Range(1, 65535))
        ->excludes(device, form, screenshot, log, frames, trend, save, load, compare, report);
}

UnitSystem unitsOf(const Settings& settings) { return kUnitSystems.at(settings.units); }

DeviceEntry entryOf(const Settings& settings)
{
    DeviceEntry entry;
    entry.address = QString::fromStdString(settings.device);
    entry.parameters = QString::fromStdString(settings.parameters);
    entry.form = QString::fromStdString(settings.form);
    entry.record = QString::fromStdString(settings.log);
    entry.frames = QString::fromStdString(settings.frames);
    entry.period = settings.period;
    entry.timeout = settings.timeout;
    return entry;
}

} // namespace zor::monitor
