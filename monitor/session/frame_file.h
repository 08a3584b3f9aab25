#pragma once

/// The frames of a link as a text file, a line each as they come.

#include <zor/monitor/link/frames.h>

#include <QFile>

namespace zor::monitor {

class FrameFile {
public:
    /// Begins the file anew. Raises FileError when it cannot be opened.
    explicit FrameFile(const QString& file);
    /// From now on; the file must outlive the frames.
    void follow(Frames& frames);

    /// Why the first of the lines that are missing could not be written; empty while none is.
    [[nodiscard]] const QString& error() const { return m_error; }

private:
    QFile m_file;
    QString m_error;
};

} // namespace zor::monitor
