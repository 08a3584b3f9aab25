#pragma once

/// A report as HTML. Every text that goes in is escaped here, and nowhere else.

#include <zor/monitor/report/report_sink.h>

namespace zor::monitor {

/// Writes one document that needs no other file.
class ReportWriter final : public ReportSink {
public:
    void begin(const QString& title, const QString& language) override;
    void heading(const QString& text) override;
    void subheading(const QString& text) override;
    void paragraph(const QString& text) override;
    void pairs(const std::vector<std::pair<QString, QString>>& rows) override;
    void beginTable(const QStringList& headings) override;
    void row(const QStringList& texts) override;
    void endTable() override;
    /// In the document itself.
    void picture(const QImage& image, const QString& text) override;
    void end(const QString& text) override;

    /// The whole document once the report has ended.
    [[nodiscard]] const QString& html() const { return m_html; }

private:
    void element(const char* name, const QString& text, const char* attributes = "");

    QString m_html;
};

} // namespace zor::monitor
