#pragma once

/// The record of a session: a CSV file.

#include <QFile>
#include <QString>

#include <string>
#include <string_view>

namespace zor::monitor {

/// Columns: time (UTC, ISO 8601 with milliseconds), event ("read", "write", or "device" where another one
/// answers), tag, old, new, result. Values are in the device's unit. Each line is in the file when record()
/// returns, or error() says why it is not.
class Log {
public:
    /// Appends to the file. Raises FileError when it cannot be opened, or holds something else than a record.
    explicit Log(const QString& file);

    void record(std::string_view event, std::string_view tag, std::string_view oldText, std::string_view newText,
                std::string_view result);

    /// Why the first of the lines that are missing could not be written; empty while none is.
    [[nodiscard]] const QString& error() const { return m_error; }
    [[nodiscard]] QString fileName() const { return m_file.fileName(); }

private:
    void write(std::string line);

    QFile m_file;
    QString m_error;
    bool m_torn = false; ///< the last line may be there in part
};

/// A field of a CSV line, quoted where it must be.
[[nodiscard]] std::string csvField(std::string_view text);

} // namespace zor::monitor
