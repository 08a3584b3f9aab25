#include <zor/monitor/report/report_writer.h>

#include <QBuffer>

namespace zor::monitor {
namespace {

QString escaped(const QString& text) { return withoutControls(text).toHtmlEscaped(); }

constexpr const char* kStyle =
    "body{font-family:sans-serif;color:#111;background:#fff}h1{font-size:x-large}h2{font-size:large}h1,h2,h3{"
    "margin-bottom:6px}"
    "h3{font-size:medium}table{border-collapse:collapse;width:100%}th,td{border:1px solid #999;padding:2px 6px;"
    "text-align:left;vertical-align:top}th{background-color:#e8e8e8}th[scope=row]{width:25%}tr{page-break-inside:"
    "avoid}img{max-width:100%"
    "}";

} // namespace

QString withoutControls(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control && character != '\n' && character != '\t')
            character = QChar::ReplacementCharacter;
    }
    return text;
}

void ReportWriter::element(const char* name, const QString& text, const char* attributes)
{
    m_html += QString("<%1%2>%3</%1>").arg(QLatin1String(name), QLatin1String(attributes), escaped(text));
}

void ReportWriter::begin(const QString& title, const QString& language)
{
    m_html = QString("<!DOCTYPE html>\n<html lang=\"%1\"><head><meta charset=\"utf-8\"/>").arg(escaped(language));
    element("title", title);
    m_html += QString("<style>%1</style></head>\n<body>").arg(QLatin1String(kStyle));
    element("h1", title);
}

void ReportWriter::heading(const QString& text)
{
    m_html += '\n';
    element("h2", text);
}

void ReportWriter::subheading(const QString& text) { element("h3", text); }

void ReportWriter::paragraph(const QString& text) { element("p", text); }

void ReportWriter::pairs(const std::vector<std::pair<QString, QString>>& rows)
{
    m_html += "<table>";
    for (const auto& [name, text] : rows) {
        m_html += "\n<tr>";
        element("th", name, " scope=\"row\"");
        element("td", text);
        m_html += "</tr>";
    }
    m_html += "</table>";
}

void ReportWriter::beginTable(const QStringList& headings)
{
    m_html += "<table><thead><tr>";
    for (const QString& heading : headings)
        element("th", heading, " scope=\"col\"");
    m_html += "</tr></thead><tbody>";
}

void ReportWriter::row(const QStringList& texts)
{
    m_html += "\n<tr>";
    for (const QString& text : texts)
        element("td", text);
    m_html += "</tr>";
}

void ReportWriter::endTable() { m_html += "</tbody></table>"; }

void ReportWriter::picture(const QImage& image, const QString& text)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const auto width = static_cast<int>(image.width() / image.devicePixelRatio());
    m_html += QString("<p><img width=\"%1\" alt=\"%2\" src=\"data:image/png;base64,%3\"/></p>")
                  .arg(width)
                  .arg(escaped(text), QString::fromLatin1(bytes.toBase64()));
}

void ReportWriter::end(const QString& text)
{
    paragraph(text);
    m_html += "</body></html>\n";
}

} // namespace zor::monitor
