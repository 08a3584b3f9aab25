#include <zor/platform/error.h>
#include <zor/platform/qt/entry_model.h>
#include <zor/platform/qt/looks.h>

namespace zor::platform::qt {

const EntryModel::Entry& EntryModel::at(std::int32_t row) const
{
    if (row < 0 || row >= count())
        raiseError(ErrorNumber::SubscriptOutOfRange, "entry " + std::to_string(row));
    return m_entries[static_cast<std::size_t>(row)];
}

void EntryModel::append(std::string_view text, std::int32_t datum)
{
    beginInsertRows({}, count(), count());
    m_entries.push_back({std::string(text), datum, false});
    endInsertRows();
}

void EntryModel::remove(std::int32_t row)
{
    const bool wasMarked = at(row).isMarked;
    beginRemoveRows({}, row, row);
    m_entries.erase(m_entries.begin() + row);
    m_markedCount -= wasMarked ? 1 : 0;
    endRemoveRows();
}

void EntryModel::clear()
{
    beginResetModel();
    m_entries.clear();
    m_markedCount = 0;
    endResetModel();
}

bool EntryModel::setMarked(std::int32_t row, bool marked)
{
    if (at(row).isMarked == marked)
        return false;
    m_entries[static_cast<std::size_t>(row)].isMarked = marked;
    m_markedCount += marked ? 1 : -1;
    return true;
}

int EntryModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

QVariant EntryModel::data(const QModelIndex& index, int role) const
{
    // A text is cut only where no screen could hold it.
    constexpr int kLimit = 4096;
    if (!index.isValid() || index.row() >= count())
        return {};
    const Entry& entry = at(index.row());
    if (role == Qt::DisplayRole)
        return shownText(entry.text, kLimit);
    if (role == Qt::CheckStateRole && m_hasMarks)
        return static_cast<int>(entry.isMarked ? Qt::Checked : Qt::Unchecked);
    return {};
}

Qt::ItemFlags EntryModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return m_hasMarks ? flags | Qt::ItemIsUserCheckable : flags;
}

bool EntryModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !m_hasMarks || !index.isValid())
        return false;
    if (!setMarked(index.row(), value.toInt() == Qt::Checked))
        return true;
    emit dataChanged(index, index, {Qt::CheckStateRole});
    if (onMarked)
        onMarked(index.row());
    return true;
}

} // namespace zor::platform::qt
