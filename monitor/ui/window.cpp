#include <zor/monitor/ui/window.h>
#include <zor/monitor/ui/words.h>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QToolBar>

#include <set>
#include <utility>

namespace zor::monitor {
namespace {

QString plain(const std::string& utf8) { return QString::fromStdString(utf8); }

/// The mark of a tab that holds edits.
QIcon dot(QSize size)
{
    constexpr double kRatio = 4;
    QPixmap pixmap(size * kRatio);
    pixmap.setDevicePixelRatio(kRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0x80, 0x60, 0));
    painter.setBrush(QColor(0xFF, 0xD0, 0));
    const double radius = size.height() / kRatio;
    painter.drawEllipse(QRectF(QPointF(), QSizeF(size)).center(), radius, radius);
    return pixmap;
}

} // namespace

Window::Window(std::unique_ptr<Session> session, std::unique_ptr<Form> form, Languages& languages,
               Simulator* device)
    : m_form(std::move(form)), m_session(std::move(session)), m_languages(languages), m_device(device),
      m_bar(addToolBar(QString())), m_status(*statusBar(), *m_session)
{
    setCentralWidget(&m_form->widget());
    m_bar->setMovable(false);
    m_transfer = std::make_unique<SettingsTransfer>(*this, *m_session);
    m_transfer->say = [this](const QString& text) { m_status.say(text); };
    m_transfer->onProposed = [this] { review(); };
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, [this] { showEdits(); });
    m_session->isVisible = isInSight;
    for (core::Control* control : m_form->controls())
        m_session->bind(*control);
    m_session->onRound = [this](bool answered) { showRound(answered); };
    m_session->onWritten = [this](const std::vector<Written>& results) { showResults(results); };
    m_session->onEdit = [this] { m_soon.start(0); };
    m_form->isKnown = [this](const core::Control& control) {
        const auto all = m_session->bindings();
        const auto at = std::ranges::find_if(all, [&](const auto& one) { return &one->control() == &control; });
        return at != all.end() && !(*at)->shown.empty();
    };
    keepFrozenReadable();
    m_soon.start(0);
    if (QTabWidget* tabs = m_form->tabs()) {
        connect(tabs, &QTabWidget::currentChanged, this, [this] {
            m_form->arrange();
            m_session->poller().pollNow();
        });
    }
    setLanguage(m_languages.current());
    resize(usualSize());
}

QSize Window::usualSize() const
{
    // All of the form, and the state of the connection, if the screen has room for it.
    constexpr int kUsualWidth = 800;
    constexpr double kOfTheScreen = 0.9;
    const QSize bars = sizeHint() - centralWidget()->sizeHint();
    const QSize room = (QSizeF(screen()->availableSize()) * kOfTheScreen).toSize();
    return (m_form->wholeSize() + bars).boundedTo(room).expandedTo({kUsualWidth, 0});
}

void Window::remember(QSettings& settings)
{
    m_settings = &settings;
    restore(*this, "window");
}

void Window::restore(QWidget& window, const QString& name)
{
    if (m_settings != nullptr)
        window.restoreGeometry(m_settings->value(name).toByteArray());
}

void Window::keep(const QWidget& window, const QString& name)
{
    if (m_settings != nullptr)
        m_settings->setValue(name, window.saveGeometry());
}

Window::~Window()
{
    delete m_review;
    m_transfer.reset();
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
    m_session->setLanguage(language);
    m_transfer->setLanguage(language);
    m_form->translate(language);
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
    m_form->arrange();
    buildMenus();
}

void Window::setUnit(UNIT_TYPE type, MEAS_TYPE unit)
{
    commitEntry();
    bool shown = true;
    for (const auto& binding : m_session->bindings()) {
        if (binding->parameter() != nullptr && binding->parameter()->unitType == type)
            shown = m_session->setUnit(*binding, unit) && shown;
    }
    m_form->arrange();
    if (!shown)
        m_status.say(tr("Not every value can be shown in that unit"));
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

void Window::keyPressEvent(QKeyEvent* event)
{
    // What a field takes does not come here; what one that is frozen or locked leaves must not vanish unnoticed.
    const QWidget* focus = QApplication::focusWidget();
    const auto* field = qobject_cast<const QLineEdit*>(focus);
    const bool takesNothing =
        focus != nullptr && (!focus->isEnabled() || (field != nullptr && field->isReadOnly()));
    if (takesNothing && !event->text().isEmpty() && event->text().front().isPrint()) {
        QApplication::beep();
        m_status.say(tr("Not taken: this field cannot be edited now"));
    }
    QMainWindow::keyPressEvent(event);
}

void Window::review()
{
    if (m_review != nullptr || m_session->isWriting())
        return;
    commitEntry();
    std::vector<Change> changes = m_session->pending();
    if (changes.empty())
        return m_status.say(tr("Nothing to write"));
    auto* dialog =
        new ReviewDialog(std::move(changes), m_session->file(), m_languages.current().toStdString(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    restore(*dialog, "review");
    connect(dialog, &QDialog::finished, this, [this, dialog] { keep(*dialog, "review"); });
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
    keep(*this, "window");
    if (m_unasked || !m_session->hasEdits())
        return event->accept();
    const auto answer = QMessageBox::question(
        this, windowTitle(), tr("There are edits that have not been written. Close all the same?"),
        QMessageBox::Close | QMessageBox::Cancel, QMessageBox::Cancel);
    event->setAccepted(answer == QMessageBox::Close);
}

// --- Looks

void Window::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && centralWidget() != nullptr)
        keepFrozenReadable();
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

// --- Status

void Window::showRound(bool answered)
{
    m_answered = answered;
    m_status.showRound(answered);
    m_transfer->hearRound(answered);
    if (m_review != nullptr)
        m_review->follow(m_session->pending());
    showEdits();
}

void Window::showEdits()
{
    m_form->arrange();
    QTabWidget* tabs = m_form->tabs();
    if (tabs == nullptr)
        return;
    std::set<const QWidget*> edited;
    for (const auto& binding : m_session->bindings()) {
        if (!binding->isModified())
            continue;
        for (const QWidget* w = &platform::qt::widgetOf(binding->control().surface()); w != nullptr;
             w = w->parentWidget())
            edited.insert(w);
    }
    for (int i = 0; i < tabs->count(); ++i) {
        const bool holds = edited.contains(tabs->widget(i));
        if (tabs->tabIcon(i).isNull() == !holds)
            continue;
        tabs->setTabIcon(i, holds ? dot(tabs->iconSize()) : QIcon());
        tabs->setTabToolTip(i, holds ? tr("Holds edits that have not been written") : QString());
    }
}

void Window::showResults(const std::vector<Written>& results)
{
    QStringList failures;
    for (const Written& written : results) {
        if (written.result.outcome != WriteOutcome::Written)
            failures.append(captionOf(m_session->file().parameters[written.change.parameter]) + ": " +
                            Words::outcome(written.result));
    }
    if (failures.isEmpty())
        return m_status.say(tr("%n value(s) written and read back", nullptr, static_cast<int>(results.size())));
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Not everything was written"), QString(), QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(tr("These edits are kept:") + "\n\n" + failures.join('\n'));
    box->open();
}

} // namespace zor::monitor
