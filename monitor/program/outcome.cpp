#include <zor/monitor/data/json_document.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/language/words.h>
#include <zor/monitor/program/outcome.h>

#include <QSaveFile>

#include <algorithm>
#include <iostream>

namespace zor::monitor {

int fail(int status, const std::string& text)
{
    std::cerr << "zor-monitor: " << text << '\n';
    return status;
}

int failUnhealthy(std::string text, const Reply& failure, int status)
{
    if (const QString reason = Words::reason(failure); !reason.isEmpty())
        text += ": " + reason.toStdString();
    if (const QString advice = Words::advice(failure); !advice.isEmpty())
        text += '\n' + advice.toStdString();
    return fail(status, text);
}

void requireWritable(const std::string& file)
{
    if (file.empty())
        return;
    QSaveFile target(QString::fromStdString(file));
    if (!target.open(QIODevice::WriteOnly))
        throw FileError(file, 0, target.errorString().toStdString());
}

int withOutput(int status)
{
    if (std::cout.flush())
        return status;
    return std::max<int>(status,
                         fail(kUsage, message(QT_TRANSLATE_NOOP("texts", "the output cannot be written"))));
}

int withFiles(Device& device, int status)
{
    if (const QString error = device.session().recordError(); !error.isEmpty())
        return fail(kUsage, device.entry().record.toStdString() + ": " + error.toStdString());
    if (const QString error = device.framesError(); !error.isEmpty())
        return fail(kUsage, device.entry().frames.toStdString() + ": " + error.toStdString());
    return status;
}

} // namespace zor::monitor
