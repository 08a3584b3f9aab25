#include <zor/monitor/ui/frames_model.h>
#include <zor/platform/qt/looks.h>

#include <QDateTime>
#include <QFont>
#include <QLocale>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

constexpr std::array kHeadings{
    QT_TRANSLATE_NOOP("FramesModel", "Time"),       QT_TRANSLATE_NOOP("FramesModel", "Direction"),
    QT_TRANSLATE_NOOP("FramesModel", "Unit"),       QT_TRANSLATE_NOOP("FramesModel", "Message"),
    QT_TRANSLATE_NOOP("FramesModel", "Round trip"), QT_TRANSLATE_NOOP("FramesModel", "Bytes"),
};

// In the order of Frame::Kind.
constexpr std::array kDirections{
    QT_TRANSLATE_NOOP("FramesModel", "request"),
    QT_TRANSLATE_NOOP("FramesModel", "reply"),
    QT_TRANSLATE_NOOP("FramesModel", "remark"),
};

bool isOfWrite(const Frame& frame)
{
    const Frame& asked = frame.request != nullptr ? *frame.request : frame;
    const std::size_t at = asked.framing->head;
    return asked.bytes.size() > at && writes(static_cast<Function>(asked.bytes[at]));
}

} // namespace

std::string FramesModel::word(std::string_view english)
{
    std::string key(english);
    for (const char* context : {"frames", "reasons"}) {
        const QString translated = QCoreApplication::translate(context, key.c_str());
        if (translated != QString::fromStdString(key))
            return translated.toStdString();
    }
    return key;
}

bool FramesModel::passes(const Frame& frame) const
{
    if ((m_which == kFailures && !frame.isFailure) || (m_which == kWrites && !isOfWrite(frame)))
        return false;
    return m_text.isEmpty() || std::ranges::any_of(std::array{kUnit, kMessage, kBytes}, [&](int column) {
               return cell(frame, column).contains(m_text, Qt::CaseInsensitive);
           });
}

void FramesModel::follow(const Frames& frames)
{
    const auto& all = frames.all();
    const std::uint64_t oldest = all.empty() ? frames.last() + 1 : all.front()->number;
    const auto gone = std::ranges::find_if(m_rows, [&](const FramePointer& row) { return row->number >= oldest; });
    if (const auto count = static_cast<int>(gone - m_rows.begin()); count > 0) {
        beginRemoveRows({}, 0, count - 1);
        m_rows.erase(m_rows.begin(), gone);
        endRemoveRows();
    }
    std::vector<FramePointer> fresh;
    const std::uint64_t known = std::max({m_seen, m_since, oldest - 1});
    for (auto i = static_cast<std::size_t>(known + 1 - oldest); i < all.size(); ++i) {
        if (passes(*all[i]))
            fresh.push_back(all[i]);
    }
    m_seen = frames.last();
    if (fresh.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(fresh.size()) - 1);
    m_rows.insert(m_rows.end(), fresh.begin(), fresh.end());
    endInsertRows();
}

void FramesModel::begin(const Frames& frames, bool withOld)
{
    beginResetModel();
    m_rows.clear();
    m_since = withOld ? 0 : frames.last();
    m_seen = m_since;
    endResetModel();
    follow(frames);
}

void FramesModel::filter(const QString& text, Which which, const Frames& frames)
{
    m_text = text;
    m_which = which;
    beginResetModel();
    m_rows.clear();
    m_seen = m_since;
    endResetModel();
    follow(frames);
}

void FramesModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
}

int FramesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FramesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumns; }

QString FramesModel::cell(const Frame& frame, int column)
{
    switch (column) {
    case kTime: return QDateTime::fromMSecsSinceEpoch(frame.time).toString("HH:mm:ss.zzz");
    case kDirection: return tr(kDirections[static_cast<std::size_t>(frame.kind)]);
    case kUnit: return QString::fromStdString(unitOf(frame));
    case kMessage: return QString::fromStdString(summaryOf(frame, word));
    case kRoundTrip:
        return frame.milliseconds < 0 ? QString()
                                      : tr("%1 ms").arg(QLocale().toString(frame.milliseconds, 'f', 1));
    default: return QString::fromStdString(hexOf(frame.bytes));
    }
}

QVariant FramesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::DisplayRole)
        return cell(*frame(index.row()), index.column());
    if (role == Qt::ToolTipRole)
        return platform::qt::plainToolTip(cell(*frame(index.row()), index.column()).toStdString());
    if (role == Qt::FontRole && frame(index.row())->isFailure) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::TextAlignmentRole && (index.column() == kRoundTrip || index.column() == kUnit))
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant FramesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return tr(kHeadings[static_cast<std::size_t>(section)]);
}

} // namespace zor::monitor
