#pragma once

/// A report on pages: PDF.

#include <zor/monitor/report/report_sink.h>

#include <QFont>
#include <QRectF>

#include <array>

class QIODevice;
class QPainter;
class QPdfWriter;

namespace zor::monitor {

/// Lays out row by row, so that ten thousand take no longer than reading them. The headings of a table stand again
/// on each of its pages, and none stays alone at the end of one.
class ReportPages final : public ReportSink {
public:
    ReportPages();

    void begin(const QString& title, const QString& language) override;
    void heading(const QString& text) override { m_blocks.push_back({Kind::Heading, text}); }
    void subheading(const QString& text) override { m_blocks.push_back({Kind::Subheading, text}); }
    void paragraph(const QString& text) override { m_blocks.push_back({Kind::Paragraph, text}); }
    void pairs(const std::vector<std::pair<QString, QString>>& rows) override;
    void beginTable(const QStringList& headings) override;
    void row(const QStringList& texts) override { m_blocks.back().rows.push_back(texts); }
    void endTable() override {}
    void picture(const QImage& image, const QString& text) override;
    void end(const QString& text) override { paragraph(text); }

    /// Writes the document, once the report has ended; in whatever thread.
    void print(QIODevice& target);

private:
    /// The first four in the order of their fonts.
    enum class Kind : std::uint8_t { Title, Heading, Subheading, Paragraph, Table, Picture };
    struct Block {
        Kind kind;
        QString text{};
        QImage image{};
        bool hasHead = true;             ///< the first row of a table; else the first column is one
        std::vector<QStringList> rows{}; ///< of a table
        std::vector<double> columns{};   ///< their widths
    };
    /// A block, or a row of it, where it has come to stand.
    struct Piece {
        const Block* block;
        std::size_t row;
        int page;
        QRectF place;
    };

    [[nodiscard]] bool isHeading(const Block& block) const { return block.kind < Kind::Paragraph; }
    [[nodiscard]] const QFont& fontOf(const Block& block, std::size_t row, std::size_t column) const;
    void giveWidths();
    [[nodiscard]] double textHeight(const QString& text, const QFont& font, double width) const;
    [[nodiscard]] double heightOf(const Block& block, std::size_t row) const;
    [[nodiscard]] double least(std::size_t block) const;
    void place(const Block& block, std::size_t row, double height);
    void layOut(std::size_t block);
    void paint(QPainter& painter, const Piece& piece) const;
    void paintCells(QPainter& painter, const Piece& piece) const;

    QPdfWriter* m_pdf = nullptr; ///< while it is printed
    QString m_title;
    std::array<QFont, 4> m_fonts;
    QFont m_bold;
    std::vector<Block> m_blocks;
    std::vector<Piece> m_pieces;
    QSizeF m_room{}; ///< of a page, without its number
    double m_line = 0;
    double m_y = 0;
    int m_page = 0;
};

} // namespace zor::monitor
