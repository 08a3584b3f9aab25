#include <zor/monitor/language/words.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/monitor/ui/device_panel.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QVBoxLayout>

#include <set>
#include <utility>

namespace zor::monitor {
namespace {

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

DevicePanel::DevicePanel(std::unique_ptr<Device> device, std::unique_ptr<Form> form)
    : m_form(std::move(form)), m_device(std::move(device)), m_trend(std::make_unique<Trend>(session()))
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(&m_form->widget());
    m_transfer = std::make_unique<SettingsTransfer>(*this, session());
    m_transfer->say = [this](const QString& text) { say(text); };
    m_transfer->onProposed = [this] { review(); };
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, [this] { showEdits(); });
    listen();
    m_soon.start(0);
}

void DevicePanel::listen()
{
    Session& session = this->session();
    session.isVisible = isInSight;
    const auto& parameters = session.file().parameters;
    session.foreseen = [this, &parameters](std::size_t i) { return m_form->foreseen(parameters[i]); };
    session.make = [this, &parameters](std::size_t i) { m_form->make(parameters[i]); };
    m_form->whenMade([&session](std::span<core::Control* const> controls) {
        for (core::Control* control : controls)
            session.bind(*control);
    });
    session.onRound = [this](bool answered) {
        m_answered = answered;
        showRound();
        m_transfer->hearRound(answered);
    };
    session.onWriting = [this] { m_soon.start(0); };
    session.onWritten = [this](const std::vector<Written>& results) {
        m_soon.start(0);
        showResults(results);
    };
    session.onEdit = [this] { m_soon.start(0); };
    m_form->isKnown = [this](const core::Control& control) {
        const auto parameter = this->session().indexOf(control.DeviceTag());
        return parameter && std::ranges::any_of(this->session().bindings(*parameter), [&](const Binding* one) {
                   return &one->control() == &control && !one->shown.empty();
               });
    };
    if (QTabWidget* tabs = m_form->tabs()) {
        connect(tabs, &QTabWidget::currentChanged, this, [this] {
            m_form->arrange();
            this->session().poller().pollNow();
        });
    }
}

DevicePanel::~DevicePanel()
{
    delete m_review;
    m_transfer.reset();
    m_trend.reset();
    m_device.reset();
    // The form owns its controls, the panel its widget: the controls go first.
    m_form->widget().setParent(nullptr);
    m_form.reset();
}

QString DevicePanel::name() const
{
    if (const QString& own = m_device->entry().name; !own.isEmpty())
        return own;
    const QString title = QString::fromStdString(session().file().title.in(m_language));
    return title.isEmpty() ? m_device->entry().address : title;
}

void DevicePanel::connectTo(const QString& address)
{
    device().connectTo(address);
    if (onAddress)
        onAddress();
}

void DevicePanel::setLanguage(const std::string& language)
{
    m_language = language;
    session().setLanguage(language);
    m_transfer->setLanguage(language);
    m_form->translate(language);
    showRound();
}

void DevicePanel::setUnits(UnitSystem system)
{
    session().setUnits(system);
    m_form->arrange();
}

void DevicePanel::setUnit(UNIT_TYPE type, MEAS_TYPE unit)
{
    const bool shown = session().setUnit(type, unit);
    m_form->arrange();
    if (!shown)
        say(tr("Not every value can be shown in that unit"));
}

QString DevicePanel::captionOf(const Parameter& parameter) const
{
    return QString::fromStdString(parameter.captionIn(m_language));
}

void DevicePanel::reveal(std::size_t parameter)
{
    const Binding* binding = session().reach(parameter);
    if (binding == nullptr)
        return;
    if (!binding->isSupported())
        return say(tr("The device does not have this parameter"));
    m_form->reveal(binding->control());
}

