// The window's menus. They are made anew with every language.

#include <zor/monitor/ui/scan_dialog.h>
#include <zor/monitor/ui/window.h>
#include <zor/monitor/ui/words.h>
#include <zor/units/unit_catalogue.h>

#include <QActionGroup>
#include <QInputDialog>
#include <QMenuBar>
#include <QToolBar>

#include <array>

namespace zor::monitor {
namespace {

constexpr int kShortestPeriod = 100;
constexpr int kLongestPeriod = 60000;

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
    QMenu* device = menuBar()->addMenu(tr("&Device"));
    QAction* write =
        device->addAction(tr("&Write..."), QKeySequence("Ctrl+Return"), this, [this] { m_front->review(); });
    QAction* undo =
        device->addAction(tr("&Undo all"), QKeySequence("Ctrl+Shift+Z"), this, [this] { m_front->undoAll(); });
    device->addSeparator();
    addSettingsActions(*device);
    device->addSeparator();
    addDeviceActions(*device);
    device->addSeparator();
    device->addAction(tr("&Quit"), QKeySequence::Quit, this, [this] { close(); });
    m_bar->setWindowTitle(tr("Device"));
    m_bar->addAction(write);
    m_bar->addAction(undo);
    for (QAction* action : m_atTheRight)
        m_bar->addAction(action);
    buildViewMenu();
    buildUnitMenu();
    buildLanguageMenu();
}

void Window::addSettingsActions(QMenu& menu)
{
    menu.addAction(tr("&Save settings..."), QKeySequence::Save, this, [this] { m_front->transfer().save(); });
    menu.addAction(tr("&Load settings..."), QKeySequence::Open, this, [this] { m_front->transfer().load(); });
    menu.addAction(tr("&Compare with file..."), QKeySequence("Ctrl+D"), this,
                   [this] { m_front->transfer().compare(); });
    menu.addAction(tr("Compare &two files..."), this, [this] { m_front->transfer().compareFiles(); });
    menu.addAction(tr("&Report..."), QKeySequence::Print, this, [this] { m_report.ask(*m_front); });
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
            session().setPeriod(period);
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
    m_bar->toggleViewAction()->setText(tr("&Tool bar"));
    menu->addAction(m_bar->toggleViewAction());
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
    for (const LanguageRow& row : languages()) {
        // Later: the menu that holds this action is made anew.
        QAction* action = menu->addAction(
            QString::fromUtf8(row.name), this, [this, &row] { setLanguage(row.code); }, Qt::QueuedConnection);
        action->setCheckable(true);
        action->setChecked(m_languages.current() == row.code);
        group->addAction(action);
    }
}

} // namespace zor::monitor
