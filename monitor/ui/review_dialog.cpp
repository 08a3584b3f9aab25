#include <zor/monitor/ui/review_dialog.h>
#include <zor/units/mod_Common.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

// In the order of Problem.
constexpr std::array kProblems{
    "",
    QT_TRANSLATE_NOOP("Words", "not written: the entry is not valid"),
    QT_TRANSLATE_NOOP("Words", "not written: the entry is not a number"),
    QT_TRANSLATE_NOOP("Words", "not written: the device cannot hold a number of this size"),
    QT_TRANSLATE_NOOP("Words", "not written: the number is outside the limits"),
    QT_TRANSLATE_NOOP("Words", "not written: the text is too long for the device"),
    QT_TRANSLATE_NOOP("Words", "not written: the device has no such characters"),
    QT_TRANSLATE_NOOP("Words", "not written: the parameter can only be read"),
    QT_TRANSLATE_NOOP("Words", "not written: the device has not been read yet"),
    QT_TRANSLATE_NOOP("Words", "not written: two fields hold different values"),
};

// In the order of WriteOutcome.
constexpr std::array kOutcomes{
    QT_TRANSLATE_NOOP("Words", "written and read back"),
    QT_TRANSLATE_NOOP("Words", "refused by the device"),
    QT_TRANSLATE_NOOP("Words", "not sent: no connection"),
    QT_TRANSLATE_NOOP("Words", "unconfirmed: the device did not answer; it is settled by the next read"),
    QT_TRANSLATE_NOOP("Words", "the device holds another value than was written"),
};

QString shown(const std::string& utf8) { return QString::fromStdString(utf8); }

} // namespace

QString Words::problem(Problem problem) { return tr(kProblems[static_cast<std::size_t>(problem)]); }

QString Words::outcome(const WriteResult& result)
{
    const QString text = tr(kOutcomes[static_cast<std::size_t>(result.outcome)]);
    return result.exception == 0 ? text : text + QString(" (%1)").arg(tr("exception %1").arg(result.exception));
}

QString Words::unit(MEAS_TYPE unit)
{
    const std::string identifier(fc_GetUnitID(unit));
    const QString label = QCoreApplication::translate("units", identifier.c_str());
    const std::string_view usual = fc_GetUnitLabel(unit);
    return label != QString::fromStdString(identifier)
               ? label
               : QString::fromUtf8(usual.data(), static_cast<qsizetype>(usual.size()));
}

ReviewDialog::ReviewDialog(std::vector<Change> changes, QWidget* parent)
    : QDialog(parent), m_changes(std::move(changes))
{
    setWindowTitle(tr("Write to the device"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(new QLabel(tr("These values will be written:"), this));
    const QStringList headings{tr("Parameter"), tr("Old value"), tr("New value"), tr("Unit"), tr("Remark")};
    auto* table = new QTableWidget(static_cast<int>(m_changes.size()), static_cast<int>(headings.size()), this);
    table->setHorizontalHeaderLabels(headings);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    for (int row = 0; row < table->rowCount(); ++row) {
        const Change& change = m_changes[static_cast<std::size_t>(row)];
        QString remark = Words::problem(change.problem);
        if (change.changedByOther)
            remark += (remark.isEmpty() ? "" : "; ") + tr("changed by another user in the meantime");
        const std::array texts{shown(change.tag), shown(change.oldText), shown(change.newText),
                               Words::unit(change.unit), remark};
        for (int column_ = 0; column_ < table->columnCount(); ++column_)
            table->setItem(row, column_, new QTableWidgetItem(texts[static_cast<std::size_t>(column_)]));
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    column->addWidget(table);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto* write = buttons->addButton(tr("&Write"), QDialogButtonBox::AcceptRole);
    write->setEnabled(
        std::ranges::any_of(m_changes, [](const Change& change) { return change.problem == Problem::None; }));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    constexpr int kWidth = 640;
    constexpr int kHeight = 320;
    resize(kWidth, kHeight);
}

} // namespace zor::monitor
