#include <zor/monitor/language/words.h>
#include <zor/monitor/parts/row_table.h>
#include <zor/monitor/scan/scan_command.h>
#include <zor/monitor/ui/scan_dialog.h>
#include <zor/platform/qt/looks.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSerialPortInfo>
#include <QSpinBox>
#include <QTableWidget>

namespace zor::monitor {
namespace {

constexpr int kAddress = 0;

/// What can be inserted: ways to write an address, and the serial ports of this computer.
QStringList examples()
{
    QStringList all{"tcp://127.0.0.1:502", "tcp://127.0.0.1:502?unit=1-247"};
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts())
        all.append("rtu:" + port.systemLocation() + "?unit=1-247&baud=9600,19200&parity=even,none");
    return all;
}

} // namespace

ScanDialog::ScanDialog(const ParameterFile& file, QWidget* parent) : QDialog(parent), m_file(file)
{
    setWindowTitle(tr("Look for devices"));
    build();
    showRunning();
    constexpr int kWidth = 820;
    constexpr int kHeight = 520;
    resize(kWidth, kHeight);
    m_addresses->setFocus();
}

ScanDialog& ScanDialog::openFor(DevicePanel& panel)
{
    auto* dialog = new ScanDialog(panel.session().file(), panel.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->m_panel = &panel;
    if (const DeviceEntry& entry = panel.device().entry(); !entry.isSimulated())
        dialog->setAddresses(entry.address);
    dialog->onConnect = [dialog](const QString& address) {
        if (dialog->m_panel != nullptr)
            dialog->m_panel->connectTo(address);
    };
    dialog->open();
    return *dialog;
}

void ScanDialog::build()
{
    auto* column = new QVBoxLayout(this);
    addAddresses(*column);
    addTable(*column);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_connect = buttons->addButton(tr("Co&nnect"), QDialogButtonBox::AcceptRole);
    column->addWidget(buttons);
    connect(m_connect, &QPushButton::clicked, this, [this] { choose(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ScanDialog::addAddresses(QVBoxLayout& column)
{
    auto* label =
        new QLabel(tr("&Addresses, one to the line. Only these are asked. Unit, baud rate and parity may be "
                      "lists: unit=1-10,17 baud=9600,19200 parity=even,none"),
                   this);
    label->setWordWrap(true);
    m_addresses = new QPlainTextEdit(this);
    m_addresses->setTabChangesFocus(true);
    m_addresses->setPlaceholderText(
        "tcp://192.168.1.20:502?unit=1-10\nrtu:/dev/ttyUSB0?baud=9600,19200&parity=even,none");
    m_addresses->setFixedHeight(fontMetrics().lineSpacing() * 5);
    label->setBuddy(m_addresses);
    column.addWidget(label);
    column.addWidget(m_addresses);
    m_examples = new QComboBox(this);
    m_examples->addItem(tr("Insert an example..."));
    m_examples->addItems(examples());
    m_examples->setAccessibleName(m_examples->itemText(0));
    m_examples->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_examples, &QComboBox::activated, this, [this](int index) {
        if (index > 0)
            m_addresses->appendPlainText(m_examples->itemText(index));
        m_examples->setCurrentIndex(0);
    });
    m_timeout = new QSpinBox(this);
    constexpr int kShortest = 10;
    constexpr int kLongest = 10000;
    m_timeout->setRange(kShortest, kLongest);
    m_timeout->setValue(kUsualScanTimeout);
    m_timeout->setSuffix(tr(" ms"));
    auto* wait = new QLabel(tr("&Timeout:"), this);
    wait->setBuddy(m_timeout);
    m_scan = new QPushButton(this);
    connect(m_scan, &QPushButton::clicked, this, [this] { scan(); });
    auto* line = new QHBoxLayout;
    line->addWidget(m_examples, 1);
    line->addWidget(wait);
    line->addWidget(m_timeout);
    line->addWidget(m_scan);
    column.addLayout(line);
}

void ScanDialog::addTable(QVBoxLayout& column)
{
    m_table = makeRowTable({tr("Address"), tr("Device"), tr("Version"), tr("Identification"), tr("Remark")},
                           tr("What answers"), this);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_table, &QTableWidget::itemDoubleClicked, this, [this] { choose(); });
    connect(m_table, &QTableWidget::itemSelectionChanged, this, [this] { showRunning(); });
    column.addWidget(m_table, 1);
    m_progress = new QProgressBar(this);
    m_state = new QLabel(this);
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    column.addWidget(m_progress);
    column.addWidget(m_state);
}

QString ScanDialog::addresses() const { return m_addresses->toPlainText(); }
void ScanDialog::setAddresses(const QString& text) { m_addresses->setPlainText(text); }

void ScanDialog::showRunning()
{
    m_scan->setText(isRunning() ? tr("&Stop") : tr("&Scan"));
    m_progress->setVisible(isRunning());
    const QTableWidgetItem* item = m_table->item(m_table->currentRow(), kAddress);
    const bool chosen = item != nullptr && item->data(Qt::UserRole).toBool();
    m_connect->setEnabled(chosen);
    (chosen ? m_connect : m_scan)->setDefault(true);
}

void ScanDialog::scan()
{
    if (isRunning()) {
        m_scanner->cancel();
        return end(tr("Cancelled."));
    }
    std::vector<ScanLine> lines;
    try {
        for (const QString& line : addresses().split('\n')) {
            if (line.trimmed().isEmpty())
                continue;
            for (ScanLine& one : scanLines(line.trimmed()))
                lines.push_back(std::move(one));
        }
    } catch (const AddressError& error) {
        return m_state->setText(tr("This is no address that can be asked:") + ' ' +
                                QString::fromUtf8(error.what()));
    }
    if (lines.empty())
        return m_state->setText(tr("No address is given."));
    m_table->setRowCount(0);
    m_state->clear();
    m_scanner = std::make_unique<Scanner>(std::move(lines), m_file, m_timeout->value());
    m_scanner->onHit = [this](const ScanHit& hit) {
        addRow({hit.address, QString::fromStdString(hit.type), QString::fromStdString(hit.version),
                QString::fromStdString(identificationOf(hit)), tr("answers after %1 ms").arg(hit.milliseconds)},
               true);
    };
    m_scanner->onTrouble = [this](const QString& address, const Reply& reply) {
        addRow({address, {}, {}, {}, Words::reason(reply) + ". " + Words::advice(reply)}, false);
    };
    m_scanner->onProgress = [this](int done, int total) {
        m_progress->setMaximum(total);
        m_progress->setValue(done);
    };
    m_scanner->onDone = [this] { end(tr("Done.")); };
    m_progress->setValue(0);
    m_scanner->start();
    showRunning();
}

void ScanDialog::addRow(const QStringList& cells, bool answers)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    for (int column = 0; column < cells.size(); ++column) {
        auto* item = new QTableWidgetItem(cells[column]);
        item->setToolTip(platform::qt::plainToolTip(cells[column].toStdString()));
        m_table->setItem(row, column, item);
    }
    m_table->item(row, kAddress)->setData(Qt::UserRole, answers);
    for (int column = 0; column + 1 < m_table->columnCount(); ++column)
        m_table->resizeColumnToContents(column);
    m_table->resizeRowsToContents();
    if (answers && !m_connect->isEnabled())
        m_table->setCurrentCell(row, kAddress);
}

void ScanDialog::end(const QString& text)
{
    int answers = 0;
    for (int row = 0; row < m_table->rowCount(); ++row)
        answers += m_table->item(row, kAddress)->data(Qt::UserRole).toBool() ? 1 : 0;
    m_state->setText(text + ' ' + tr("Devices that answer: %1").arg(answers));
    showRunning();
    if (answers > 0)
        m_table->setFocus();
}

void ScanDialog::choose()
{
    const QTableWidgetItem* item = m_table->item(m_table->currentRow(), kAddress);
    if (item == nullptr || !item->data(Qt::UserRole).toBool())
        return;
    const QString address = item->text();
    const bool edited = m_panel != nullptr && m_panel->session().hasEdits();
    if (edited &&
        QMessageBox::question(this, windowTitle(),
                              tr("There are edits that have not been written. Connect to another device "
                                 "all the same?"),
                              QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel) != QMessageBox::Yes)
        return;
    if (isRunning())
        m_scanner->cancel();
    if (onConnect)
        onConnect(address);
    accept();
}

} // namespace zor::monitor
