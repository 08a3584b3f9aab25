#include <zor/monitor/parts/framed_marks.h>
#include <zor/monitor/ui/open_dialog.h>
#include <zor/monitor/ui/scan_dialog.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zor::monitor {

QString summaryOf(const DeviceEntry& entry)
{
    QStringList parts;
    if (!entry.name.isEmpty())
        parts.append(entry.name);
    parts.append(entry.isSimulated() ? QCoreApplication::translate("OpenDialog", "simulated") : entry.address);
    for (const QString& file : {entry.parameters, entry.form}) {
        if (!file.isEmpty())
            parts.append(QFileInfo(file).fileName());
    }
    return parts.join(", ");
}

OpenDialog::OpenDialog(const Memory& memory, QWidget* parent)
    : QDialog(parent), m_simulated(new QRadioButton(tr("A &simulated device"), this)),
      m_real(new QRadioButton(tr("The device at this &address:"), this)), m_address(new QLineEdit(this))
{
    setWindowTitle(tr("Open device"));
    auto* column = new QVBoxLayout(this);
    const QList<DeviceEntry> recent = memory.recent();
    addRecent(recent, memory.recentSites());
    if (m_recent != nullptr) {
        auto* heading = new QLabel(tr("Opened &before:"), this);
        heading->setBuddy(m_recent);
        column->addWidget(heading);
        column->addWidget(m_recent);
    }
    m_address->setPlaceholderText("tcp://192.168.1.20:502?unit=1   rtu:/dev/ttyUSB0?unit=1&baud=19200");
    m_address->setAccessibleName(tr("Address"));
    column->addWidget(m_simulated);
    column->addWidget(m_real);
    auto* look = new QPushButton(tr("Look for &devices..."), this);
    look->setAutoDefault(false);
    connect(look, &QPushButton::clicked, this, [this] { scan(); });
    auto* line = new QHBoxLayout;
    line->addWidget(m_address, 1);
    line->addWidget(look);
    column->addLayout(line);
    auto* fields = new QFormLayout;
    m_parameters = addFile(*fields, tr("&Parameter file:"), tr("of the demonstration device"),
                           tr("Parameter files (*.json)"));
    m_form = addFile(*fields, tr("&Form:"), tr("made from the parameter file"), tr("Forms (*.ui)"));
    column->addLayout(fields);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_open = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    auto* site = buttons->addButton(tr("Open s&ite..."), QDialogButtonBox::ActionRole);
    site->setAutoDefault(false);
    connect(site, &QPushButton::clicked, this, [this] { browseSite(); });
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connectFields(look);
    constexpr int kWidth = 560;
    resize(kWidth, sizeHint().height());
    setEntry(recent.isEmpty() ? DeviceEntry() : recent.front());
}

void OpenDialog::connectFields(QPushButton* look)
{
    QWidget* before = m_recent;
    for (QWidget* next : std::initializer_list<QWidget*>{m_simulated, m_real, m_address, look}) {
        if (before != nullptr)
            setTabOrder(before, next);
        before = next;
    }
    connect(m_address, &QLineEdit::textEdited, this, [this] { m_real->setChecked(true); });
    for (QLineEdit* field : {m_address, m_parameters, m_form})
        connect(field, &QLineEdit::textEdited, this, [this] { leaveSite(); });
    for (QRadioButton* button : {m_simulated, m_real}) {
        FramedMarks::on(*button);
        connect(button, &QRadioButton::clicked, this, [this] { leaveSite(); });
    }
    connect(m_address, &QLineEdit::textChanged, this, [this] { checkAddress(); });
    connect(m_simulated, &QRadioButton::toggled, this, [this] { checkAddress(); });
}

