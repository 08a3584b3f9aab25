#include "monitor/device.h"
#include "monitor/window.h"
#include "platform/qt/qt_regional.h"

#include <CLI/CLI.hpp>
#include <QApplication>

#include <iostream>

namespace {

using namespace zor::monitor;

struct Settings {
    std::string device;
    std::string screenshot;
    int period = 500;
    int runFor = 0;
    int serve = -1;
};

enum ExitStatus : int { kWell = 0, kUnhealthy = 1, kUsage = 2 };

void addOptions(CLI::App& app, Settings& settings)
{
    constexpr int kLongest = 3600;
    app.add_option("--device", settings.device, "HOST:PORT of a Modbus TCP device; without it, the embedded one");
    app.add_option("--period", settings.period, "milliseconds from poll to poll")->check(CLI::Range(100, 60000));
    app.add_option("--run-for", settings.runFor, "seconds to run; prints what was read")
        ->check(CLI::Range(1, kLongest));
    app.add_option("--screenshot", settings.screenshot, "file for a picture of the window, taken at the end");
    app.add_option("--serve", settings.serve, "run only the embedded device, on this port")
        ->check(CLI::Range(1, 65535));
}

int serve(QApplication& app, int port)
{
    Device device(port);
    if (!device.start()) {
        std::cerr << "zor-monitor: port " << port << ": " << device.error().toStdString() << '\n';
        return kUsage;
    }
    std::cout << "serving on 127.0.0.1:" << device.port() << std::endl;
    return QApplication::exec() == 0 && &app == QCoreApplication::instance() ? kWell : kUnhealthy;
}

/// HOST and PORT, or false.
bool splitAddress(const std::string& address, QString& host, int& port)
{
    const auto colon = address.rfind(':');
    if (colon == std::string::npos || colon == 0)
        return false;
    bool isNumber = false;
    host = QString::fromStdString(address.substr(0, colon));
    port = QString::fromStdString(address.substr(colon + 1)).toInt(&isNumber);
    return isNumber && port > 0 && port <= 65535;
}

int finish(Window& window, const Settings& settings)
{
    std::cout << window.report();
    if (!settings.screenshot.empty() && !window.grab().save(QString::fromStdString(settings.screenshot))) {
        std::cerr << "zor-monitor: cannot write " << settings.screenshot << '\n';
        return kUsage;
    }
    if (!window.isHealthy()) {
        std::cerr << "zor-monitor: the device does not answer\n";
        return kUnhealthy;
    }
    return kWell;
}

int monitor(const Settings& settings)
{
    QString host = "127.0.0.1";
    int port = 0;
    std::unique_ptr<Device> device;
    if (!settings.device.empty()) {
        if (!splitAddress(settings.device, host, port)) {
            std::cerr << "zor-monitor: --device takes HOST:PORT, not " << settings.device << '\n';
            return kUsage;
        }
    } else {
        device = std::make_unique<Device>();
        if (!device->start()) {
            std::cerr << "zor-monitor: the embedded device: " << device->error().toStdString() << '\n';
            return kUnhealthy;
        }
        port = device->port();
    }
    Window window(host, port, settings.period);
    window.show();
    if (settings.runFor == 0)
        return QApplication::exec();
    int status = kWell;
    QTimer::singleShot(settings.runFor * 1000, &window, [&] {
        status = finish(window, settings);
        QApplication::quit();
    });
    QApplication::exec();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    Settings settings;
    CLI::App app{"Polls a Modbus device and shows its parameters."};
    addOptions(app, settings);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kWell : kUsage;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY") &&
        !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    try {
        zor::platform::setRegionalSettings(zor::platform::qt::localeRegionalSettings());
        return settings.serve > 0 ? serve(application, settings.serve) : monitor(settings);
    } catch (const std::exception& error) {
        std::cerr << "zor-monitor: " << error.what() << '\n';
        return kUnhealthy;
    }
}
