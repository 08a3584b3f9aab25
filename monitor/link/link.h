#pragma once

/// The connection to a device: one request at a time, each with one deadline for its whole reply.

#include <zor/monitor/link/modbus.h>

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <array>
#include <deque>
#include <functional>
#include <optional>

namespace zor::monitor {

/// How requests of one kind have fared.
struct Traffic {
    std::uint64_t requests = 0;
    std::uint64_t failures = 0;   ///< refused or not answered
    double totalMilliseconds = 0; ///< of the answered ones
    double longestMilliseconds = 0;
    [[nodiscard]] double meanMilliseconds() const
    {
        return requests == failures ? 0 : totalMilliseconds / static_cast<double>(requests - failures);
    }
};

/// Never blocks, and never sends anything a second time: a write without an answer stays unconfirmed until
/// somebody reads back. After a failure the connection is given up, so that nothing that comes late is ever
/// taken for an answer to something else; the next request connects anew.
class Link : public QObject {
public:
    using Done = std::function<void(const Reply&)>;

    explicit Link(int deadlineMilliseconds);

    /// `done` hears the outcome once, never before send() has returned, and never after the link has ended. With
    /// the number of a connection the request goes over that one or not at all: at the other end of another there
    /// may be another device.
    void send(Request request, Done done, std::optional<unsigned> connection = std::nullopt);
    /// A number that tells this connection from every other; nothing when there is none.
    [[nodiscard]] std::optional<unsigned> connection() const
    {
        return isConnected() ? std::optional(m_connection) : std::nullopt;
    }
    /// Requests that wait or are under way.
    [[nodiscard]] std::size_t pending() const { return m_queue.size(); }
    [[nodiscard]] int deadline() const { return m_deadlineMilliseconds; }
    void setDeadline(int milliseconds) { m_deadlineMilliseconds = milliseconds; }

    /// What the link is connected to, for people.
    [[nodiscard]] virtual QString description() const = 0;
    [[nodiscard]] const Traffic& reads() const { return m_traffic[0]; }
    [[nodiscard]] const Traffic& writes() const { return m_traffic[1]; }

protected:
    /// Brings the request on its way; ends in finish(), now or later.
    virtual void transmit(const Request& request) = 0;
    /// Gives the connection up; must not call finish().
    virtual void drop() = 0;
    [[nodiscard]] virtual bool isConnected() const = 0;
    /// There is a new connection.
    void connected() { ++m_connection; }

    [[nodiscard]] bool isBusy() const { return m_busy; }
    [[nodiscard]] const Request& current() const { return m_queue.front().request; }
    /// The request has left for the device.
    void sent();
    /// The outcome of the current request. Everything but an answer and a refusal drops the connection.
    void finish(Reply reply);
    void fail(const QString& reason);

private:
    struct Waiting {
        Request request;
        Done done;
        std::optional<unsigned> connection;
    };

    void next();
    void deliver(const Reply& reply);

    std::deque<Waiting> m_queue;
    std::array<Traffic, 2> m_traffic;
    QTimer m_deadline;
    QTimer m_later;
    QElapsedTimer m_clock;
    Reply m_outcome;
    int m_deadlineMilliseconds;
    unsigned m_connection = 0;
    bool m_busy = false;
    bool m_sent = false;
    bool m_finished = false;
};

} // namespace zor::monitor
