#pragma once

/// Where a report is written to, piece by piece.

#include <QImage>
#include <QStringList>

#include <utility>
#include <vector>

namespace zor::monitor {

/// What a report consists of. Every text is shown as it is, whatever characters it has.
class ReportSink {
public:
    ReportSink() = default;
    virtual ~ReportSink() = default;
    ReportSink(const ReportSink&) = delete;
    ReportSink& operator=(const ReportSink&) = delete;

    virtual void begin(const QString& title, const QString& language) = 0;
    virtual void heading(const QString& text) = 0;
    virtual void subheading(const QString& text) = 0;
    virtual void paragraph(const QString& text) = 0;
    /// A table of names and what they stand for.
    virtual void pairs(const std::vector<std::pair<QString, QString>>& rows) = 0;
    virtual void beginTable(const QStringList& headings) = 0;
    virtual void row(const QStringList& texts) = 0;
    virtual void endTable() = 0;
    /// `text` is for those who do not see it.
    virtual void picture(const QImage& image, const QString& text) = 0;
    /// The last line; the report is whole then.
    virtual void end(const QString& text) = 0;
};

/// A text with replacement characters for control characters, which have no place in a document.
[[nodiscard]] QString withoutControls(QString text);

} // namespace zor::monitor
