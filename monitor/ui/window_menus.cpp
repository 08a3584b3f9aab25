// The window's menus. They are made anew with every language.

#include <zor/monitor/language/words.h>
#include <zor/monitor/ui/open_dialog.h>
#include <zor/monitor/ui/scan_dialog.h>
#include <zor/monitor/ui/tool_icons.h>
#include <zor/monitor/ui/window.h>
#include <zor/platform/version.h>
#include <zor/units/unit_catalogue.h>

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QSysInfo>
#include <QToolBar>
#include <QToolButton>

#include <array>

namespace zor::monitor {
namespace {

struct SystemRow {
    UnitSystem system;
    const char* name;
};

constexpr std::array kSystems{
    SystemRow{UnitSystem::Form, QT_TRANSLATE_NOOP("Window", "As on the &form")},
    SystemRow{UnitSystem::Metric, QT_TRANSLATE_NOOP("Window", "&Metric")},
    SystemRow{UnitSystem::Us, QT_TRANSLATE_NOOP("Window", "&US")},
    SystemRow{UnitSystem::Device, QT_TRANSLATE_NOOP("Window", "As in the &device")},
};

/// In a menu an ampersand marks a key.
QString inMenu(QString text) { return text.replace('&', "&&"); }

} // namespace

void Window::buildMenus()
{
    // Not at once: one of them may be what has led here.
    for (QMenu* menu : menuBar()->findChildren<QMenu*>(Qt::FindDirectChildrenOnly))
        menu->deleteLater();
    menuBar()->clear();
    m_bar->clear();
    addFileMenu();
    addDeviceMenu();
    buildViewMenu();
    buildUnitMenu();
    buildLanguageMenu();
    addHelpMenu();
    for (QAction* action : m_atTheRight)
        m_bar->addAction(action);
}

void Window::toToolBar(QAction& action, std::string_view icon, bool named)
{
    action.setIcon(toolIcon(icon, palette(), devicePixelRatioF()));
    const QString name = action.text().remove('&').remove("...");
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(key.isEmpty() ? name : name + " (" + key + ')');
    m_bar->addAction(&action);
    if (auto* button = qobject_cast<QToolButton*>(m_bar->widgetForAction(&action)); button != nullptr && named)
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void Window::addFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    QAction* open =
        menu->addAction(tr("&Open device..."), QKeySequence("Ctrl+Shift+O"), this, [this] { askAndOpen(); });
    toToolBar(*open, "open");
    addRecent(*menu->addMenu(tr("&Recent devices")));
    addSiteActions(*menu);
    QAction* close = menu->addAction(tr("&Close device"), QKeySequence::Close, this, [this] { closeFront(); });
    close->setEnabled(m_panels.size() > 1);
    menu->addSeparator();
    addSettingsActions(*menu);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence::Quit, this, [this] { this->close(); });
}

void Window::addRecent(QMenu& menu)
{
    for (const DeviceEntry& entry : m_memory.recent()) {
        // Later: the menu that holds this action is made anew.
        menu.addAction(
            inMenu(summaryOf(entry)), this, [this, entry] { this->open(entry); }, Qt::QueuedConnection);
    }
    const QStringList sites = m_memory.recentSites();
    if (!sites.isEmpty())
        menu.addSeparator();
    for (const QString& site : sites) {
        QAction* action = menu.addAction(
            inMenu(QFileInfo(site).fileName()), this, [this, site] { openSite(site); }, Qt::QueuedConnection);
        action->setToolTip(site);
    }
    menu.setToolTipsVisible(true);
    menu.setEnabled(!menu.isEmpty());
}

void Window::addSiteActions(QMenu& menu)
{
    menu.addAction(tr("Open s&ite..."), this, [this] {
        const QString file = QFileDialog::getOpenFileName(this, tr("Open site"), {}, tr("Site files (*.json)"));
        if (!file.isEmpty())
            openSite(file);
    });
    menu.addAction(tr("Save site &as..."), this, [this] {
        const QString file =
            QFileDialog::getSaveFileName(this, tr("Save site"), "site.json", tr("Site files (*.json)"));
        if (!file.isEmpty())
            saveSite(file);
    });
}

void Window::addSettingsActions(QMenu& menu)
{
    const auto transfer = [this]() -> SettingsTransfer& { return m_front->transfer(); };
    QAction* save =
        menu.addAction(tr("&Save settings..."), QKeySequence::Save, this, [transfer] { transfer().save(); });
    menu.addAction(tr("&Load settings..."), QKeySequence::Open, this, [transfer] { transfer().load(); });
    QAction* compare = menu.addAction(tr("Compare with &file..."), QKeySequence("Ctrl+D"), this,
                                      [transfer] { transfer().compare(); });
    menu.addAction(tr("Compare &two files..."), this, [transfer] { transfer().compareFiles(); });
    QAction* two = menu.addAction(tr("Compare two &devices..."), this, [this] { compareWithOther(); });
    two->setEnabled(m_panels.size() > 1);
    menu.addAction(tr("Re&port..."), QKeySequence::Print, this, [this] { m_report.ask(*m_front); });
    toToolBar(*save, "save");
    toToolBar(*compare, "compare");
}

