#pragma once

/// The report from the window.

#include <zor/monitor/report/report.h>
#include <zor/monitor/trend/trend_dock.h>
#include <zor/monitor/ui/device_panel.h>

#include <QCoreApplication>
#include <QThread>

#include <functional>
#include <memory>
#include <vector>

namespace zor::monitor {

class ReportMaker {
    Q_DECLARE_TR_FUNCTIONS(ReportMaker)
public:
    /// Pictures are of what the dock shows. All must outlive it.
    ReportMaker(QWidget& window, const TrendDock& trend, const Languages& languages)
        : m_window(window), m_trend(trend), m_languages(languages)
    {}
    /// What is being saved is saved to its end.
    ~ReportMaker();
    ReportMaker(const ReportMaker&) = delete;
    ReportMaker& operator=(const ReportMaker&) = delete;

    /// Asks what the report of a device is to hold and for the file, reads the device and saves.
    void ask(DevicePanel& panel);
    /// Reads the device, when it answers, and saves, which stops nobody; `compared` is a settings file or empty.
    void make(DevicePanel& panel, const QString& file, const QString& compared, bool picture);
    /// Saves what is known already. The reason why it could not, or nothing.
    [[nodiscard]] QString save(DevicePanel& panel, const QString& file, std::optional<SettingsFile> compared,
                               bool picture) const;

private:
    void fail(const QString& text);
    [[nodiscard]] ReportParts partsOf(DevicePanel& panel, std::optional<SettingsFile> compared,
                                      bool picture) const;
    void run(std::function<QString()> job, DevicePanel& panel, const QString& file);

    QWidget& m_window;
    const TrendDock& m_trend;
    const Languages& m_languages;
    std::vector<std::unique_ptr<QThread>> m_saving;
};

} // namespace zor::monitor
