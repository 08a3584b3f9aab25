#include <zor/monitor/report/report_pages.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <map>
#include <numeric>

namespace zor::monitor {
namespace {

constexpr int kMost = 4000;      ///< characters of a text
constexpr double kPadding = 0.3; ///< left and right in a cell, in lines
constexpr double kBefore = 0.8;  ///< before a heading
constexpr double kBehind = 0.3;  ///< behind a text
constexpr double kSlack = 0.01;  ///< by which a text may be measured wrongly
constexpr QRgb kLines = 0xFF999999;
constexpr QRgb kHead = 0xFFE8E8E8;

QString shown(const QString& text)
{
    return withoutControls(text.size() > kMost ? text.left(kMost) + QChar(0x2026) : text);
}

/// The widths of columns that want these, together `room`: where that is too little, who wants less than his share
/// gets that, and the others share what is left.
std::vector<double> shared(const std::vector<double>& wanted, double room, bool evenly)
{
    const double all = std::accumulate(wanted.begin(), wanted.end(), 0.0);
    std::vector<double> widths = wanted;
    if (all <= room) {
        for (double& width : widths)
            width *= evenly ? room / all : 1;
        widths.back() += evenly ? 0 : room - all;
        return widths;
    }
    std::vector<std::size_t> order(wanted.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t i) { return wanted[i]; });
    for (std::size_t i = 0; i < order.size(); ++i) {
        widths[order[i]] = std::min(wanted[order[i]], room / static_cast<double>(order.size() - i));
        room -= widths[order[i]];
    }
    return widths;
}

} // namespace

ReportPages::ReportPages()
{
    constexpr std::array kPoints{16.0, 12.0, 10.0, 9.0};
    for (std::size_t i = 0; i < m_fonts.size(); ++i) {
        m_fonts[i].setPointSizeF(kPoints[i]);
        m_fonts[i].setBold(i + 1 < m_fonts.size());
    }
    m_bold = m_fonts.back();
    m_bold.setBold(true);
}

void ReportPages::begin(const QString& title, const QString& /*language*/)
{
    m_title = title;
    m_blocks.push_back({Kind::Title, title});
}

void ReportPages::pairs(const std::vector<std::pair<QString, QString>>& rows)
{
    Block& table = m_blocks.emplace_back(Block{Kind::Table});
    table.hasHead = false;
    for (const auto& [name, text] : rows)
        table.rows.push_back({name, text});
}

void ReportPages::beginTable(const QStringList& headings)
{
    m_blocks.push_back({Kind::Table});
    m_blocks.back().rows.push_back(headings);
}

void ReportPages::picture(const QImage& image, const QString& text)
{
    m_blocks.push_back({Kind::Picture, text, image});
}

void ReportPages::print(QIODevice& target)
{
    constexpr int kMargin = 15; ///< millimetres
    QPdfWriter pdf(&target);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
    pdf.setCreator("zor-monitor");
    pdf.setTitle(m_title);
    m_pdf = &pdf;
    m_pieces.clear();
    m_page = 0;
    m_y = 0;
    m_line = QFontMetricsF(m_fonts.back(), m_pdf).lineSpacing();
    m_room = QSizeF(pdf.width(), pdf.height() - 2 * m_line);
    giveWidths();
    for (std::size_t i = 0; i < m_blocks.size(); ++i)
        layOut(i);
    QPainter painter(&pdf);
    int page = -1;
    for (const Piece& piece : m_pieces) {
        if (page >= 0 && piece.page > page)
            pdf.newPage();
        if (std::exchange(page, piece.page) < piece.page) {
            painter.setFont(m_fonts.back());
            painter.setPen(Qt::black);
            painter.drawText(QRectF(0, 0, pdf.width(), pdf.height()), Qt::AlignRight | Qt::AlignBottom,
                             QString("%1 / %2").arg(piece.page + 1).arg(m_page + 1));
        }
        paint(painter, piece);
    }
    painter.end();
    m_pdf = nullptr;
}

// --- Laying out

const QFont& ReportPages::fontOf(const Block& block, std::size_t row, std::size_t column) const
{
    if (block.kind == Kind::Table)
        return (block.hasHead ? row : column) == 0 ? m_bold : m_fonts.back();
    return m_fonts[static_cast<std::size_t>(block.kind)];
}

