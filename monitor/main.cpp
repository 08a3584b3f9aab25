#include <zor/controls/registration.h>
#include <zor/forms/form_error.h>
#include <zor/monitor/device/site_file.h>
#include <zor/monitor/report/report.h>
#include <zor/monitor/scan/scan_command.h>
#include <zor/monitor/settings/settings_commands.h>
#include <zor/monitor/settings/survey.h>
#include <zor/monitor/ui/frames_dock.h>
#include <zor/monitor/ui/open_dialog.h>
#include <zor/monitor/ui/window.h>
#include <zor/platform/version.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QMessageBox>
#include <QSaveFile>

#include <iostream>
#include <numeric>
#include <unistd.h>

namespace {

using namespace zor::monitor;

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

enum ExitStatus : int { kWell = 0, kUnhealthy = 1, kUsage = 2 };

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

void addOptions(CLI::App& app, Settings& settings)
{
    constexpr int kLongest = 86400;
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
    app.add_option("--period", settings.period, "milliseconds from poll to poll")->check(CLI::Range(100, 60000));
    app.add_option("--timeout", settings.timeout, "milliseconds for a whole reply; without it, the poll period")
        ->check(CLI::Range(10, 60000));
    app.add_option("--run-for", settings.runFor, "seconds to run unattended; prints what was read")
        ->check(CLI::Range(1, kLongest));
    app.add_option("--screenshot", settings.screenshot, "file for a picture of the window, taken at the end");
    auto* log = app.add_option("--log", settings.log,
                               "CSV file to which reads that change their outcome and writes are added");
    auto* frames =
        app.add_option("--frames", settings.frames, "text file for every request and reply, as they come");
    app.add_option("--language", settings.language, "en, de or fr; without it, that of the environment")
        ->check(CLI::IsMember({"en", "de", "fr"}));
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
    app.add_option("--serve", settings.serve, "run only the simulated device, on this port")
        ->check(CLI::Range(1, 65535));
}

using Panels = std::vector<std::unique_ptr<DevicePanel>>;

/// What has been asked for cannot be had.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

int fail(int status, const std::string& text)
{
    std::cerr << "zor-monitor: " << text << '\n';
    return status;
}

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

/// Why the device does not answer, and what to try.
int failUnhealthy(std::string text, const Reply& failure, int status = kUnhealthy)
{
    if (!failure.reason.empty())
        text += ": " + failure.reason;
    if (const std::string_view advice = adviceOn(failure.fault, failure.exception); !advice.empty())
        text.append("\n").append(advice);
    return fail(status, text);
}

/// The status, or 2 when lines are missing from a file.
int withFiles(Device& device, int status)
{
    if (const QString error = device.session().recordError(); !error.isEmpty())
        return fail(kUsage, device.entry().record.toStdString() + ": " + error.toStdString());
    if (const QString error = device.framesError(); !error.isEmpty())
        return fail(kUsage, device.entry().frames.toStdString() + ": " + error.toStdString());
    return status;
}

int serve(const ParameterFile& file, int port)
{
    Simulator device(file, port);
    if (!device.start())
        return fail(kUsage, "port " + std::to_string(port) + ": " + device.error().toStdString());
    std::cout << "serving on 127.0.0.1:" << device.port() << std::endl;
    return QApplication::exec();
}

/// Says how a device has fared.
int finish(DevicePanel& panel, const Settings& settings)
{
    Session& session = panel.session();
    if (settings.runFor == 0)
        return kWell;
    const std::string name = settings.site.empty() ? std::string() : panel.name().toStdString() + ": ";
    const int rounds = session.poller().rounds();
    if (session.failedRounds() > 0 || rounds == 0)
        return failUnhealthy(name + "the device did not answer in " + std::to_string(session.failedRounds()) +
                                 " of " + std::to_string(rounds) + " rounds",
                             session.poller().failure());
    if (!session.hasValues())
        return failUnhealthy(name + "the device has none of the parameters", session.link().lastFailure());
    return kWell;
}

int finish(Window& window, const Settings& settings)
{
    int status = kWell;
    for (const auto& panel : window.panels()) {
        if (!settings.site.empty())
            std::cout << panel->name().toStdString() << '\n';
        if (settings.runFor > 0 || !settings.screenshot.empty())
            std::cout << panel->session().report();
        status = std::max(status, withFiles(panel->device(), finish(*panel, settings)));
    }
    if (!settings.screenshot.empty() && !window.grab().save(QString::fromStdString(settings.screenshot)))
        return fail(kUsage, "cannot write " + settings.screenshot);
    for (const std::string& name : settings.saveTrend) {
        const QString error = window.trend().saveTo(QString::fromStdString(name));
        if (!error.isEmpty())
            return fail(kUsage, name + ": " + error.toStdString());
    }
    if (!settings.report.empty()) {
        const QString error =
            window.report().save(window.front(), QString::fromStdString(settings.report), std::nullopt, true);
        if (!error.isEmpty())
            return fail(kUsage, settings.report + ": " + error.toStdString());
    }
    return status;
}

/// As it was asked for, else chosen last, else that of the environment.
QString languageOf(const Settings& settings, const Memory& memory = Memory())
{
    const QString language =
        settings.language.empty() ? memory.language() : QString::fromStdString(settings.language);
    return language.isEmpty() ? Languages::systemLanguage() : language;
}

/// What the device is asked for and reported is in the operator's language; what was printed before is English.
int report(Session& session, const Settings& settings)
{
    session.setUnits(kUnitSystems.at(settings.units));
    Languages languages;
    languages.use(languageOf(settings));
    ReportParts parts;
    parts.language = languages.current().toStdString();
    const std::string& compared = settings.task.compare.empty() ? settings.task.load : settings.task.compare;
    if (!compared.empty())
        parts.compared = loadSettingsFile(compared);
    std::vector<std::size_t> all(session.file().parameters.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const bool whole = surveyAtOnce(session, std::move(all));
    // What is missing is named in it: after a write it must not be lost with the device.
    const QString error = saveReport(QString::fromStdString(settings.report), session, parts);
    if (!error.isEmpty())
        return fail(kUsage, settings.report + ": " + error.toStdString());
    if (whole)
        return kWell;
    constexpr int kSilent = 3; ///< of a comparison
    return failUnhealthy("the device did not answer for all parameters", session.poller().failure(),
                         settings.task.compare.empty() ? kUnhealthy : kSilent);
}

int transfer(const Settings& settings, ParameterFile file)
{
    if (!settings.task.needsDevice())
        return compareFiles(file, settings.task, std::cout);
    if (QSaveFile target(QString::fromStdString(settings.report));
        !settings.report.empty() && !target.open(QIODevice::WriteOnly))
        throw FileError(settings.report, 0, target.errorString().toStdString());
    Device device(entryOf(settings), std::move(file));
    device.start();
    int status = kWell;
    if (settings.task.isGiven())
        status = runSettings(device.session(), settings.task, std::cout, std::cerr);
    if (!settings.report.empty()) {
        const int reported = report(device.session(), settings);
        status = status == kWell ? reported : status;
    }
    return withFiles(device, status);
}

/// Asks the operator what to show; nothing when he has thought better of it.
Panels ask(const Memory& memory, const zor::core::ClassRegistry& classes)
{
    OpenDialog dialog(memory.recent());
    Panels panels;
    while (panels.empty() && dialog.exec() == QDialog::Accepted) {
        try {
            panels.push_back(openPanel(dialog.entry(), classes));
        } catch (const std::exception& error) {
            QMessageBox box(QMessageBox::Warning, dialog.windowTitle(), QString::fromUtf8(error.what()));
            box.setTextFormat(Qt::PlainText); // what a file says is no mark-up
            box.exec();
        }
    }
    return panels;
}

Panels openAll(const Settings& settings, const zor::core::ClassRegistry& classes)
{
    Panels panels;
    if (settings.site.empty()) {
        panels.push_back(openPanel(entryOf(settings), classes));
        return panels;
    }
    for (const DeviceEntry& entry : loadSiteFile(QString::fromStdString(settings.site)).devices)
        panels.push_back(openPanel(entry, classes));
    return panels;
}

void showTab(Form& form, int tab)
{
    const int tabs = form.tabs() != nullptr ? std::max(1, form.tabs()->count()) : 1;
    if (tab >= tabs)
        throw UsageError("--tab " + std::to_string(tab) + ": the last tab is " + std::to_string(tabs - 1));
    if (form.tabs() != nullptr)
        form.tabs()->setCurrentIndex(tab);
}

void plot(Window& window, const std::vector<std::string>& tags)
{
    const Session& session = window.session();
    for (const std::string& tag : tags) {
        const auto parameter = session.indexOf(tag);
        if (!parameter || !Trend::isPlottable(session.file().parameters[*parameter]))
            throw UsageError("--trend " + tag + ": no parameter that is a number");
        window.trend().add(*parameter);
    }
}

void start(Window& window, const Settings& settings)
{
    for (const auto& panel : window.panels()) {
        if (settings.runFor > 0)
            panel->session().readEverything();
        panel->device().start();
    }
    if (settings.runFor > 0) {
        constexpr int kSecond = 1000;
        QTimer::singleShot(settings.runFor * kSecond, &window, [&] { window.closeUnasked(); });
    }
}

int monitor(const Settings& settings)
{
    // What nobody watches leaves no traces and looks the same each time.
    const bool watched = settings.runFor == 0 && settings.screenshot.empty();
    QSettings stored("ZorSmartControls", "zor-monitor");
    const Memory memory(watched ? &stored : nullptr);
    Languages languages;
    languages.use(languageOf(settings, memory));
    zor::core::ClassRegistry classes;
    zor::registerControls(classes);
    Panels panels = settings.asks ? ask(memory, classes) : openAll(settings, classes);
    if (panels.empty())
        return kWell;
    if (!settings.site.empty())
        memory.addRecentSite(QString::fromStdString(settings.site));
    else if (settings.asks || !settings.device.empty() || !settings.parameters.empty())
        memory.addRecent(panels.front()->device().entry());
    showTab(panels.front()->form(), settings.tab);
    Window window(std::move(panels.front()), languages, classes);
    for (std::size_t i = 1; i < panels.size(); ++i)
        window.add(std::move(panels[i]));
    FramesDock::addTo(window);
    window.remember(memory);
    if (settings.units != "form")
        window.setUnits(kUnitSystems.at(settings.units));
    plot(window, settings.trend);
    window.show();
    start(window, settings);
    QApplication::exec();
    return finish(window, settings);
}

int run(int argc, char** argv)
{
    Settings settings;
    CLI::App app{"Shows and edits the parameters of a Modbus device."};
    app.set_version_flag("--version", "zor-monitor " + std::string(zor::version()));
    addOptions(app, settings);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kWell : kUsage;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY") &&
        !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const Languages resources;
    const QString screen = QApplication::platformName();
    settings.asks = argc == 1 && screen != "offscreen" && screen != "minimal";
    if (!settings.scan.empty())
        return runScan({settings.scan, settings.timeout, settings.frames, isatty(STDERR_FILENO) != 0},
                       loadParameters(entryOf(settings)), std::cout, std::cerr);
    if (settings.task.isGiven() || (!settings.report.empty() && settings.runFor == 0))
        return transfer(settings, loadParameters(entryOf(settings)));
    if (settings.serve > 0)
        return serve(loadParameters(entryOf(settings)), settings.serve);
    return monitor(settings);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const FileError& error) {
        return fail(kUsage, error.what());
    } catch (const zor::forms::FormError& error) {
        return fail(kUsage, error.what());
    } catch (const AddressError& error) {
        return fail(kUsage, error.what());
    } catch (const UsageError& error) {
        return fail(kUsage, error.what());
    } catch (const std::exception& error) {
        return fail(kUnhealthy, error.what());
    } catch (...) {
        return kUnhealthy;
    }
}
