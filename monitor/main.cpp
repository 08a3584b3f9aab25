#include <zor/monitor/link/device_address.h>
#include <zor/monitor/program/commands.h>
#include <zor/monitor/program/file_clash.h>
#include <zor/monitor/program/outcome.h>
#include <zor/monitor/program/window_run.h>
#include <zor/monitor/scan/scan_command.h>
#include <zor/platform/version.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QIcon>

#include <iostream>
#include <unistd.h>

namespace {

using namespace zor::monitor;

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
    QApplication::setWindowIcon(QIcon(":/monitor/icon.svg"));
    QGuiApplication::setDesktopFileName("org.zorsmartcontrols.monitor");
    Languages languages;
    // What programs read is the same in every language.
    settings.task.language = settings.task.json ? "en" : settings.language;
    if (settings.task.language.empty())
        settings.task.language = Languages::systemLanguage().toStdString();
    languages.use(QString::fromStdString(settings.task.language));
    refuseClashes(settings);
    const QString screen = QApplication::platformName();
    settings.asks = argc == 1 && screen != "offscreen" && screen != "minimal";
    if (!settings.scan.empty())
        return runScan({settings.scan, settings.timeout, settings.frames, isatty(STDERR_FILENO) != 0},
                       loadParameters(entryOf(settings)), std::cout, std::cerr);
    if (settings.task.isGiven() || (!settings.report.empty() && settings.runFor == 0))
        return transfer(settings, loadParameters(entryOf(settings)));
    if (settings.serve > 0)
        return serve(loadParameters(entryOf(settings)), settings);
    return runWindow(settings, languages);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return withOutput(run(argc, argv));
    } catch (const FileError& error) {
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
