#pragma once

/// What has gone over a connection: the last frames, byte by byte.

#include <zor/monitor/link/framing.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>

namespace zor::monitor {

struct Frame {
    enum class Kind : std::uint8_t { Request, Reply, Note };
    std::uint64_t number = 0; ///< counts from 1 without a gap
    std::int64_t time = 0;    ///< milliseconds since 1970, UTC
    Kind kind = Kind::Note;   ///< a note has a text, and the bytes that came, if any
    const Framing* framing = &tcpFraming();
    Bytes bytes{};
    double milliseconds = -1;               ///< of a reply: from sending to the last byte; else negative
    std::shared_ptr<const Frame> request{}; ///< that this belongs to; what is asked tells what a reply means
    std::string note{};                     ///< what is wrong with it, or has happened; in English
    bool isFailure = false;                 ///< no answer, or none that counts; an exception too
};
using FramePointer = std::shared_ptr<const Frame>;

/// The last frames of a link. What is older falls out, so it never takes more than about 4 MB.
class Frames {
public:
    static constexpr std::size_t kMost = 10000;

    /// Takes a frame over, gives it its number and time, and tells.
    FramePointer add(Frame frame);
    /// The oldest first.
    [[nodiscard]] const std::deque<FramePointer>& all() const { return m_frames; }
    /// Of the newest; 0 when there was none.
    [[nodiscard]] std::uint64_t last() const { return m_last; }

    /// Told of each frame as it comes.
    std::function<void(const Frame&)> onFrame;

private:
    std::deque<FramePointer> m_frames;
    std::uint64_t m_last = 0;
};

} // namespace zor::monitor
