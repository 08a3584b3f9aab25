#include <zor/controls/registration.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/device/site_file.h>
#include <zor/monitor/program/outcome.h>
#include <zor/monitor/program/window_run.h>
#include <zor/monitor/ui/frames_dock.h>
#include <zor/monitor/ui/open_dialog.h>
#include <zor/monitor/ui/window.h>

#include <QApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QMessageBox>

#include <iostream>

namespace zor::monitor {
namespace {

using Panels = std::vector<std::unique_ptr<DevicePanel>>;

Panels openAll(const Settings& settings, const core::ClassRegistry& classes)
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

/// Asks the operator what to show; nothing when he has thought better of it.
Panels ask(Settings& settings, const Memory& memory, const core::ClassRegistry& classes)
{
    OpenDialog dialog(memory);
    Panels panels;
    while (panels.empty() && dialog.exec() == QDialog::Accepted) {
        try {
            settings.site = dialog.site().toStdString();
            if (settings.site.empty())
                panels.push_back(openPanel(dialog.entry(), classes));
            else
                panels = openAll(settings, classes);
        } catch (const std::exception& error) {
            QMessageBox box(QMessageBox::Warning, dialog.windowTitle(), QString::fromUtf8(error.what()));
            box.setTextFormat(Qt::PlainText); // what a file says is no mark-up
            box.exec();
        }
    }
    return panels;
}

void showTab(Form& form, int tab)
{
    const int tabs = form.tabs() != nullptr ? std::max(1, form.tabs()->count()) : 1;
    if (tab >= tabs)
        throw UsageError("--tab " + std::to_string(tab) + ": " +
                         message(QT_TRANSLATE_NOOP("texts", "the last tab is %1"), {std::to_string(tabs - 1)}));
    if (form.tabs() != nullptr)
        form.tabs()->setCurrentIndex(tab);
}

void plot(Window& window, const std::vector<std::string>& tags)
{
    const Session& session = window.session();
    for (const std::string& tag : tags) {
        const auto parameter = session.indexOf(tag);
        if (!parameter || !Trend::isPlottable(session.file().parameters[*parameter]))
            throw UsageError("--trend " + tag + ": " +
                             message(QT_TRANSLATE_NOOP("texts", "no parameter that is a number")));
        window.trend().add(*parameter);
    }
}

void start(Window& window, const Settings& settings)
{
    for (const auto& panel : window.panels()) {
        for (const std::string& note : panel->form().notes(panel->session().file()))
            std::cerr << "zor-monitor: " << note << '\n';
        if (settings.runFor > 0)
            panel->session().readEverything();
        panel->device().start();
    }
    if (settings.runFor > 0) {
        constexpr int kSecond = 1000;
        QTimer::singleShot(settings.runFor * kSecond, &window, [&] { window.closeUnasked(); });
    }
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
        return failUnhealthy(
            name + message(QT_TRANSLATE_NOOP("texts", "the device did not answer in %1 of %2 rounds"),
                           {std::to_string(session.failedRounds()), std::to_string(rounds)}),
            session.poller().failure());
    if (!session.hasValues())
        return failUnhealthy(name + message(QT_TRANSLATE_NOOP("texts", "the device has none of the parameters")),
                             session.link().lastFailure());
    return kWell;
}

int finish(Window& window, const Settings& settings)
{
    int status = kWell;
    for (const auto& panel : window.panels()) {
        const bool tells = settings.runFor > 0 || !settings.screenshot.empty();
        if (tells && !settings.site.empty())
            std::cout << panel->name().toStdString() << '\n';
        if (tells)
            std::cout << panel->session().report();
        status = std::max(status, withFiles(panel->device(), finish(*panel, settings)));
    }
    // One that fails loses none of the others: what they show may be the work of a day.
    const auto hear = [&](const std::string& name, const QString& error) {
        if (!error.isEmpty())
            status = std::max<int>(status, fail(kUsage, name + ": " + error.toStdString()));
    };
    if (!settings.screenshot.empty() && !window.grab().save(QString::fromStdString(settings.screenshot)))
        hear(settings.screenshot,
             QString::fromStdString(message(QT_TRANSLATE_NOOP("texts", "cannot be written"))));
    for (const std::string& name : settings.saveTrend)
        hear(name, window.trend().saveTo(QString::fromStdString(name)));
    if (!settings.report.empty())
        hear(settings.report,
             window.report().save(window.front(), QString::fromStdString(settings.report), std::nullopt, true));
    return status;
}

/// What cannot be had is said before anything runs for hours.
void requireOutputs(const Settings& settings)
{
    const QByteArray picture =
        QFileInfo(QString::fromStdString(settings.screenshot)).suffix().toLower().toLatin1();
    if (!settings.screenshot.empty() && !QImageWriter::supportedImageFormats().contains(picture))
        throw UsageError("--screenshot " + settings.screenshot + ": " +
                         message(QT_TRANSLATE_NOOP("texts", "no kind of picture that can be written")));
    for (const std::string& name : settings.saveTrend)
        requireWritable(name);
    requireWritable(settings.screenshot);
    requireWritable(settings.report);
}

} // namespace

int runWindow(Settings settings, Languages& languages)
{
    // What nobody watches leaves no traces and looks the same each time.
    const bool watched = settings.runFor == 0 && settings.screenshot.empty();
    QSettings stored("ZorSmartControls", "zor-monitor");
    const Memory memory(watched ? &stored : nullptr);
    if (const QString chosen = memory.language(); settings.language.empty() && !chosen.isEmpty())
        languages.use(chosen);
    requireOutputs(settings);
    core::ClassRegistry classes;
    registerControls(classes);
    Panels panels = settings.asks ? ask(settings, memory, classes) : openAll(settings, classes);
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
        window.setUnits(unitsOf(settings));
    plot(window, settings.trend);
    window.show();
    start(window, settings);
    QApplication::exec();
    return finish(window, settings);
}

} // namespace zor::monitor
