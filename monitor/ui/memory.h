#pragma once

/// What the windows of the program remember from one run to the next.

#include <QMainWindow>
#include <QSettings>

namespace zor::monitor {

/// Without settings it remembers nothing: what nobody watches leaves no traces and looks the same each time.
class Memory {
public:
    /// The settings, when there are some, must outlive it.
    explicit Memory(QSettings* settings = nullptr) : m_settings(settings) {}

    /// @name The size of a window, and where it lies; `name` is that of the settings' entry
    /// @{
    void restore(QWidget& window, const QString& name) const
    {
        if (m_settings != nullptr)
            window.restoreGeometry(m_settings->value(name).toByteArray());
    }
    void keep(const QWidget& window, const QString& name) const
    {
        if (m_settings != nullptr)
            m_settings->setValue(name, window.saveGeometry());
    }
    /// @}

private:
    QSettings* m_settings;
};

} // namespace zor::monitor
