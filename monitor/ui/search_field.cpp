#include <zor/monitor/ui/search_field.h>

#include <QAbstractItemView>
#include <QCompleter>

namespace zor::monitor {
namespace {

enum Role { kTyped = Qt::UserRole, kGoesTo };

} // namespace

SearchField::SearchField() : m_found(new QStandardItemModel(this))
{
    constexpr int kWidth = 260;
    constexpr int kLines = 12;
    setMaximumWidth(kWidth);
    setClearButtonEnabled(true);
    auto* list = new QCompleter(m_found, this);
    list->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    list->setCompletionRole(kTyped);
    list->setMaxVisibleItems(kLines);
    setCompleter(list);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { this->list(text); });
    connect(this, &QLineEdit::returnPressed, this, [this] { choose(); });
    connect(list, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { onChosen(index.data(kGoesTo).toULongLong()); });
    translate();
}

void SearchField::translate()
{
    setPlaceholderText(tr("Find: tag, caption, value"));
    setAccessibleName(tr("Find a parameter"));
    setToolTip(tr("Find a parameter by its tag, its caption or the value that was last read (%1)")
                   .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
}

void SearchField::list(const QString& text)
{
    m_found->clear();
    for (const Hit& hit : find(text)) {
        auto* item = new QStandardItem(hit.value.isEmpty() ? hit.caption : hit.caption + "   " + hit.value);
        item->setData(text, kTyped); // what has been typed stays
        item->setData(static_cast<qulonglong>(hit.parameter), kGoesTo);
        m_found->appendRow(item);
    }
}

void SearchField::choose()
{
    const QAbstractItemView* shown = completer()->popup();
    if (shown->isVisible() && shown->selectionModel()->hasSelection())
        return; // the list says so itself
    list(text());
    completer()->popup()->hide();
    if (m_found->rowCount() == 0)
        return onNothing(text());
    onChosen(m_found->index(0, 0).data(kGoesTo).toULongLong());
}

} // namespace zor::monitor
