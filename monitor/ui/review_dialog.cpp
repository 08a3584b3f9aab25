#include <zor/monitor/language/words.h>
#include <zor/monitor/parts/framed_marks.h>
#include <zor/monitor/parts/row_table.h>
#include <zor/monitor/ui/review_dialog.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <unordered_map>

namespace zor::monitor {
namespace {

QString shown(const std::string& utf8) { return QString::fromStdString(utf8); }

void mark(QTableWidget& table, int row)
{
    for (int column = 0; column < table.columnCount(); ++column) {
        QFont font = table.font();
        font.setBold(true);
        table.item(row, column)->setFont(font);
    }
}

} // namespace

ReviewDialog::ReviewDialog(std::vector<Change> changes, const ParameterFile& file, std::string language,
                           QWidget* parent)
    : QDialog(parent), m_file(file), m_language(std::move(language))
{
    setWindowTitle(tr("Write to the device"));
    auto* column = new QVBoxLayout(this);
    m_parts = {addPart(tr("These values will be written:"), true),
               addPart(tr("These cannot be written, and stay in their fields:"), false)};
    for (const Part& part : m_parts) {
        column->addWidget(part.heading);
        column->addWidget(part.table, 1);
    }
    m_seen =
        new QCheckBox(tr("The device has changed while this list was open. I have seen what is marked."), this);
    m_seen->hide();
    FramedMarks::on(*m_seen);
    connect(m_seen, &QCheckBox::toggled, this, [this] { allowWriting(); });
    column->addWidget(m_seen);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_write = buttons->addButton(tr("&Write"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // What was meant for the window, a key held down or struck twice, must not write what nobody has read.
    buttons->button(QDialogButtonBox::Cancel)->setDefault(true);
    column->addWidget(buttons);
    constexpr int kWidth = 760;
    constexpr int kHeight = 360;
    resize(kWidth, kHeight);
    show(std::move(changes));
    const bool none = m_parts.front().table->rowCount() == 0;
    (none ? m_parts.back() : m_parts.front()).table->setFocus();
}

ReviewDialog::Part ReviewDialog::addPart(const QString& heading, bool writable)
{
    const QStringList headings{tr("Parameter"), tr("Tag"), tr("Old value"), tr("New value"), tr("Remark")};
    QTableWidget* table = makeRowTable(headings, heading, this);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    return {new QLabel(heading, this), table, writable};
}

void ReviewDialog::show(std::vector<Change> changes)
{
    m_changes = std::move(changes);
    for (const Part& part : m_parts)
        fill(part);
    allowWriting();
}

void ReviewDialog::allowWriting()
{
    const bool some =
        std::ranges::any_of(m_changes, [](const Change& change) { return change.problem == Problem::None; });
    m_write->setEnabled(some && (m_news.empty() || m_seen->isChecked()));
}

bool ReviewDialog::isNews(const Change* last, const Change& change) const
{
    return last == nullptr || last->device != change.device ||
           !isAsReviewed(*last, m_file.parameters[change.parameter].location, change.before);
}

void ReviewDialog::follow(std::vector<Change> changes)
{
    bool news = changes.size() != m_changes.size();
    std::unordered_map<std::size_t, const Change*> shown;
    for (const Change& change : m_changes)
        shown.emplace(change.parameter, &change);
    for (const Change& change : changes) {
        const auto last = shown.find(change.parameter);
        if (isNews(last == shown.end() ? nullptr : last->second, change)) {
            m_news.insert(change.parameter);
            news = true;
        }
    }
    if (!news)
        return;
    m_seen->setChecked(false);
    m_seen->setVisible(!m_news.empty());
    show(std::move(changes));
}

void ReviewDialog::fill(const Part& part)
{
    part.table->setRowCount(0);
    for (const Change& change : m_changes) {
        if ((change.problem == Problem::None) != part.writable)
            continue;
        const int row = part.table->rowCount();
        part.table->insertRow(row);
        int column = 0;
        for (const QString& text : textsOf(change))
            part.table->setItem(row, column++, new QTableWidgetItem(text));
        if (m_news.contains(change.parameter))
            mark(*part.table, row);
    }
    const bool used = part.table->rowCount() > 0;
    part.heading->setVisible(used);
    part.table->setVisible(used);
    // A caption or a text of any length leaves the others their room.
    constexpr int kWidest = 260;
    part.table->resizeColumnsToContents();
    for (int column = 0; column < part.table->columnCount() - 1; ++column)
        part.table->setColumnWidth(column, std::min(part.table->columnWidth(column), kWidest));
    constexpr int kMostRows = 500; ///< beyond which measuring them takes longer than it is worth
    if (part.table->rowCount() <= kMostRows)
        part.table->resizeRowsToContents();
}

QStringList ReviewDialog::textsOf(const Change& change) const
{
    const Parameter& parameter = m_file.parameters[change.parameter];
    QString remark = Words::problem(change);
    if (change.changedByOther)
        remark += (remark.isEmpty() ? "" : "; ") + tr("changed by another user in the meantime");
    if (change.otherDevice)
        remark += (remark.isEmpty() ? "" : "; ") + tr("another device answers since");
    // What is no number has no unit either.
    const MEAS_TYPE unit = change.problem == Problem::NotANumber ? NoneU : change.unit;
    return {shown(parameter.captionIn(m_language)), shown(change.tag), Words::value(change.oldText, change.unit),
            Words::value(change.newText, unit), remark};
}

} // namespace zor::monitor
