#include <zor/monitor/data/message.h>
#include <zor/monitor/program/commands.h>
#include <zor/monitor/program/outcome.h>
#include <zor/monitor/report/report.h>
#include <zor/monitor/settings/survey.h>

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <iostream>
#include <numeric>

namespace zor::monitor {
namespace {

int report(Session& session, const Settings& settings)
{
    session.setUnits(unitsOf(settings));
    ReportParts parts;
    parts.language = settings.task.language;
    parts.simulated = entryOf(settings).isSimulated();
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
    return failUnhealthy(message(QT_TRANSLATE_NOOP("texts", "the device did not answer for all parameters")),
                         session.poller().failure(), settings.task.compare.empty() ? kUnhealthy : kSilent);
}

} // namespace

int serve(const ParameterFile& file, const Settings& settings)
{
    Simulator device(file, settings.serve);
    if (!device.start())
        return fail(kUsage, message(QT_TRANSLATE_NOOP("texts", "port %1"), {std::to_string(settings.serve)}) +
                                ": " + device.error().toStdString());
    std::cout << "serving on 127.0.0.1:" << device.port() << std::endl;
    if (settings.runFor > 0)
        QTimer::singleShot(std::chrono::seconds(settings.runFor), qApp, &QCoreApplication::quit);
    return QCoreApplication::exec();
}

int transfer(const Settings& settings, ParameterFile file)
{
    if (!settings.task.needsDevice())
        return compareFiles(file, settings.task, std::cout);
    requireWritable(settings.report);
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

} // namespace zor::monitor
