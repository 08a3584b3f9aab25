#pragma once

/// What the program remembers from one run to the next.

#include <zor/monitor/device/device.h>

#include <QList>
#include <QMainWindow>
#include <QSettings>

namespace zor::monitor {

/// Without settings it remembers nothing: what nobody watches leaves no traces and looks the same each time. What
/// it remembers is offered to the operator; none of it is ever opened or written by itself.
class Memory {
public:
    /// The settings, when there are some, must outlive it.
    explicit Memory(QSettings* settings = nullptr) : m_settings(settings) {}

    /// @name The size of a window, where it lies and how its docks do; `name` is that of the settings' entry
    /// @{
    void restore(QWidget& window, const QString& name) const;
    void keep(const QWidget& window, const QString& name) const;
    /// @}

    /// The language that was last chosen; empty for none.
    [[nodiscard]] QString language() const;
    void keepLanguage(const QString& code) const;

    /// The devices that were last opened, the last first.
    [[nodiscard]] QList<DeviceEntry> recent() const;
    void addRecent(const DeviceEntry& entry) const;
    /// The site files that were last opened, the last first.
    [[nodiscard]] QStringList recentSites() const;
    void addRecentSite(const QString& file) const;

private:
    QSettings* m_settings;
};

} // namespace zor::monitor
