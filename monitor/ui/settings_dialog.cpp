#include <zor/monitor/language/words.h>
#include <zor/monitor/parts/framed_marks.h>
#include <zor/monitor/parts/kept_return.h>
#include <zor/monitor/parts/row_table.h>
#include <zor/monitor/ui/settings_dialog.h>
#include <zor/platform/qt/looks.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zor::monitor {
namespace {

enum Filter : int { kDifferences, kAll };

QString asText(const std::string& utf8) { return QString::fromStdString(utf8); }

} // namespace

SettingsDialog::SettingsDialog(Comparison comparison, const ParameterFile& parameters, Use use,
                               std::string language, QWidget* parent)
    : QDialog(parent), m_comparison(std::move(comparison)), m_parameters(parameters), m_use(std::move(use)),
      m_language(std::move(language))
{
    setWindowTitle(m_use.title);
    auto* column = new QVBoxLayout(this);
    addHead(*column);
    addTable();
    column->addWidget(m_table, 1);
    addButtons(*column);
    constexpr int kWidth = 820;
    constexpr int kHeight = 460;
    resize(kWidth, kHeight);
    fill();
    filter();
    sizeColumns();
    // Only now: filling changes every item.
    connect(m_table, &QTableWidget::itemChanged, this, [this] { allowLoading(); });
    m_table->setFocus();
}

void SettingsDialog::addHead(QVBoxLayout& column)
{
    auto* counts = new QLabel(countsText(), this);
    counts->setWordWrap(true);
    column.addWidget(counts);
    if (m_comparison.otherType || m_comparison.otherVersion) {
        auto* warning =
            new QLabel(m_comparison.otherType ? tr("Attention: the file is of another type of device.")
                                              : tr("Attention: the file is of another version of the device."),
                       this);
        QFont bold = warning->font();
        bold.setBold(true);
        warning->setFont(bold);
        column.addWidget(warning);
    }
    m_text = new QLineEdit(this);
    m_text->setPlaceholderText(tr("Filter: parameter or tag"));
    m_text->setClearButtonEnabled(true);
    m_text->setAccessibleName(m_text->placeholderText());
    m_which = new QComboBox(this);
    m_which->addItems({tr("Only differences"), tr("All parameters")});
    m_which->setAccessibleName(tr("What is shown"));
    if (m_comparison.isSame())
        m_which->setCurrentIndex(kAll);
    KeptReturn::on(*m_text);
    KeptReturn::on(*m_which);
    auto* line = new QHBoxLayout;
    line->addWidget(m_text, 1);
    line->addWidget(m_which);
    column.addLayout(line);
    connect(m_text, &QLineEdit::textChanged, this, [this] { filter(); });
    connect(m_which, &QComboBox::currentIndexChanged, this, [this] { filter(); });
    auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] { m_text->setFocus(); });
}

void SettingsDialog::addTable()
{
    const QStringList headings{tr("Parameter"), tr("Tag"), m_use.one, m_use.other, tr("Remark")};
    m_table = makeRowTable(headings, m_use.title, this);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    m_table->setWordWrap(false);
    FramedMarks::on(*m_table);
}

