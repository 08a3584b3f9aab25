#include <zor/monitor/link/frames.h>

#include <chrono>
#include <utility>

namespace zor::monitor {

FramePointer Frames::add(Frame frame)
{
    using namespace std::chrono;
    frame.number = ++m_last;
    frame.time = duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
    m_frames.push_back(std::make_shared<const Frame>(std::move(frame)));
    if (m_frames.size() > kMost)
        m_frames.pop_front();
    FramePointer added = m_frames.back();
    if (onFrame)
        onFrame(*added);
    return added;
}

} // namespace zor::monitor
