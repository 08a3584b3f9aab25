#include <zor/monitor/link/link.h>

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace zor::monitor {

Link::Link(std::unique_ptr<Transport> transport, std::uint8_t unit, int deadlineMilliseconds)
    : m_transport(std::move(transport)), m_deadlineMilliseconds(deadlineMilliseconds), m_unit(unit)
{
    m_lastFailure.outcome = Outcome::Answered;
    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        if (!m_underWay.empty())
            fail(0, m_transport->isOpen() ? m_transport->framing().silence : Fault::HostSilent);
    });
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, [this] { deliver(); });
    m_quiet.setSingleShot(true);
    m_quiet.setTimerType(Qt::PreciseTimer);
    connect(&m_quiet, &QTimer::timeout, this, [this] { next(); });
    adopt();
}

Link::~Link() = default;

void Link::adopt()
{
    m_transport->onOpen = [this] { opened(); };
    m_transport->onBytes = [this] { receive(); };
    m_transport->onFailure = [this](Fault fault, const QString& words) { fail(0, fault, words); };
}

void Link::connectTo(std::unique_ptr<Transport> transport, std::uint8_t unit)
{
    m_transport->onFailure = [](Fault, const QString&) {};
    m_transport->close();
    for (UnderWay& one : takeUnderWay())
        end(std::move(one), failed(Fault::ConnectionLost));
    for (Waiting& waiting : std::exchange(m_queue, {}))
        end({std::move(waiting)}, failed(Fault::ConnectionLost));
    m_transport = std::move(transport);
    m_unit = unit;
    m_suspicion = {};
    m_received.clear();
    adopt();
}

QString Link::description() const
{
    const QString line = m_transport->description();
    return m_unit == 1 ? line : line + QString("?unit=%1").arg(m_unit);
}

void Link::send(Request request, Done done, std::optional<unsigned> connection)
{
    m_queue.push_back({std::move(request), std::move(done), connection});
    next();
}

// --- Sending

bool Link::mayStart() const
{
    if (m_queue.empty())
        return false;
    if (busy() == 0)
        return true;
    const bool writes =
        isWrite(m_queue.front().request) ||
        std::ranges::any_of(m_underWay, [](const UnderWay& one) { return isWrite(one.waiting.request); });
    return !writes && m_answered.empty() && m_transport->isOpen() && m_transport->framing().numbered &&
           busy() < static_cast<std::size_t>(m_manners.underWay);
}

int Link::quietFor() const
{
    const bool suspect = !m_suspicion.hasExpired() && (!m_suspect || *m_suspect == m_unit);
    const qint64 suspicion = suspect ? m_suspicion.remainingTime() : 0;
    const int pause = std::max(m_manners.pause, m_transport->silence());
    const qint64 rest = m_sinceFrame.isValid() && pause > 0 ? pause - m_sinceFrame.elapsed() : 0;
    return static_cast<int>(std::max({suspicion, rest, qint64{0}}));
}

void Link::next()
{
    while (mayStart()) {
        if (const int quiet = quietFor(); quiet > 0)
            return m_quiet.start(quiet);
        Waiting waiting = std::move(m_queue.front());
        m_queue.pop_front();
        start(std::move(waiting));
    }
}

void Link::start(Waiting waiting)
{
    const std::optional<unsigned> wanted = waiting.connection;
    UnderWay one{std::move(waiting)};
    one.deadline = QDeadlineTimer(m_deadlineMilliseconds, Qt::PreciseTimer);
    if (wanted && connection() != wanted)
        return end(std::move(one), failed(Fault::ConnectionLost));
    m_underWay.push_back(std::move(one));
    watch();
    if (m_transport->isOpen())
        transmit(m_underWay.back());
    else
        m_transport->open();
}

void Link::opened()
{
    ++m_connection;
    if (!m_underWay.empty())
        transmit(m_underWay.front());
}

void Link::transmit(UnderWay& one)
{
    if (m_underWay.size() == 1)
        m_received.clear();
    one.transaction = ++m_transaction;
    const Request& request = one.waiting.request;
    Frame frame;
    frame.kind = Frame::Kind::Request;
    frame.framing = &m_transport->framing();
    frame.bytes = frame.framing->wrap({one.transaction, m_unit, &request}, requestPdu(request));
    one.frame = m_frames.add(std::move(frame));
    one.clock.start();
    m_sinceFrame.start();
    m_transport->write(one.frame->bytes);
}

void Link::watch()
{
    if (m_underWay.empty())
        m_deadline.stop();
    else
        m_deadline.start(static_cast<int>(std::max<qint64>(0, m_underWay.front().deadline.remainingTime())));
}

// --- Receiving

void Link::receive()
{
    while (true) {
        const Bytes bytes = m_transport->read(kLongestFrame + 1 - m_received.size());
        if (bytes.empty())
            return;
        m_received.insert(m_received.end(), bytes.begin(), bytes.end());
        m_sinceFrame.start();
        if (m_underWay.empty() || m_underWay.front().frame == nullptr) {
            note(failed(Fault::Unasked), nullptr);
            m_received.clear();
            m_transport->close();
            return;
        }
        while (!m_received.empty() && !m_underWay.empty() && takeFrame()) {
        }
    }
}

