#include <zor/monitor/data/file_place.h>

#include <QDir>
#include <QFileInfo>

namespace zor::monitor {

QString placeOf(const QString& name)
{
    const QFileInfo file(name);
    if (name.isEmpty() || (file.exists() && !file.isFile()))
        return {};
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QDir::cleanPath(file.absoluteFilePath()) : folder + '/' + file.fileName();
}

} // namespace zor::monitor
