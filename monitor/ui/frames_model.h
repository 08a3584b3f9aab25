#pragma once

/// The frames of a link as a table, those that a filter lets through.

#include <zor/monitor/link/frame_decoder.h>

#include <QAbstractTableModel>
#include <QCoreApplication>
#include <QString>

#include <deque>

namespace zor::monitor {

class FramesModel final : public QAbstractTableModel {
    Q_DECLARE_TR_FUNCTIONS(FramesModel)
public:
    enum Column : int { kTime, kDirection, kUnit, kMessage, kRoundTrip, kBytes, kColumns };
    enum Which : int { kAll, kFailures, kWrites };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes in what has come since, and lets go of what the link has let go of.
    void follow(const Frames& frames);
    /// Begins anew with what comes from now on, or with all that the link still has.
    void begin(const Frames& frames, bool withOld);
    void filter(const QString& text, Which which, const Frames& frames);
    /// After a change of language.
    void retranslate();
    [[nodiscard]] const FramePointer& frame(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// A word of a frame in the language of the program.
    [[nodiscard]] static std::string word(std::string_view english);

private:
    [[nodiscard]] bool passes(const Frame& frame) const;
    [[nodiscard]] static QString cell(const Frame& frame, int column);

    std::deque<FramePointer> m_rows;
    std::uint64_t m_seen = 0;
    std::uint64_t m_since = 0; ///< what came before is not shown
    QString m_text;
    Which m_which = kAll;
};

} // namespace zor::monitor
