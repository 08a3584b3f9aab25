#pragma once

/// The monitor's window.

#include <zor/monitor/language/languages.h>
#include <zor/monitor/trend/trend_dock.h>
#include <zor/monitor/ui/control_menu.h>
#include <zor/monitor/ui/device_list.h>
#include <zor/monitor/ui/device_panel.h>
#include <zor/monitor/ui/report_maker.h>
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
    /// There is always at least one device. `languages` and `classes` must outlive the window.
    Window(std::unique_ptr<DevicePanel> first, Languages& languages, const core::ClassRegistry& classes);
    ~Window() override;

    /// @name Devices
    /// @{
    /// Another device; the one in front stays there.
    DevicePanel& add(std::unique_ptr<DevicePanel> panel);
    void bringToFront(DevicePanel& panel);
    /// Ends it, edits or not; the last one stays.
    void remove(DevicePanel& panel);
    /// Opens a device, starts it and brings it to the front. False, when the operator has been told why, where it
    /// cannot be opened.
    bool open(const DeviceEntry& entry);
    /// Opens the devices of a site file, too.
    bool openSite(const QString& file);
    void saveSite(const QString& file);
    /// Does with a file what can be done with it: a parameter file or a form is offered for opening, a settings
    /// file for loading, a site is opened.
    void take(const QString& file);
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

    /// Takes the sizes and the docks that windows had when they were last closed, and leaves theirs there, and the
    /// language and the devices that the operator chooses. Its settings must outlive the window.
    void remember(const Memory& memory);

    [[nodiscard]] TrendDock& trend() { return *m_trend; }
    [[nodiscard]] ReportMaker& report() { return m_report; }

    /// Closes without a question, edits or not.
    void closeUnasked();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

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
    void refuseEntry();
    void keepFrozenReadable();
    void setUnit(UNIT_TYPE type, MEAS_TYPE unit);
    void showFront();
    void buildTrend();
    void addSearch();
    void addList();
    void bringNext(int step);
    void closeFront();
    void listDevices();
    void showState(const DevicePanel& panel);
    void allowEditing();
    /// Opens and starts it behind the others; why it could not, or nothing.
    [[nodiscard]] QString tryOpen(const DeviceEntry& entry);
    void warn(const QString& title, const QString& text);
    void askAndOpen(const DeviceEntry& first = {});
    void compareWithOther();
    void addFileMenu();
    void addRecent(QMenu& menu);
    void addSiteActions(QMenu& menu);
    void addDeviceMenu();
    /// Into the tool bar, with a tooltip that names its key; with its name beside the icon.
    void toToolBar(QAction& action, std::string_view icon, bool named = false);
    void addHelpMenu();
    [[nodiscard]] bool mayLoseEdits(const QString& question);
    [[nodiscard]] std::size_t indexOf(const DevicePanel& panel) const;

    std::vector<std::unique_ptr<DevicePanel>> m_panels;
    DevicePanel* m_front = nullptr;
    QStackedWidget* m_stack;
    DeviceList* m_list = nullptr;
    std::array<QAction*, 2> m_editing{}; ///< writing and undoing, of the menu
    Languages& m_languages;
    const core::ClassRegistry& m_classes;
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
