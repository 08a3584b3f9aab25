#include <zor/monitor/link/link.h>

#include <algorithm>
#include <utility>

namespace zor::monitor {

Link::Link(int deadlineMilliseconds) : m_deadlineMilliseconds(deadlineMilliseconds)
{
    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer);
    connect(&m_deadline, &QTimer::timeout, this, [this] { fail("no complete answer in time"); });
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, [this] { deliver(std::exchange(m_outcome, {})); });
}

void Link::send(Request request, Done done, std::optional<unsigned> connection)
{
    m_queue.push_back({std::move(request), std::move(done), connection});
    next();
}

void Link::next()
{
    if (m_busy || m_queue.empty())
        return;
    m_busy = true;
    m_sent = false;
    m_finished = false;
    m_deadline.start(m_deadlineMilliseconds);
    m_clock.start();
    const std::optional<unsigned> wanted = m_queue.front().connection;
    if (wanted && connection() != wanted)
        fail("the connection was lost");
    else
        transmit(current());
}

void Link::sent()
{
    m_sent = true;
    m_clock.start();
}

void Link::fail(const QString& reason)
{
    Reply reply;
    reply.reason = reason.toStdString();
    finish(std::move(reply));
}

void Link::finish(Reply reply)
{
    if (!m_busy || m_finished)
        return;
    m_finished = true;
    m_deadline.stop();
    const double milliseconds = static_cast<double>(m_clock.nsecsElapsed()) / 1e6;
    reply.milliseconds = static_cast<int>(milliseconds);
    Traffic& traffic = m_traffic[isWrite(current()) ? 1 : 0];
    ++traffic.requests;
    if (reply.outcome == Outcome::Answered) {
        traffic.totalMilliseconds += milliseconds;
        traffic.longestMilliseconds = std::max(traffic.longestMilliseconds, milliseconds);
    } else {
        ++traffic.failures;
    }
    if (reply.outcome == Outcome::NoAnswer || reply.outcome == Outcome::NotSent) {
        reply.outcome = m_sent ? Outcome::NoAnswer : Outcome::NotSent;
        drop();
    }
    m_outcome = std::move(reply);
    // Later, so that a caller never hears of an outcome before it has returned.
    m_later.start(0);
}

void Link::deliver(const Reply& reply)
{
    const Done done = std::move(m_queue.front().done);
    m_queue.pop_front();
    m_busy = false;
    done(reply);
    next();
}

} // namespace zor::monitor
