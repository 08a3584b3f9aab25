#pragma once

/// The record of a session: a CSV file.

#include <QFile>

#include <string>
#include <string_view>

namespace zor::monitor {

/// Columns: time (UTC, ISO 8601 with milliseconds), event ("read" or "write"), tag, old, new, result. Values are
/// in the device's unit. Each line is in the file when record() returns.
class Log {
public:
    /// Appends to the file. Raises std::runtime_error when it cannot be opened.
    explicit Log(const QString& file);

    void record(std::string_view event, std::string_view tag, std::string_view oldText, std::string_view newText,
                std::string_view result);

private:
    QFile m_file;
};

/// A field of a CSV line, quoted where it must be.
[[nodiscard]] std::string csvField(std::string_view text);

} // namespace zor::monitor
