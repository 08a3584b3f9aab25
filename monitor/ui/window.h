#pragma once

/// The monitor's window.

#include <zor/monitor/report/report_maker.h>
#include <zor/monitor/trend/trend_dock.h>
#include <zor/monitor/ui/control_menu.h>
#include <zor/monitor/ui/device_panel.h>
#include <zor/monitor/ui/languages.h>
#include <zor/monitor/ui/search_field.h>
#include <zor/monitor/ui/status_line.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QStackedWidget>

#include <array>

namespace zor::monitor {

/// Holds the panels of devices, of which one is in front; menus, tool bar and status bar speak of that one.
class Window final : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(Window)
public:
    /// There is always at least one device. `languages` must outlive the window.
    Window(std::unique_ptr<DevicePanel> first, Languages& languages);
    ~Window() override;

    /// @name Devices
    /// @{
    /// Another device; the one in front stays there.
    DevicePanel& add(std::unique_ptr<DevicePanel> panel);
    void bringToFront(DevicePanel& panel);
    [[nodiscard]] DevicePanel& front() { return *m_front; }
    [[nodiscard]] std::span<const std::unique_ptr<DevicePanel>> panels() const { return m_panels; }
    [[nodiscard]] Session& session() { return m_front->session(); }
    [[nodiscard]] Form& form() { return m_front->form(); }
    /// Calls with the device in front, now and whenever another one comes there.
    void whenFront(std::function<void(DevicePanel& panel)> hear);
    /// @}

    /// A dock that the menu "View" shows and hides; hidden until the operator asks for it. Its object name must be
    /// its own, its texts follow QEvent::LanguageChange.
    void addDock(QDockWidget& dock, Qt::DockWidgetArea area);

    void setLanguage(const QString& code);
    void setUnits(UnitSystem system);

    /// Takes the sizes that windows had when they were last closed, and leaves theirs there. The settings must
    /// outlive the window.
    void remember(QSettings& settings);

    [[nodiscard]] TrendDock& trend() { return *m_trend; }
    [[nodiscard]] ReportMaker& report() { return m_report; }

    /// Closes without a question, edits or not.
    void closeUnasked();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QSize usualSize() const;
    void buildMenus();
    void addSettingsActions(QMenu& menu);
    void addDeviceActions(QMenu& menu);
    void buildViewMenu();
    void buildUnitMenu();
    void addUnits(QMenu& menu, UNIT_TYPE type);
    void buildLanguageMenu();
    void commitEntry();
    void keepFrozenReadable();
    void setUnit(UNIT_TYPE type, MEAS_TYPE unit);
    void showFront();
    void buildTrend();
    void addSearch();

    std::vector<std::unique_ptr<DevicePanel>> m_panels;
    DevicePanel* m_front = nullptr;
    QStackedWidget* m_stack;
    Languages& m_languages;
    QToolBar* m_bar;
    SearchField* m_search = nullptr;
    std::array<QAction*, 2> m_atTheRight{}; ///< of the tool bar: space, and the search
    StatusLine m_status;
    TrendDock* m_trend;
    ControlMenu m_controlMenu;
    ReportMaker m_report;
    std::vector<std::function<void(DevicePanel&)>> m_whenFront;
    std::vector<QDockWidget*> m_docks;
    Memory m_memory;
    UnitSystem m_units = UnitSystem::Form;
    bool m_unasked = false;
};

} // namespace zor::monitor
