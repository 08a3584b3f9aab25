#include <zor/monitor/language/words.h>
#include <zor/monitor/ui/window.h>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace zor::monitor {

Window::Window(std::unique_ptr<DevicePanel> first, Languages& languages, const core::ClassRegistry& classes)
    : m_stack(new QStackedWidget), m_languages(languages), m_classes(classes), m_bar(addToolBar(QString())),
      m_status(*statusBar()), m_trend(new TrendDock(languages, this)), m_controlMenu(*this),
      m_report(*this, *m_trend, languages)
{
    setCentralWidget(m_stack);
    m_bar->setObjectName("toolBar");
    m_bar->setMovable(false);
    addSearch();
    addList();
    setAcceptDrops(true);
    bringToFront(add(std::move(first)));
    listDevices(); // with one it is hidden, but has its name in a menu
    buildTrend();
    keepFrozenReadable();
    resize(usualSize());
}

Window::~Window()
{
    // While all that they speak to is still there.
    m_trend->follow(nullptr);
    m_panels.clear();
}

void Window::buildTrend()
{
    addDock(*m_trend, Qt::BottomDockWidgetArea);
    m_trend->say = [this](const QString& text) { m_status.say(text); };
    whenFront([this](DevicePanel& panel) { m_trend->follow(&panel.trend()); });
    m_controlMenu.bindings = [this] { return session().bindings(); };
    m_controlMenu.onLocked = [this] { refuseEntry(); };
    m_controlMenu.add([this](QMenu& menu, const Binding& binding) { m_front->addTo(menu, binding); });
    m_controlMenu.add([this](QMenu& menu, const Binding& binding) { m_trend->addTo(menu, binding); });
}

QSize Window::usualSize() const
{
    // All of the form, and the state of the connection, if the screen has room for it.
    constexpr int kUsualWidth = 800;
    constexpr double kOfTheScreen = 0.9;
    const QSize bars = sizeHint() - centralWidget()->sizeHint();
    const QSize room = (QSizeF(screen()->availableSize()) * kOfTheScreen).toSize();
    return (m_front->form().wholeSize() + bars).boundedTo(room).expandedTo({kUsualWidth, 0});
}

void Window::remember(const Memory& memory)
{
    m_memory = memory;
    m_memory.restore(*this, "window");
    m_list->setVisible(m_panels.size() > 1); // what was right for other devices says nothing about these
    for (const auto& panel : m_panels)
        panel->remember(m_memory);
    buildMenus();
}

void Window::addList()
{
    m_list = new DeviceList;
    addDockWidget(Qt::LeftDockWidgetArea, m_list);
    m_list->hide();
    m_docks.push_back(m_list);
    m_list->onChosen = [this](std::size_t index) { bringToFront(*m_panels[index]); };
}

void Window::addSearch()
{
    constexpr std::size_t kMostHits = 100;
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_search = new SearchField;
    m_atTheRight = {m_bar->addWidget(space), m_bar->addWidget(m_search)};
    m_search->find = [this](const QString& text) {
        return search(session(), text, m_languages.current().toStdString(), kMostHits);
    };
    m_search->onChosen = [this](std::size_t parameter) { m_front->reveal(parameter); };
    m_search->onNothing = [this](const QString& text) {
        m_status.say(tr("No parameter has \"%1\" in its tag, caption or last value").arg(text));
    };
}

// --- What is in front

void Window::showFront()
{
    const bool simulated = m_front->device().entry().isSimulated();
    m_status.follow(m_front->session(), simulated);
    m_search->translate();
    QString title = m_front->name();
    if (simulated && title != kSimulated)
        title = tr("%1 (simulated)").arg(title);
    setWindowTitle(title.isEmpty() ? tr("ZorSmartControls Monitor[*]") : tr("%1[*] - Monitor").arg(title));
    buildMenus();
    showState(*m_front);
}

