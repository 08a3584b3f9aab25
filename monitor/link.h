#pragma once

/// The connection to a device: one request at a time, each with a deadline for its whole reply.

#include <QModbusTcpClient>
#include <QTimer>

#include <deque>
#include <functional>

namespace zor::monitor {

enum class Outcome {
    Answered, ///< the registers are there, as many as were asked for
    Refused,  ///< the device answered with an exception
    NoAnswer, ///< not connected, cut off, too late, or not a reply to the request
};

struct Reply {
    Outcome outcome = Outcome::NoAnswer;
    int exception = 0; ///< of a refusal
    QList<quint16> registers;
};

/// Never blocks, and never sends a write again by itself: a write without an answer is unconfirmed.
class Link : public QObject {
public:
    using Done = std::function<void(const Reply&)>;

    Link(const QString& host, int port);
    ~Link() override;

    void read(QModbusDataUnit::RegisterType bank, int address, quint16 count, Done done);
    void write(int address, const QList<quint16>& values, Done done);
    [[nodiscard]] bool isConnected() const { return m_client.state() == QModbusDevice::ConnectedState; }
    /// Requests that wait or are under way.
    [[nodiscard]] std::size_t pending() const { return m_queue.size(); }

    static constexpr int kDeadline = 400; ///< milliseconds

private:
    struct Request {
        QModbusDataUnit unit;
        bool isWrite;
        Done done;
    };

    void next();
    void finish(const Reply& reply);
    void judge(QModbusReply& reply);
    void reconnect();

    QModbusTcpClient m_client;
    QTimer m_deadline;
    QTimer m_retry;
    std::deque<Request> m_queue;
    QModbusReply* m_reply = nullptr;
    bool m_busy = false;
};

} // namespace zor::monitor
