#pragma once

/// The language of the whole program.

#include <zor/monitor/data/language_rows.h>

#include <QString>
#include <QTranslator>

namespace zor::monitor {

/// Installs translators and separators. One for the process; it must end before the application does.
class Languages {
public:
    Languages();
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    /// The language of the user's environment if it is one of ours, else English.
    [[nodiscard]] static QString systemLanguage();
    /// Texts by `code`, separators by the user's own region where its language is this one. Any other code
    /// counts as English.
    void use(const QString& code);
    [[nodiscard]] const QString& current() const { return m_code; }

private:
    QTranslator m_own;
    QTranslator m_qt;
    QString m_code = "en";
};

} // namespace zor::monitor
