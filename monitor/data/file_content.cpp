#include <zor/monitor/data/file_content.h>
#include <zor/monitor/data/json_document.h>
#include <zor/monitor/data/message.h>

#include <QFile>

namespace zor::monitor {

std::string contentOf(const std::string& name)
{
    constexpr qint64 kLargest = 16 << 20;
    QFile file(QString::fromStdString(name));
    if (!file.open(QIODevice::ReadOnly))
        throw FileError(name, 0, file.errorString().toStdString());
    // A device or a pipe has no size, and may never end.
    const QByteArray text = file.read(kLargest + 1);
    if (text.size() > kLargest)
        throw FileError(name, 0, message(QT_TRANSLATE_NOOP("texts", "larger than 16 MB")));
    return text.toStdString();
}

} // namespace zor::monitor
