#include <zor/monitor/data/json_document.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/session/log.h>

#include <QDateTime>
#include <QFileInfo>

namespace zor::monitor {

std::string csvField(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(text);
    std::string field = "\"";
    for (const char character : text)
        field.append(character == '"' ? 2 : 1, character);
    return field + '"';
}

namespace {

constexpr const char* kHeading = "time,event,tag,old,new,result\n";

/// Whether a record may go on in a file: one that is new, or begins as a record does. What is no plain file, as a
/// pipe, is not looked into.
bool takesRecord(const QString& name)
{
    QFile file(name);
    const QByteArray heading(kHeading);
    return !QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly) ||
           heading.startsWith(file.read(heading.size()));
}

/// Whether a file ends in the midst of a line: a power cut, a disk that was full.
bool endsTorn(const QString& name)
{
    QFile file(name);
    // Reading from a pipe would wait, or take what is another's.
    return QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly) && file.size() > 0 &&
           file.seek(file.size() - 1) && file.read(1) != "\n";
}

} // namespace

Log::Log(const QString& file) : m_file(file), m_torn(endsTorn(file))
{
    if (!takesRecord(file))
        throw FileError(
            file.toStdString(), 0,
            message(QT_TRANSLATE_NOOP("texts", "holds something else than a record, and is left alone")));
    // Without a buffer: what could not be written must not be held back and come out of turn later.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        throw FileError(file.toStdString(), 0, m_file.errorString().toStdString());
    if (m_file.size() == 0)
        write(kHeading);
}

void Log::record(std::string_view event, std::string_view tag, std::string_view oldText, std::string_view newText,
                 std::string_view result)
{
    std::string line = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
    for (const std::string_view field : {event, tag, oldText, newText, result})
        line.append(",").append(csvField(field));
    line.push_back('\n');
    write(std::move(line));
}

void Log::write(std::string line)
{
    if (m_torn)
        line.insert(0, "\n");
    const auto size = static_cast<qint64>(line.size());
    const qint64 written = m_file.write(line.data(), size);
    m_torn = written != size && (m_torn || written > 0);
    if (written != size && m_error.isEmpty())
        m_error = m_file.errorString();
}

} // namespace zor::monitor