void Window::addDock(QDockWidget& dock, Qt::DockWidgetArea area)
{
    addDockWidget(area, &dock);
    // Beside each other neither would have room for what it shows.
    const auto there =
        std::ranges::find_if(m_docks, [&](QDockWidget* other) { return dockWidgetArea(other) == area; });
    if (there != m_docks.end())
        tabifyDockWidget(*there, &dock);
    connect(dock.toggleViewAction(), &QAction::triggered, &dock, [&dock](bool shown) {
        if (shown)
            dock.raise();
    });
    dock.hide();
    m_docks.push_back(&dock);
    buildMenus();
}

// --- How values are shown

void Window::setLanguage(const QString& code)
{
    commitEntry();
    m_languages.use(code);
    m_memory.keepLanguage(m_languages.current());
    for (const auto& panel : m_panels)
        panel->setLanguage(m_languages.current().toStdString());
    listDevices();
    showFront();
}

void Window::setUnits(UnitSystem system)
{
    commitEntry();
    m_units = system;
    for (const auto& panel : m_panels)
        panel->setUnits(system);
    buildMenus();
}

void Window::setUnit(UNIT_TYPE type, MEAS_TYPE unit)
{
    commitEntry();
    for (const auto& panel : m_panels)
        panel->setUnit(type, unit);
}

// --- Editing

void Window::commitEntry()
{
    if (m_front != nullptr)
        m_front->commitEntry();
}

void Window::refuseEntry()
{
    QApplication::beep();
    m_status.say(tr("Not taken: this field cannot be edited now"));
}

void Window::keyPressEvent(QKeyEvent* event)
{
    // What a field takes does not come here; what one that is frozen or locked leaves must not vanish unnoticed.
    const QWidget* focus = QApplication::focusWidget();
    const auto* field = qobject_cast<const QLineEdit*>(focus);
    const bool takesNothing =
        focus != nullptr && (!focus->isEnabled() || (field != nullptr && field->isReadOnly()));
    if (takesNothing && !event->text().isEmpty() && event->text().front().isPrint())
        refuseEntry();
    QMainWindow::keyPressEvent(event);
}

void Window::closeUnasked()
{
    m_unasked = true;
    close();
}

void Window::closeEvent(QCloseEvent* event)
{
    commitEntry();
    m_memory.keep(*this, "window");
    const auto hasEdits = [](const auto& panel) { return panel->session().hasEdits(); };
    event->setAccepted(m_unasked || std::ranges::none_of(m_panels, hasEdits) ||
                       mayLoseEdits(tr("There are edits that have not been written. Close all the same?")));
}

bool Window::mayLoseEdits(const QString& question)
{
    return QMessageBox::question(this, m_front->name(), question, QMessageBox::Close | QMessageBox::Cancel,
                                 QMessageBox::Cancel) == QMessageBox::Close;
}

// --- Looks

void Window::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || m_front == nullptr)
        return;
    keepFrozenReadable();
    buildMenus(); // with icons in the new colours
}

void Window::keepFrozenReadable()
{
    // Themes paint what is disabled so that nobody reads it. Here it is the last value of a device that is slow.
    constexpr float kText = 0.65F;
    QPalette palette;
    const QPalette own = this->palette();
    const auto mixed = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
        const QColor front = own.color(QPalette::Active, text);
        const QColor back = own.color(QPalette::Active, ground);
        const auto mix = [](float one, float other) { return kText * one + (1 - kText) * other; };
        palette.setColor(QPalette::Disabled, text,
                         QColor::fromRgbF(mix(front.redF(), back.redF()), mix(front.greenF(), back.greenF()),
                                          mix(front.blueF(), back.blueF())));
    };
    mixed(QPalette::Text, QPalette::Base);
    mixed(QPalette::WindowText, QPalette::Window);
    mixed(QPalette::ButtonText, QPalette::Button);
    centralWidget()->setPalette(palette);
}

} // namespace zor::monitor
