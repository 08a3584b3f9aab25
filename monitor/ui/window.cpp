#include <zor/monitor/ui/review_dialog.h>
#include <zor/monitor/ui/window.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTime>
#include <QToolBar>

#include <array>
#include <utility>

namespace zor::monitor {
namespace {

constexpr int kMessageMilliseconds = 8000;
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

QString plain(const std::string& utf8) { return QString::fromStdString(utf8); }

/// In a menu an ampersand marks a key.
QString inMenu(QString text) { return text.replace('&', "&&"); }

} // namespace

Window::Window(std::unique_ptr<Session> session, std::unique_ptr<Form> form, Languages& languages,
               Simulator* device)
    : m_form(std::move(form)), m_session(std::move(session)), m_languages(languages), m_device(device),
      m_bar(addToolBar(QString())), m_state(new QLabel(this)), m_traffic(new QLabel(this))
{
    setCentralWidget(&m_form->widget());
    m_bar->setMovable(false);
    for (QLabel* label : {m_state, m_traffic}) {
        label->setTextFormat(Qt::PlainText);
        statusBar()->addPermanentWidget(label, label == m_state ? 1 : 0);
    }
    m_session->isVisible = isInSight;
    for (core::Control* control : m_form->controls())
        m_session->bind(*control);
    m_session->onRound = [this](bool answered) { showRound(answered); };
    m_session->onWritten = [this](const std::vector<Written>& results) { showResults(results); };
    if (QTabWidget* tabs = m_form->tabs())
        connect(tabs, &QTabWidget::currentChanged, this, [this] { m_session->poller().pollNow(); });
    m_clock.start();
    setLanguage(m_languages.current());
    // Wide enough for the state of the connection.
    constexpr int kUsualWidth = 720;
    resize(sizeHint().expandedTo({kUsualWidth, 0}));
}

Window::~Window()
{
    delete m_review;
    m_session.reset();
    // The form owns its controls, the window its widget: the controls go first.
    takeCentralWidget()->setParent(nullptr);
    m_form.reset();
}

void Window::setLanguage(const QString& code)
{
    commitEntry();
    m_languages.use(code);
    const std::string language = m_languages.current().toStdString();
    m_form->translate(language);
    m_session->setLanguage(language);
    const QString title = plain(m_session->file().title.in(language));
    setWindowTitle(title.isEmpty() ? tr("ZorSmartControls Monitor") : tr("%1 - Monitor").arg(title));
    buildMenus();
    showRound(m_answered);
}

void Window::setUnits(UnitSystem system)
{
    commitEntry();
    m_units = system;
    m_session->setUnits(system);
    buildMenus();
}

// --- Menus

void Window::buildMenus()
{
    // Not at once: one of them may be what has led here.
    for (QMenu* menu : menuBar()->findChildren<QMenu*>(Qt::FindDirectChildrenOnly))
        menu->deleteLater();
    menuBar()->clear();
    m_bar->clear();
    QMenu* device = menuBar()->addMenu(tr("&Device"));
    QAction* write = device->addAction(tr("&Write..."), QKeySequence("Ctrl+Return"), this, [this] { review(); });
    QAction* undo = device->addAction(tr("&Undo all"), QKeySequence("Ctrl+Shift+Z"), this, [this] { undoAll(); });
    device->addSeparator();
    device->addAction(tr("&Poll period..."), this, [this] {
        bool accepted = false;
        const int period = QInputDialog::getInt(this, tr("Poll period"), tr("Milliseconds from read to read:"),
                                                m_session->poller().period(), kShortestPeriod, kLongestPeriod,
                                                kShortestPeriod, &accepted);
        if (accepted)
            m_session->setPeriod(period);
    });
    if (m_device != nullptr) {
        QAction* runs = device->addAction(tr("&Simulated device runs"));
        runs->setCheckable(true);
        runs->setChecked(m_device->isRunning());
        connect(runs, &QAction::toggled, this, [this](bool on) {
            if (!on)
                m_device->stop();
            else if (!m_device->start())
                say(m_device->error());
        });
    }
    device->addSeparator();
    device->addAction(tr("&Quit"), QKeySequence::Quit, this, [this] { close(); });
    m_bar->setWindowTitle(tr("Device"));
    m_bar->addAction(write);
    m_bar->addAction(undo);
    buildUnitMenu();
    buildLanguageMenu();
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
    for (const auto& bound : m_session->bindings()) {
        Binding* binding = bound.get();
        const Parameter* parameter = binding->parameter();
        const auto* type = parameter != nullptr ? units::rowOf(parameter->unitType) : nullptr;
        if (type == nullptr || type->first >= type->last || !binding->has("OutputUnit"))
            continue;
        QMenu* own = menu->addMenu(inMenu(captionOf(*parameter)));
        for (std::int32_t unit = type->first; unit <= type->last; ++unit) {
            own->addAction(inMenu(Words::unit(MEAS_TYPE{unit})), this, [this, binding, unit] {
                commitEntry();
                if (!m_session->setUnit(*binding, MEAS_TYPE{unit}))
                    say(tr("The value cannot be shown in that unit"));
            });
        }
    }
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

QString Window::captionOf(const Parameter& parameter) const
{
    const std::string& caption = parameter.appearance.caption.in(m_languages.current().toStdString());
    return plain(caption.empty() ? parameter.tag : caption);
}

// --- Editing

void Window::commitEntry()
{
    // A control takes its entry over when the operator leaves it.
    if (QWidget* focus = QApplication::focusWidget(); focus != nullptr && isAncestorOf(focus))
        focus->clearFocus();
}

void Window::review()
{
    if (m_review != nullptr || m_session->isWriting())
        return;
    commitEntry();
    std::vector<Change> changes = m_session->pending();
    if (changes.empty())
        return say(tr("Nothing to write"));
    auto* dialog = new ReviewDialog(std::move(changes), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { m_session->write(dialog->changes()); });
    m_review = dialog;
    dialog->open();
}

void Window::undoAll()
{
    commitEntry();
    m_session->undoAll();
}

void Window::closeUnasked()
{
    m_unasked = true;
    close();
}

void Window::closeEvent(QCloseEvent* event)
{
    commitEntry();
    if (m_unasked || !m_session->hasEdits())
        return event->accept();
    const auto answer = QMessageBox::question(
        this, windowTitle(), tr("There are edits that have not been written. Close all the same?"),
        QMessageBox::Close | QMessageBox::Cancel, QMessageBox::Cancel);
    event->setAccepted(answer == QMessageBox::Close);
}

// --- Status

void Window::showRound(bool answered)
{
    m_answered = answered;
    m_form->showSupport();
    QString text = m_session->link().description();
    if (!m_session->deviceType().empty())
        text += QString(", %1 %2").arg(plain(m_session->deviceType()), plain(m_session->deviceVersion()));
    const QString time = QTime::currentTime().toString("HH:mm:ss");
    m_state->setText(
        (answered ? tr("%1: connected, read at %2") : tr("%1: no answer, tried at %2")).arg(text, time));
    showTraffic();
}

void Window::showTraffic()
{
    constexpr qint64 kSecond = 1000;
    if (m_clock.elapsed() < kSecond)
        return;
    const double seconds = static_cast<double>(m_clock.restart()) / kSecond;
    const QLocale locale;
    const auto number = [&](double value) { return locale.toString(value, 'f', 1); };
    const std::array<const Traffic*, 2> kinds{&m_session->link().reads(), &m_session->link().writes()};
    const std::array names{tr("Reads"), tr("Writes")};
    QStringList line;
    QStringList table;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const Traffic& traffic = *kinds[i];
        const auto now = static_cast<double>(traffic.requests - std::exchange(m_counted[i], traffic.requests));
        const QString rate = number(now / seconds);
        const QString mean = number(traffic.meanMilliseconds());
        line.append(tr("%1: %2/s, %3 ms").arg(names[i], rate, mean));
        table.append(tr("%1: %2 requests, %3 failed, round trip %4 ms on average, %5 ms at most")
                         .arg(names[i])
                         .arg(traffic.requests)
                         .arg(traffic.failures)
                         .arg(mean, number(traffic.longestMilliseconds)));
    }
    m_traffic->setText(line.join("  |  "));
    m_traffic->setToolTip(table.join('\n'));
}

void Window::showResults(const std::vector<Written>& results)
{
    QStringList failures;
    for (const Written& written : results) {
        if (written.result.outcome != WriteOutcome::Written)
            failures.append(plain(written.change.tag) + ": " + Words::outcome(written.result));
    }
    if (failures.isEmpty())
        return say(tr("%n value(s) written and read back", nullptr, static_cast<int>(results.size())));
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Not everything was written"), QString(), QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(tr("These edits are kept:") + "\n\n" + failures.join('\n'));
    box->open();
}

void Window::say(const QString& text) { statusBar()->showMessage(text, kMessageMilliseconds); }

} // namespace zor::monitor