void ReportPages::giveWidths()
{
    const QFontMetricsF metrics(m_bold, m_pdf); // the broader one
    // Tables with the same headings have the same columns.
    std::map<QStringList, std::vector<double>> all;
    const auto wantedBy = [&](const Block& table) -> std::vector<double>& {
        return all[table.hasHead ? table.rows.front() : QStringList()];
    };
    for (const Block& block : m_blocks) {
        if (block.kind != Kind::Table)
            continue;
        std::vector<double>& wanted = wantedBy(block);
        wanted.resize(static_cast<std::size_t>(block.rows.front().size()));
        for (const QStringList& row : block.rows) {
            for (std::size_t i = 0; i < wanted.size(); ++i) {
                const double width = metrics.horizontalAdvance(row[static_cast<qsizetype>(i)].left(kMost));
                wanted[i] = std::max(wanted[i], width + (2 * kPadding + kSlack) * m_line);
            }
        }
    }
    for (Block& block : m_blocks) {
        if (block.kind == Kind::Table)
            block.columns = shared(wantedBy(block), m_room.width(), block.hasHead);
    }
}

namespace {

/// Between words, and within one only where it is wider than its room.
QTextOption wrapping()
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

double ReportPages::textHeight(const QString& text, const QFont& font, double width) const
{
    const QFontMetricsF metrics(font, m_pdf);
    if (!text.contains('\n') && metrics.horizontalAdvance(text) <= width)
        return metrics.height();
    QTextLayout layout(QString(text).replace('\n', QChar::LineSeparator), font, m_pdf);
    layout.setTextOption(wrapping());
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        height += (height > 0 ? std::max(0.0, metrics.leading()) : 0) + line.height();
    }
    layout.endLayout();
    return height;
}

double ReportPages::heightOf(const Block& block, std::size_t row) const
{
    double height = 0;
    if (block.kind == Kind::Picture) {
        height = m_room.width() * block.image.height() / block.image.width();
    } else if (block.kind != Kind::Table) {
        height = textHeight(shown(block.text), fontOf(block, 0, 0), m_room.width()) +
                 (kBehind + (isHeading(block) ? kBefore : 0)) * m_line;
    } else {
        for (std::size_t i = 0; i < block.columns.size(); ++i)
            height = std::max(height, textHeight(shown(block.rows[row][static_cast<qsizetype>(i)]),
                                                 fontOf(block, row, i), block.columns[i] - 2 * kPadding * m_line));
        height += kPadding * m_line;
    }
    return std::min(height, m_room.height());
}

/// What of a block, and of those behind a heading, must stand on one page.
double ReportPages::least(std::size_t block) const
{
    const Block& one = m_blocks[block];
    double height = heightOf(one, 0);
    if (one.kind == Kind::Table && one.hasHead && one.rows.size() > 1)
        height += heightOf(one, 1);
    return isHeading(one) && block + 1 < m_blocks.size() ? height + least(block + 1) : height;
}

void ReportPages::place(const Block& block, std::size_t row, double height)
{
    m_pieces.push_back({&block, row, m_page, QRectF(0, m_y, m_room.width(), height)});
    m_y += height;
}

void ReportPages::layOut(std::size_t block)
{
    const Block& one = m_blocks[block];
    const auto turn = [&](double needed) {
        const bool full = m_y > 0 && m_y + needed > m_room.height();
        m_page += full ? 1 : 0;
        m_y = full ? 0 : m_y;
        return full;
    };
    turn(least(block));
    place(one, 0, heightOf(one, 0));
    for (std::size_t row = 1; row < one.rows.size(); ++row) {
        const double height = heightOf(one, row);
        if (turn(height) && one.hasHead)
            place(one, 0, heightOf(one, 0));
        place(one, row, height);
    }
    if (one.kind == Kind::Table)
        m_y += m_line * kBehind;
}

// --- Painting

void ReportPages::paint(QPainter& painter, const Piece& piece) const
{
    const Block& block = *piece.block;
    if (block.kind == Kind::Table)
        return paintCells(painter, piece);
    if (block.kind == Kind::Picture)
        return painter.drawImage(piece.place, block.image);
    painter.setFont(fontOf(block, 0, 0));
    painter.setPen(Qt::black);
    const double before = isHeading(block) ? kBefore * m_line : 0;
    painter.drawText(piece.place.adjusted(0, before, 0, 0), shown(block.text), wrapping());
}

void ReportPages::paintCells(QPainter& painter, const Piece& piece) const
{
    const Block& block = *piece.block;
    const double padding = kPadding * m_line;
    QRectF cell = piece.place;
    for (std::size_t i = 0; i < block.columns.size(); ++i) {
        cell.setWidth(block.columns[i]);
        const bool isHead = &fontOf(block, piece.row, i) == &m_bold;
        painter.setPen(QPen(QColor(kLines), 0));
        painter.setBrush(isHead ? QBrush(QColor(kHead)) : QBrush());
        painter.drawRect(cell);
        painter.setPen(Qt::black);
        painter.setFont(fontOf(block, piece.row, i));
        painter.drawText(cell.adjusted(padding, padding / 2, -padding, 0),
                         shown(block.rows[piece.row][static_cast<qsizetype>(i)]), wrapping());
        cell.moveLeft(cell.right());
    }
}

} // namespace zor::monitor
