// The devices in the window: opening, closing, the list of them, files that are dropped.

#include <zor/monitor/data/file_content.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/device/site_file.h>
#include <zor/monitor/ui/open_dialog.h>
#include <zor/monitor/ui/window.h>

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QSaveFile>
#include <QUrl>

#include <algorithm>

namespace zor::monitor {

DevicePanel& Window::add(std::unique_ptr<DevicePanel> panel)
{
    DevicePanel& added = *m_panels.emplace_back(std::move(panel));
    added.remember(m_memory);
    added.say = [this, &added](const QString& text) {
        m_status.say(&added == m_front ? text : added.name() + ": " + text);
    };
    added.onRound = [this, &added] { showState(added); };
    added.onEdits = [this, &added] { showState(added); };
    added.onAddress = [this, &added] {
        listDevices();
        if (&added == m_front)
            showFront();
    };
    added.setLanguage(m_languages.current().toStdString());
    if (m_units != UnitSystem::Form)
        added.setUnits(m_units);
    m_stack->addWidget(&added);
    // Of a device that nobody looks at it is known all the same whether it answers.
    for (const auto& one : m_panels)
        one->session().keepAlive(m_panels.size() > 1);
    if (m_front != nullptr) {
        listDevices();
        buildMenus();
        if (m_panels.size() == 2)
            m_list->show();
    }
    return added;
}

void Window::bringToFront(DevicePanel& panel)
{
    if (&panel == m_front)
        return;
    commitEntry();
    m_front = &panel;
    m_stack->setCurrentWidget(&panel);
    m_list->choose(indexOf(panel));
    m_search->clear();
    showFront();
    for (const auto& hear : m_whenFront)
        hear(panel);
    panel.session().poller().pollNow();
}

void Window::bringNext(int step)
{
    const auto count = static_cast<int>(m_panels.size());
    const int next = (static_cast<int>(indexOf(*m_front)) + step + count) % count;
    bringToFront(*m_panels[static_cast<std::size_t>(next)]);
}

void Window::remove(DevicePanel& panel)
{
    if (m_panels.size() == 1)
        return;
    if (&panel == m_front)
        bringNext(1);
    m_panels.erase(m_panels.begin() + static_cast<std::ptrdiff_t>(indexOf(panel)));
    listDevices();
    buildMenus();
}

void Window::closeFront()
{
    commitEntry();
    if (m_front->session().hasEdits() && !mayLoseEdits(tr("There are edits that have not been written. Close the "
                                                          "device all the same?")))
        return;
    remove(*m_front);
}

std::size_t Window::indexOf(const DevicePanel& panel) const
{
    const auto at = std::ranges::find(m_panels, &panel, [](const auto& one) { return one.get(); });
    return static_cast<std::size_t>(at - m_panels.begin());
}

void Window::whenFront(std::function<void(DevicePanel& panel)> hear)
{
    hear(*m_front);
    m_whenFront.push_back(std::move(hear));
}

void Window::listDevices() { m_list->list(m_panels, *m_front); }

void Window::showState(const DevicePanel& panel)
{
    if (&panel == m_front) {
        m_status.showRound(panel.isAnswered());
        allowEditing();
        setWindowModified(
            std::ranges::any_of(m_panels, [](const auto& one) { return one->session().hasEdits(); }));
    }
    m_list->renew(indexOf(panel), panel);
}

// --- Opening

QString Window::tryOpen(const DeviceEntry& entry)
{
    std::vector<DeviceEntry> entries;
    for (const auto& panel : m_panels)
        entries.push_back(panel->device().entry());
    entries.push_back(entry);
    if (const auto clash = clashIn(entries))
        return QString::fromStdString(message(clash->reason, {clash->member}));
    try {
        add(openPanel(entry, m_classes)).device().start();
        return {};
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    }
}

bool Window::open(const DeviceEntry& entry)
{
    if (const QString error = tryOpen(entry); !error.isEmpty()) {
        warn(tr("Open device"), tr("This device cannot be opened:") + "\n\n" + error);
        return false;
    }
    m_memory.addRecent(entry);
    bringToFront(*m_panels.back()); // which makes the menus anew
    return true;
}

void Window::warn(const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText); // what a file says is no mark-up
    box.exec();
}

void Window::askAndOpen(const DeviceEntry& first)
{
    OpenDialog dialog(m_memory, this);
    dialog.setEntry(first);
    while (dialog.exec() == QDialog::Accepted) {
        if (dialog.site().isEmpty() ? open(dialog.entry()) : openSite(dialog.site()))
            return;
    }
}

bool Window::openSite(const QString& file)
{
    QStringList errors;
    try {
        const SiteFile site = loadSiteFile(file);
        for (const DeviceEntry& entry : site.devices) {
            if (const QString error = tryOpen(entry); !error.isEmpty())
                errors.append(summaryOf(entry) + ": " + error);
        }
        m_memory.addRecentSite(file);
        buildMenus();
    } catch (const FileError& error) {
        errors.append(QString::fromUtf8(error.what()));
    }
    if (!errors.isEmpty())
        warn(tr("Open site"), tr("This could not be opened:") + "\n\n" + errors.join('\n'));
    return errors.isEmpty();
}

void Window::saveSite(const QString& file)
{
    SiteFile site;
    for (const auto& panel : m_panels)
        site.devices.push_back(panel->device().entry());
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly))
        target.write(textOf(site, QFileInfo(file).absolutePath()));
    if (!target.commit())
        warn(tr("Save site"), file + ": " + target.errorString());
}

void Window::compareWithOther()
{
    std::vector<DevicePanel*> others;
    QStringList names;
    for (const auto& panel : m_panels) {
        if (panel.get() == m_front)
            continue;
        others.push_back(panel.get());
        names.append(QString("%1  %2").arg(names.size() + 1).arg(panel->name()));
    }
    bool chosen = true;
    const QString name = others.size() == 1 ? names.front()
                                            : QInputDialog::getItem(this, tr("Compare two devices"),
                                                                    tr("Compare %1 with:").arg(m_front->name()),
                                                                    names, 0, false, &chosen);
    if (chosen)
        m_front->compareWith(*others[static_cast<std::size_t>(names.indexOf(name))]);
}

// --- Files that are dropped

namespace {

/// The file, when it is one.
QString droppedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

void Window::dragEnterEvent(QDragEnterEvent* event)
{
    const QString file = droppedFile(*event->mimeData());
    if (file.endsWith(".json", Qt::CaseInsensitive) || file.endsWith(".ui", Qt::CaseInsensitive))
        event->acceptProposedAction();
}

void Window::dropEvent(QDropEvent* event)
{
    const QString file = droppedFile(*event->mimeData());
    event->acceptProposedAction();
    // Not within the event: the program that the file comes from waits for its end.
    QTimer::singleShot(0, this, [this, file] { take(file); });
}

void Window::take(const QString& file)
{
    DeviceEntry entry = m_front->device().entry();
    entry.name.clear();
    entry.record.clear(); // each device writes its own
    entry.frames.clear();
    if (file.endsWith(".ui", Qt::CaseInsensitive)) {
        entry.form = file;
        return askAndOpen(entry);
    }
    std::string text;
    try {
        text = contentOf(file.toStdString());
    } catch (const FileError& error) {
        m_status.say(QString::fromUtf8(error.what()));
        return;
    }
    if (text.find("\"zor-settings\"") != std::string::npos)
        return m_front->transfer().load(file);
    if (text.find("\"zor-site\"") != std::string::npos) {
        openSite(file);
        return;
    }
    entry.parameters = file;
    entry.form.clear();
    askAndOpen(entry);
}

} // namespace zor::monitor
