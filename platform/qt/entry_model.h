#pragma once

/// The entries of a combo box or list box as Qt's views read them.

#include <QAbstractListModel>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zor::platform::qt {

/// Entries in the order in which they were added. A text becomes a QString only when it is shown: a list of
/// thousands is filled long before anybody looks at it.
class EntryModel final : public QAbstractListModel {
public:
    EntryModel(QObject* parent, bool hasMarks) : QAbstractListModel(parent), m_hasMarks(hasMarks) {}

    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(m_entries.size()); }
    void append(std::string_view text, std::int32_t datum);
    /// An index outside the list raises SubscriptOutOfRange, here and below.
    void remove(std::int32_t row);
    void clear();
    [[nodiscard]] const std::string& text(std::int32_t row) const { return at(row).text; }
    [[nodiscard]] std::int32_t datum(std::int32_t row) const { return at(row).datum; }
    [[nodiscard]] bool isMarked(std::int32_t row) const { return at(row).isMarked; }
    /// Whether the mark is another one now. The view is not told, for it would lay all entries out anew with each;
    /// whoever marks has it painted.
    bool setMarked(std::int32_t row, bool marked);
    [[nodiscard]] std::int32_t markedCount() const noexcept { return m_markedCount; }

    /// Hears of a mark that the operator changed.
    std::function<void(std::int32_t row)> onMarked;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    struct Entry {
        std::string text;
        std::int32_t datum;
        bool isMarked;
    };
    [[nodiscard]] const Entry& at(std::int32_t row) const;

    std::vector<Entry> m_entries;
    std::int32_t m_markedCount = 0;
    bool m_hasMarks;
};

} // namespace zor::platform::qt