void DevicePanel::addTo(QMenu& menu, const Binding& binding)
{
    if (binding.parameter() == nullptr)
        return;
    const Parameter& parameter = *binding.parameter();
    const auto index = static_cast<std::size_t>(&parameter - session().file().parameters.data());
    if (const Registers& held = session().held(index); !held.empty()) {
        const ShownValue value = describe(parameter, held, binding.shownUnit(), m_language);
        menu.addAction(tr("Copy &value"), this, [text = QString::fromStdString(value.text)] {
            QGuiApplication::clipboard()->setText(text);
        });
    }
    if (!session().editable().contains(index))
        return;
    if (const QString value = m_transfer->fileValue(index); !value.isEmpty())
        menu.addAction(tr("Set to &file value (%1)").arg(QString(value).replace('&', "&&")), this,
                       [this, index] { m_transfer->setToFile(index); });
    menu.addAction(tr("Set to file value..."), this, [this, index] { m_transfer->setToOtherFile(index); });
}

// --- Editing

void DevicePanel::commitEntry()
{
    // A control takes its entry over when the operator leaves it.
    if (QWidget* focus = QApplication::focusWidget(); focus != nullptr && isAncestorOf(focus))
        focus->clearFocus();
}

void DevicePanel::review()
{
    if (m_review != nullptr || session().isWriting())
        return;
    commitEntry();
    std::vector<Change> changes = session().pending();
    if (changes.empty())
        return say(tr("Nothing to write"));
    auto* dialog = new ReviewDialog(std::move(changes), session().file(), m_language, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_memory.restore(*dialog, "review");
    connect(dialog, &QDialog::finished, this, [this, dialog] { m_memory.keep(*dialog, "review"); });
    connect(dialog, &QDialog::accepted, this, [this, dialog] { session().write(dialog->changes()); });
    m_review = dialog;
    dialog->open();
}

void DevicePanel::compareWith(DevicePanel& other)
{
    m_transfer->compareWith(*other.m_transfer, {name(), other.name()});
}

void DevicePanel::undoAll()
{
    commitEntry();
    session().undoAll();
}

// --- What has become of it

void DevicePanel::showRound()
{
    if (onRound)
        onRound();
    if (m_review != nullptr)
        m_review->follow(session().pending());
    showEdits();
}

void DevicePanel::showEdits()
{
    m_form->arrange();
    if (QTabWidget* tabs = m_form->tabs())
        markTabs(*tabs);
    if (onEdits)
        onEdits();
}

void DevicePanel::markTabs(QTabWidget& tabs)
{
    std::set<const QWidget*> edited;
    for (const auto& binding : session().bindings()) {
        if (!binding->isModified())
            continue;
        for (const QWidget* w = &platform::qt::widgetOf(binding->control().surface()); w != nullptr;
             w = w->parentWidget())
            edited.insert(w);
    }
    for (int i = 0; i < tabs.count(); ++i) {
        const bool holds = edited.contains(tabs.widget(i));
        if (tabs.tabIcon(i).isNull() == !holds)
            continue;
        m_form->mark(i, holds ? dot(tabs.iconSize()) : QIcon(),
                     holds ? tr("Holds edits that have not been written") : QString());
    }
}

void DevicePanel::showResults(const std::vector<Written>& results)
{
    QStringList failures;
    for (const Written& written : results) {
        if (written.result.outcome == WriteOutcome::Written)
            continue;
        const Change& change = written.change;
        const Parameter& parameter = session().file().parameters[change.parameter];
        const ShownValue held =
            describeExactly(parameter, written.result.readBack, change.unit, m_language, change.mask);
        failures.append(captionOf(parameter) + ": " +
                        Words::outcome(written.result, written.result.readBack.empty()
                                                           ? QString()
                                                           : Words::value(held.text, held.unit)));
    }
    if (failures.isEmpty())
        return say(results.size() == 1 ? tr("1 value written and read back")
                                       : tr("%1 values written and read back").arg(results.size()));
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Not everything was written"), QString(), QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(tr("These edits are kept:") + "\n\n" + failures.join('\n'));
    box->open();
}

std::unique_ptr<DevicePanel> openPanel(const DeviceEntry& entry, const core::ClassRegistry& classes)
{
    auto device = std::make_unique<Device>(entry, loadParameters(entry));
    std::unique_ptr<Form> form;
    if (entry.form.isEmpty())
        form = std::make_unique<GeneratedForm>(device->session().file(), classes);
    else
        form = std::make_unique<UiForm>(entry.form, classes);
    return std::make_unique<DevicePanel>(std::move(device), std::move(form));
}

} // namespace zor::monitor
