#pragma once

/// HTML piece by piece. Every text that goes in is escaped here, and nowhere else.

#include <QImage>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace zor::monitor {

/// Writes what browsers and QTextDocument both understand.
class ReportWriter {
public:
    void begin(const QString& title, const QString& language);
    void heading(const QString& text);
    void subheading(const QString& text);
    void paragraph(const QString& text);
    /// A table of names and what they stand for.
    void pairs(const std::vector<std::pair<QString, QString>>& rows);
    void beginTable(const QStringList& headings);
    void row(const QStringList& texts);
    void endTable();
    /// In the document itself; `text` is for those who do not see it.
    void picture(const QImage& image, const QString& text);
    /// The whole document, with a last line.
    [[nodiscard]] QString end(const QString& text);

private:
    void element(const char* name, const QString& text, const char* attributes = "");

    QString m_html;
};

} // namespace zor::monitor