void SettingsDialog::addButtons(QVBoxLayout& column)
{
    auto* buttons = new QDialogButtonBox(m_use.loads ? QDialogButtonBox::Cancel : QDialogButtonBox::Close, this);
    if (m_use.loads) {
        m_count = new QLabel(this);
        column.addWidget(m_count);
        m_load = buttons->addButton(tr("&Load..."), QDialogButtonBox::AcceptRole);
        for (const bool ticked : {true, false}) {
            auto* all = buttons->addButton(ticked ? tr("Tick &all shown") : tr("Tick &none shown"),
                                           QDialogButtonBox::ActionRole);
            connect(all, &QPushButton::clicked, this, [this, ticked] { tickAll(ticked); });
        }
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column.addWidget(buttons);
}

QString SettingsDialog::countsText() const
{
    QStringList counts;
    for (std::size_t i = 0; i < verdictNames().size(); ++i) {
        const auto verdict = static_cast<Verdict>(i);
        if (const std::size_t count = m_comparison.count(verdict); count > 0)
            counts.append(QString("%1: %2").arg(Words::verdict(verdict)).arg(count));
    }
    return counts.isEmpty() ? tr("Neither has a parameter.") : counts.join(", ");
}

QStringList SettingsDialog::textsOf(const Compared& row) const
{
    QString remark = Words::verdict(row);
    if (row.verdict == Verdict::Different && m_use.loads && !isLoadable(row))
        remark += ": " + tr("this form has no field for it");
    const QString caption =
        row.parameter ? asText(m_parameters.parameters[*row.parameter].captionIn(m_language)) : QString();
    return {caption, asText(row.tag), Words::value(row.fileText, row.unit), Words::value(row.deviceText, row.unit),
            remark};
}

bool SettingsDialog::isLoadable(const Compared& row) const
{
    return m_use.loads && row.verdict == Verdict::Different && row.parameter &&
           m_use.loadable.contains(*row.parameter);
}

void SettingsDialog::fill()
{
    m_table->setRowCount(static_cast<int>(m_comparison.rows.size()));
    for (std::size_t i = 0; i < m_comparison.rows.size(); ++i) {
        const Compared& row = m_comparison.rows[i];
        int column = 0;
        for (const QString& text : textsOf(row)) {
            auto* item = new QTableWidgetItem(text);
            item->setData(Qt::UserRole, static_cast<int>(i));
            item->setToolTip(platform::qt::plainToolTip(text.toStdString())); // of what is cut off
            if (column == 0 && isLoadable(row)) {
                item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
                item->setCheckState(Qt::Checked);
            }
            m_table->setItem(static_cast<int>(i), column++, item);
        }
    }
    // As the file has them, until a heading is clicked.
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
}

void SettingsDialog::sizeColumns()
{
    // For what is in sight: a caption or a text of any length leaves the remark its room.
    constexpr int kWidest = 240;
    m_table->resizeColumnsToContents();
    for (int column = 0; column < m_table->columnCount() - 1; ++column)
        m_table->setColumnWidth(column, std::min(m_table->columnWidth(column), kWidest));
}

void SettingsDialog::filter()
{
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const auto& compared =
            m_comparison.rows[static_cast<std::size_t>(m_table->item(row, 0)->data(Qt::UserRole).toInt())];
        const bool found = m_table->item(row, 0)->text().contains(m_text->text(), Qt::CaseInsensitive) ||
                           m_table->item(row, 1)->text().contains(m_text->text(), Qt::CaseInsensitive);
        const bool wanted = m_which->currentIndex() == kAll || compared.verdict != Verdict::Same;
        m_table->setRowHidden(row, !found || !wanted);
    }
    // Space would tick a row that nobody sees.
    if (m_table->currentRow() < 0 || m_table->isRowHidden(m_table->currentRow())) {
        int first = 0;
        while (first < m_table->rowCount() && m_table->isRowHidden(first))
            ++first;
        m_table->setCurrentCell(first < m_table->rowCount() ? first : -1, 0);
    }
    allowLoading();
}

void SettingsDialog::tickAll(bool ticked)
{
    const QSignalBlocker once(m_table);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem* item = m_table->item(row, 0);
        if (!m_table->isRowHidden(row) && (item->flags() & Qt::ItemIsUserCheckable) != 0)
            item->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    }
    allowLoading();
}

std::set<std::size_t> SettingsDialog::ticked() const
{
    std::set<std::size_t> parameters;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (!isTicked(row))
            continue;
        const auto index = static_cast<std::size_t>(m_table->item(row, 0)->data(Qt::UserRole).toInt());
        parameters.insert(*m_comparison.rows[index].parameter);
    }
    return parameters;
}

bool SettingsDialog::isTicked(int row) const
{
    const QTableWidgetItem* item = m_table->item(row, 0);
    return item != nullptr && (item->flags() & Qt::ItemIsUserCheckable) != 0 && item->checkState() == Qt::Checked;
}

void SettingsDialog::allowLoading()
{
    if (m_load == nullptr)
        return;
    int ticked = 0;
    int unseen = 0;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        ticked += isTicked(row) ? 1 : 0;
        unseen += isTicked(row) && m_table->isRowHidden(row) ? 1 : 0;
    }
    m_load->setEnabled(ticked > 0);
    m_count->setText(unseen == 0 ? tr("%1 ticked").arg(ticked)
                                 : tr("%1 ticked, %2 of them not shown").arg(ticked).arg(unseen));
}

} // namespace zor::monitor
