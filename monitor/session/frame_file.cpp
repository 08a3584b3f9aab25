#include <zor/monitor/data/json_document.h>
#include <zor/monitor/link/frame_decoder.h>
#include <zor/monitor/session/frame_file.h>

namespace zor::monitor {

FrameFile::FrameFile(const QString& file) : m_file(file)
{
    // Without a buffer: a crash, of whatever, leaves every line that led to it.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        throw FileError(file.toStdString(), 0, m_file.errorString().toStdString());
}

void FrameFile::follow(Frames& frames)
{
    frames.onFrame = [this](const Frame& frame) {
        const std::string line = lineOf(frame) + '\n';
        const auto size = static_cast<qint64>(line.size());
        if (m_file.write(line.data(), size) != size && m_error.isEmpty())
            m_error = m_file.errorString();
    };
}

} // namespace zor::monitor
