#include <zor/monitor/ui/memory.h>

#include <QFileInfo>

namespace zor::monitor {
namespace {

constexpr int kDockLayout = 1; ///< another number where docks or tool bars have become others
constexpr qsizetype kMostRecent = 10;
constexpr qsizetype kMostSites = 5;

bool isSame(const DeviceEntry& one, const DeviceEntry& other)
{
    const bool sameDevice = one.isSimulated() ? other.isSimulated() : one.address == other.address;
    return sameDevice && one.parameters == other.parameters && one.form == other.form;
}

} // namespace

void Memory::restore(QWidget& window, const QString& name) const
{
    if (m_settings == nullptr)
        return;
    window.restoreGeometry(m_settings->value(name).toByteArray());
    if (auto* main = qobject_cast<QMainWindow*>(&window))
        main->restoreState(m_settings->value(name + "Docks").toByteArray(), kDockLayout);
}

void Memory::keep(const QWidget& window, const QString& name) const
{
    if (m_settings == nullptr)
        return;
    m_settings->setValue(name, window.saveGeometry());
    if (const auto* main = qobject_cast<const QMainWindow*>(&window))
        m_settings->setValue(name + "Docks", main->saveState(kDockLayout));
}

QString Memory::language() const
{
    return m_settings != nullptr ? m_settings->value("language").toString() : QString();
}

void Memory::keepLanguage(const QString& code) const
{
    if (m_settings != nullptr)
        m_settings->setValue("language", code);
}

QList<DeviceEntry> Memory::recent() const
{
    QList<DeviceEntry> entries;
    if (m_settings == nullptr)
        return entries;
    const qsizetype count = std::min<qsizetype>(m_settings->beginReadArray("recent"), kMostRecent);
    for (qsizetype i = 0; i < count; ++i) {
        m_settings->setArrayIndex(static_cast<int>(i));
        DeviceEntry entry;
        entry.name = m_settings->value("name").toString();
        entry.address = m_settings->value("address").toString();
        entry.parameters = m_settings->value("parameters").toString();
        entry.form = m_settings->value("form").toString();
        entries.append(entry);
    }
    m_settings->endArray();
    return entries;
}

void Memory::addRecent(const DeviceEntry& entry) const
{
    if (m_settings == nullptr)
        return;
    DeviceEntry whole = entry;
    for (QString* file : {&whole.parameters, &whole.form}) {
        if (!file->isEmpty())
            *file = QFileInfo(*file).absoluteFilePath();
    }
    QList<DeviceEntry> entries = recent();
    entries.removeIf([&](const DeviceEntry& other) { return isSame(whole, other); });
    entries.prepend(whole);
    entries.resize(std::min(entries.size(), kMostRecent));
    m_settings->beginWriteArray("recent", static_cast<int>(entries.size()));
    for (qsizetype i = 0; i < entries.size(); ++i) {
        m_settings->setArrayIndex(static_cast<int>(i));
        m_settings->setValue("name", entries[i].name);
        m_settings->setValue("address", entries[i].address);
        m_settings->setValue("parameters", entries[i].parameters);
        m_settings->setValue("form", entries[i].form);
    }
    m_settings->endArray();
}

QStringList Memory::recentSites() const
{
    return m_settings != nullptr ? m_settings->value("sites").toStringList() : QStringList();
}

void Memory::addRecentSite(const QString& file) const
{
    if (m_settings == nullptr)
        return;
    const QString whole = QFileInfo(file).absoluteFilePath();
    QStringList files = recentSites();
    files.removeAll(whole);
    files.prepend(whole);
    m_settings->setValue("sites", QStringList(files.mid(0, kMostSites)));
}

} // namespace zor::monitor
