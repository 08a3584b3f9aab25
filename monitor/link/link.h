#pragma once

/// The connection to a device: requests in their order, each with one deadline for its whole reply.

#include <zor/monitor/link/frames.h>
#include <zor/monitor/link/transport.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <array>
#include <deque>
#include <functional>
#include <memory>
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

/// What a device stands.
struct Manners {
    int pause = 0;    ///< milliseconds from the end of one frame to the next request
    int retries = 0;  ///< of a read without an answer
    int underWay = 1; ///< reads at a time, where frames are numbered; the next ones when all of these are answered
};

/// Never blocks, and never sends a write a second time: one without an answer stays unconfirmed until somebody
/// reads back. Nothing else is under way while a write is. Of several reads under way none is believed before the
/// last has its reply and no byte is left: a reply that was cut short takes its end from the one behind it, and
/// then they do not come out even. After a failure the connection is given up, so that nothing that comes late is
/// ever taken for an answer to something else; the next request connects anew. Where frames have no numbers, the
/// line is left alone for another deadline before the same unit is asked again.
class Link : public QObject {
public:
    using Done = std::function<void(const Reply&)>;

    Link(std::unique_ptr<Transport> transport, std::uint8_t unit, int deadlineMilliseconds);
    ~Link() override;

    /// `done` hears the outcome once, never before send() has returned, and never after the link has ended. With
    /// the number of a connection the request goes over that one or not at all: at the other end of another there
    /// may be another device.
    void send(Request request, Done done, std::optional<unsigned> connection = std::nullopt);
    /// A number that tells this connection from every other; nothing when there is none.
    [[nodiscard]] std::optional<unsigned> connection() const
    {
        return m_transport->isOpen() ? std::optional(m_connection) : std::nullopt;
    }
    /// Requests that wait or are under way.
    [[nodiscard]] std::size_t pending() const { return m_queue.size() + busy(); }
    [[nodiscard]] int deadline() const { return m_deadlineMilliseconds; }
    void setDeadline(int milliseconds) { m_deadlineMilliseconds = milliseconds; }
    [[nodiscard]] const Manners& manners() const { return m_manners; }
    void setManners(const Manners& manners) { m_manners = manners; }
    /// Talks to another unit of the same line; not while anything waits or is under way.
    void setUnit(std::uint8_t unit) { m_unit = unit; }
    /// Connects to something else. What waits or is under way fails.
    void connectTo(std::unique_ptr<Transport> transport, std::uint8_t unit);

    /// What the link is connected to, for people; the unit too, unless it is 1.
    [[nodiscard]] QString description() const;
    [[nodiscard]] const Traffic& reads() const { return m_traffic[0]; }
    [[nodiscard]] const Traffic& writes() const { return m_traffic[1]; }
    [[nodiscard]] Frames& frames() { return m_frames; }
    /// The last request that was refused or not answered; an answered one when there was none.
    [[nodiscard]] const Reply& lastFailure() const { return m_lastFailure; }
    /// When that was: milliseconds since 1970, UTC.
    [[nodiscard]] std::int64_t lastFailureAt() const { return m_lastFailureAt; }

private:
    struct Waiting {
        Request request;
        Done done;
        std::optional<unsigned> connection;
        int attempts = 0;
    };
    struct UnderWay {
        Waiting waiting;
        std::uint16_t transaction = 0;
        QDeadlineTimer deadline{};
        QElapsedTimer clock{};
        FramePointer frame{};    ///< none before it has left for the device
        double milliseconds = 0; ///< until its reply came
    };
    struct Answered {
        UnderWay one;
        Reply reply;
    };
    struct Ended {
        Done done;
        Reply reply;
    };

    [[nodiscard]] std::size_t busy() const { return m_underWay.size() + m_answered.size() + m_outcomes.size(); }
    void next();
    [[nodiscard]] bool mayStart() const;
    [[nodiscard]] int quietFor() const;
    void start(Waiting waiting);
    void transmit(UnderWay& one);
    void adopt();
    void opened();
    void receive();
    [[nodiscard]] bool takeFrame();
    void watch();
    [[nodiscard]] std::deque<UnderWay> takeUnderWay();
    void finish(std::size_t index, Reply reply);
    void fail(std::size_t index, Fault fault, const QString& words = {});
    void end(UnderWay one, Reply reply);
    void note(const Reply& reply, const FramePointer& request);
    void deliver();

    std::unique_ptr<Transport> m_transport;
    Manners m_manners;
    Frames m_frames;
    std::deque<Waiting> m_queue;
    std::deque<UnderWay> m_underWay; ///< the earliest deadline first
    std::deque<Answered> m_answered; ///< and not believed yet
    std::deque<Ended> m_outcomes;
    Bytes m_received;
    std::array<Traffic, 2> m_traffic;
    Reply m_lastFailure;
    std::int64_t m_lastFailureAt = 0;
    QTimer m_deadline;
    QTimer m_later;
    QTimer m_quiet;
    QElapsedTimer m_sinceFrame;
    QDeadlineTimer m_suspicion;            ///< until when a late reply may come
    std::optional<std::uint8_t> m_suspect; ///< of the unit whose; nothing for any
    int m_deadlineMilliseconds;
    unsigned m_connection = 0;
    std::uint16_t m_transaction = 0;
    std::uint8_t m_unit;
};

} // namespace zor::monitor