bool Link::takeFrame()
{
    std::vector<Expected> expected;
    for (const UnderWay& one : m_underWay) {
        const Request& request = one.waiting.request;
        expected.push_back({one.transaction, m_unit, &request});
    }
    const Framing& framing = m_transport->framing();
    const Found found = framing.find(m_received, expected);
    if (found.state == Found::State::Wrong)
        fail(found.index, found.fault);
    if (found.state == Found::State::Wrong || found.size == 0)
        return false;
    if (m_received.size() > found.size && m_underWay.size() == 1) {
        fail(found.index, Fault::TooManyBytes);
        return false;
    }
    if (found.state != Found::State::Whole)
        return false;
    // A frame that was cut short has taken its end from the one behind it, and that shows there.
    if (m_received.size() > found.size) {
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(found.index));
        const Found behind = framing.find(std::span(m_received).subspan(found.size), expected);
        if (behind.state == Found::State::Wrong) {
            fail(found.index, behind.fault);
            return false;
        }
    }
    UnderWay& one = m_underWay[found.index];
    Reply reply = judgeReply(one.waiting.request, found.pdu);
    if (reply.outcome == Outcome::NoAnswer) {
        fail(found.index, reply.fault);
        return false;
    }
    const auto end = m_received.begin() + static_cast<std::ptrdiff_t>(found.size);
    Frame frame;
    frame.kind = Frame::Kind::Reply;
    frame.framing = &framing;
    frame.bytes.assign(m_received.begin(), end);
    frame.milliseconds = one.milliseconds = static_cast<double>(one.clock.nsecsElapsed()) / 1e6;
    frame.request = one.frame;
    frame.isFailure = reply.outcome != Outcome::Answered;
    m_frames.add(std::move(frame));
    m_received.erase(m_received.begin(), end);
    finish(found.index, std::move(reply));
    return true;
}

// --- Outcomes

std::deque<Link::UnderWay> Link::takeUnderWay()
{
    std::deque<UnderWay> all = std::exchange(m_underWay, {});
    for (Answered& answered : std::exchange(m_answered, {}))
        all.push_back(std::move(answered.one));
    return all;
}

void Link::finish(std::size_t index, Reply reply)
{
    m_answered.push_back({std::move(m_underWay[index]), std::move(reply)});
    m_underWay.erase(m_underWay.begin() + static_cast<std::ptrdiff_t>(index));
    watch();
    if (!m_underWay.empty())
        return;
    for (Answered& answered : std::exchange(m_answered, {}))
        end(std::move(answered.one), std::move(answered.reply));
}

void Link::fail(std::size_t index, Fault fault, const QString& words)
{
    if (m_underWay.empty())
        return note(failed(fault, words.toStdString()), nullptr);
    const Framing& framing = m_transport->framing();
    std::deque<UnderWay> all = takeUnderWay();
    watch();
    if (!framing.numbered && all[index].frame != nullptr) {
        m_suspicion = QDeadlineTimer(m_deadlineMilliseconds, Qt::PreciseTimer);
        m_suspect = fault == framing.silence ? std::optional(m_unit) : std::nullopt;
    }
    const Reply reply = failed(fault, words.toStdString());
    note(reply, all[index].frame);
    m_received.clear();
    m_transport->close();
    for (std::size_t i = all.size(); i-- > 0;) {
        UnderWay& one = all[i];
        const bool again = i != index || (one.frame != nullptr && ++one.waiting.attempts <= m_manners.retries);
        // A read may be asked again; and one that only lost its connection by another's fault is.
        if (again && !isWrite(one.waiting.request) && !one.waiting.connection)
            m_queue.push_front(std::move(one.waiting));
        else
            end(std::move(one), i == index ? reply : failed(Fault::ConnectionLost));
    }
    if (m_outcomes.empty())
        m_later.start(0);
}

void Link::note(const Reply& reply, const FramePointer& request)
{
    Frame frame;
    frame.framing = &m_transport->framing();
    frame.kind = m_received.empty() ? Frame::Kind::Note : Frame::Kind::Reply;
    frame.bytes = m_received;
    frame.note = reply.reason;
    frame.request = request;
    frame.isFailure = true;
    m_frames.add(std::move(frame));
}

void Link::end(UnderWay one, Reply reply)
{
    const bool wasSent = one.frame != nullptr;
    const double elapsed = wasSent ? static_cast<double>(one.clock.nsecsElapsed()) / 1e6 : 0;
    const double milliseconds = one.milliseconds > 0 ? one.milliseconds : elapsed;
    reply.milliseconds = static_cast<int>(milliseconds);
    if (reply.outcome == Outcome::NoAnswer)
        reply.outcome = wasSent ? Outcome::NoAnswer : Outcome::NotSent;
    Traffic& traffic = m_traffic[isWrite(one.waiting.request) ? 1 : 0];
    ++traffic.requests;
    if (reply.outcome == Outcome::Answered) {
        traffic.totalMilliseconds += milliseconds;
        traffic.longestMilliseconds = std::max(traffic.longestMilliseconds, milliseconds);
    } else {
        ++traffic.failures;
        m_lastFailure = reply;
        m_lastFailureAt = QDateTime::currentMSecsSinceEpoch();
    }
    m_outcomes.push_back({std::move(one.waiting.done), std::move(reply)});
    // Later, so that a caller never hears of an outcome before it has returned.
    m_later.start(0);
}

void Link::deliver()
{
    while (!m_outcomes.empty()) {
        const Ended ended = std::move(m_outcomes.front());
        m_outcomes.pop_front();
        ended.done(ended.reply);
        next();
    }
    next();
}

} // namespace zor::monitor