void Window::addDeviceMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Device"));
    QAction* write =
        menu->addAction(tr("&Write..."), QKeySequence("Ctrl+Return"), this, [this] { m_front->review(); });
    QAction* undo =
        menu->addAction(tr("&Undo all"), QKeySequence("Ctrl+Shift+Z"), this, [this] { m_front->undoAll(); });
    m_editing = {write, undo};
    for (QAction* action : m_editing)
        action->setAutoRepeat(false);
    allowEditing();
    menu->addSeparator();
    addDeviceActions(*menu);
    m_bar->setWindowTitle(tr("Device"));
    m_bar->addSeparator();
    toToolBar(*write, "write", true);
    toToolBar(*undo, "undo", true);
}

void Window::allowEditing()
{
    // What is on its way to the device cannot be taken back.
    for (QAction* action : m_editing)
        action->setEnabled(!session().isWriting());
}

void Window::addHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&About"), this, [this] {
        QMessageBox::about(this, tr("About"),
                           tr("<h3>ZorSmartControls Monitor %1</h3><p>Shows and edits the parameters of Modbus "
                              "devices.</p><p>Qt %2, built with Qt %3<br>%4</p>")
                               .arg(QString::fromStdString(std::string(version())), qVersion(), QT_VERSION_STR,
                                    QSysInfo::prettyProductName()));
    });
    menu->addAction(tr("About &Qt"), this, [this] { QMessageBox::aboutQt(this); });
}

void Window::addDeviceActions(QMenu& menu)
{
    menu.addAction(tr("Look &for devices..."), QKeySequence("Ctrl+L"), this,
                   [this] { ScanDialog::openFor(*m_front); });
    menu.addAction(tr("&Poll period..."), this, [this] {
        bool accepted = false;
        const int period = QInputDialog::getInt(this, tr("Poll period"), tr("Milliseconds from read to read:"),
                                                session().poller().period(), kShortestPeriod, kLongestPeriod,
                                                kShortestPeriod, &accepted);
        if (accepted)
            m_front->device().setPeriod(period);
    });
    Simulator* simulator = m_front->device().simulator();
    if (simulator == nullptr)
        return;
    QAction* runs = menu.addAction(tr("&Simulated device runs"));
    runs->setCheckable(true);
    runs->setChecked(simulator->isRunning());
    connect(runs, &QAction::toggled, this, [this, simulator](bool on) {
        if (!on)
            simulator->stop();
        else if (!simulator->start())
            m_status.say(simulator->error());
    });
}

void Window::buildViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    for (const QDockWidget* dock : m_docks)
        menu->addAction(dock->toggleViewAction());
    // With every title that it is given, a dock takes it for its action as well.
    connect(menu, &QMenu::aboutToShow, this, [this] {
        int number = 0;
        for (const QDockWidget* dock : m_docks)
            dock->toggleViewAction()->setText(QString("&%1  %2").arg(++number).arg(dock->windowTitle()));
    });
    m_bar->toggleViewAction()->setText(tr("&Tool bar"));
    menu->addAction(m_bar->toggleViewAction());
    menu->addSeparator();
    for (const int step : {1, -1}) {
        QAction* go =
            menu->addAction(step > 0 ? tr("&Next device") : tr("&Previous device"),
                            QKeySequence(step > 0 ? "F6" : "Shift+F6"), this, [this, step] { bringNext(step); });
        go->setEnabled(m_panels.size() > 1);
    }
    menu->addSeparator();
    menu->addAction(tr("&Find parameter"), QKeySequence::Find, this, [this] {
        m_bar->show();
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
}

void Window::buildUnitMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Units"));
    auto* group = new QActionGroup(menu);
    for (const SystemRow& row : kSystems) {
        QAction* action =
            group->addAction(menu->addAction(tr(row.name), this, [this, &row] { setUnits(row.system); }));
        action->setCheckable(true);
        action->setChecked(row.system == m_units);
    }
    menu->addSeparator();
    // A device has thousands of parameters, but few kinds of unit.
    for (const UNIT_TYPE type : session().unitTypes())
        addUnits(*menu, type);
}

void Window::addUnits(QMenu& menu, UNIT_TYPE type)
{
    const auto* row = units::rowOf(type);
    // Units of the type OTHERS have nothing in common but their place in the list.
    if (row == nullptr || row->first >= row->last || type == OTHERS)
        return;
    QMenu* own = menu.addMenu(inMenu(Words::unitType(type)));
    for (std::int32_t unit = row->first; unit <= row->last; ++unit)
        own->addAction(inMenu(Words::unit(MEAS_TYPE{unit})), this, [=, this] { setUnit(type, MEAS_TYPE{unit}); });
}

void Window::buildLanguageMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Language"));
    auto* group = new QActionGroup(menu);
    for (const LanguageRow& row : kLanguages) {
        // Later: the menu that holds this action is made anew.
        QAction* action = menu->addAction(
            '&' + QString::fromUtf8(row.name), this, [this, &row] { setLanguage(row.code); },
            Qt::QueuedConnection);
        action->setCheckable(true);
        action->setChecked(m_languages.current() == row.code);
        group->addAction(action);
    }
}

} // namespace zor::monitor