void OpenDialog::addRecent(const QList<DeviceEntry>& devices, const QStringList& sites)
{
    if (devices.isEmpty() && sites.isEmpty())
        return;
    m_recent = new QListWidget(this);
    for (const DeviceEntry& entry : devices)
        m_recent->addItem(summaryOf(entry));
    for (const QString& file : sites) {
        m_recent->addItem(tr("Site: %1").arg(QFileInfo(file).fileName()));
        m_recent->item(m_recent->count() - 1)->setToolTip(file);
    }
    connect(m_recent, &QListWidget::currentRowChanged, this, [this, devices, sites](int row) {
        if (row >= devices.size())
            setSite(sites[row - devices.size()]);
        else if (row >= 0)
            setEntry(devices[row]);
    });
    connect(m_recent, &QListWidget::itemActivated, this, &QDialog::accept);
    constexpr int kLines = 6;
    m_recent->setMaximumHeight(m_recent->sizeHintForRow(0) * kLines);
}

QLineEdit* OpenDialog::addFile(QFormLayout& form, const QString& caption, const QString& none,
                               const QString& filter)
{
    auto* line = new QHBoxLayout;
    auto* file = new QLineEdit(this);
    file->setPlaceholderText(none);
    file->setClearButtonEnabled(true);
    auto* browse = new QPushButton(tr("Browse..."), this);
    browse->setAutoDefault(false);
    browse->setAccessibleName(caption + ' ' + browse->text());
    line->addWidget(file, 1);
    line->addWidget(browse);
    connect(browse, &QPushButton::clicked, this, [this, file, caption, filter] {
        const QString name = QFileDialog::getOpenFileName(this, windowTitle(), file->text(), filter);
        if (!name.isEmpty())
            file->setText(name);
    });
    form.addRow(caption, line);
    if (auto* label = qobject_cast<QLabel*>(form.labelForField(line)))
        label->setBuddy(file);
    return file;
}

void OpenDialog::setSite(const QString& file)
{
    // The fields are those of one device: none of them says anything now.
    m_site = file;
    for (QRadioButton* button : {m_simulated, m_real}) {
        button->setAutoExclusive(false);
        button->setChecked(false);
        button->setAutoExclusive(true);
    }
    for (QLineEdit* field : {m_address, m_parameters, m_form})
        field->clear();
    checkAddress();
}

void OpenDialog::leaveSite()
{
    if (m_site.isEmpty())
        return;
    m_site.clear();
    m_recent->setCurrentRow(-1);
    if (!m_real->isChecked())
        m_simulated->setChecked(true);
    checkAddress();
}

void OpenDialog::browseSite()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open site"), {}, tr("Site files (*.json)"));
    if (file.isEmpty())
        return;
    m_site = file;
    accept();
}

void OpenDialog::scan()
{
    // What devices say of themselves lies where their parameter file says it does.
    ParameterFile file;
    try {
        file = loadParameters(entry());
    } catch (const FileError&) {
        file = loadParameters({});
    }
    ScanDialog dialog(file, this);
    dialog.setAddresses(m_address->text().trimmed());
    dialog.onConnect = [this](const QString& found) {
        m_address->setText(found);
        m_real->setChecked(true);
        leaveSite();
    };
    dialog.exec();
}

void OpenDialog::checkAddress()
{
    m_open->setEnabled(!m_site.isEmpty() || m_simulated->isChecked() || !m_address->text().trimmed().isEmpty());
}

DeviceEntry OpenDialog::entry() const
{
    DeviceEntry entry = m_entry;
    entry.address = m_simulated->isChecked() ? QString(kSimulated) : m_address->text().trimmed();
    entry.parameters = m_parameters->text().trimmed();
    entry.form = m_form->text().trimmed();
    if (entry.address != m_entry.address)
        entry.name.clear(); // another device
    return entry;
}

void OpenDialog::setEntry(const DeviceEntry& entry)
{
    m_entry = entry;
    m_site.clear();
    (entry.isSimulated() ? m_simulated : m_real)->setChecked(true);
    m_address->setText(entry.isSimulated() ? QString() : entry.address);
    m_parameters->setText(entry.parameters);
    m_form->setText(entry.form);
    checkAddress();
}

} // namespace zor::monitor
