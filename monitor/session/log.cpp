#include <zor/monitor/session/log.h>

#include <QDateTime>
#include <QDebug>

#include <stdexcept>

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

Log::Log(const QString& file) : m_file(file)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append))
        throw std::runtime_error((file + ": " + m_file.errorString()).toStdString());
    if (m_file.size() == 0)
        m_file.write("time,event,tag,old,new,result\n");
}

void Log::record(std::string_view event, std::string_view tag, std::string_view oldText, std::string_view newText,
                 std::string_view result)
{
    std::string line = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
    for (const std::string_view field : {event, tag, oldText, newText, result})
        line.append(",").append(csvField(field));
    line.push_back('\n');
    if (m_file.write(line.data(), static_cast<qint64>(line.size())) < 0 || !m_file.flush())
        qWarning("The log cannot be written: %s", qPrintable(m_file.errorString()));
}

} // namespace zor::monitor
