#pragma once

/// Reads the device in rounds, a round each poll period.

#include <zor/monitor/data/codec.h>
#include <zor/monitor/link/link.h>
#include <zor/monitor/session/plan.h>

#include <QTimer>

#include <deque>
#include <functional>
#include <list>
#include <optional>
#include <span>
#include <string>

namespace zor::monitor {

/// What a read of one parameter came to.
enum class ReadOutcome : std::uint8_t {
    Live,         ///< the registers are the device's
    NotAvailable, ///< the device answers, but not for this parameter
    Busy,         ///< the device asks to be asked again
    NoAnswer,     ///< communication failed
    Late,         ///< the answer has been awaited for longer than a poll period
    NoValue,      ///< the device answers that it has none: the registers hold no number
};

struct Reading {
    ReadOutcome outcome = ReadOutcome::NoAnswer;
    Registers registers{}; ///< of a live one
    std::string reason{};
};

class Poller : public QObject {
public:
    /// The link and the file must outlive the poller. It does nothing before start().
    Poller(Link& link, const ParameterFile& file);

    /// Asked at the start of each round: the parameters to read.
    std::function<std::vector<std::size_t>()> wanted;
    std::function<void(std::size_t parameter, const Reading&)> onReading;
    /// Device type and firmware version, when they are known or have become others. They are read again with every
    /// new connection and now and then between. A device that does not say has neither.
    std::function<void(const std::string& type, const std::string& version)> onIdentity;
    /// After each round; whether the device answered at all.
    std::function<void(bool answered)> onRound;

    void start(int periodMilliseconds);
    void setPeriod(int milliseconds);
    [[nodiscard]] int period() const { return m_timer.interval(); }
    /// Begins a round now, or as soon as the present one has ended.
    void pollNow();

    /// Whether the device at the other end is known to be the one that was last identified.
    [[nodiscard]] bool isIdentified() const;
    /// The connection over which it was.
    [[nodiscard]] std::optional<unsigned> identifiedOn() const { return m_identifiedOn; }
    /// Asks the device what it is; `done` hears, after onIdentity, why it did not answer.
    void identify(std::function<void(const Reply&)> done);
    /// What has been learned of the device is not true of the one that is there now.
    void forget();
    [[nodiscard]] static Request readRequest(const Location& location);

    [[nodiscard]] int rounds() const { return m_rounds; }
    /// Why the last request that failed was not answered.
    [[nodiscard]] const Reply& failure() const { return m_failure; }

private:
    void tick();
    void begin();
    void next();
    void hear(const Batch& batch, const Reply& reply);
    void tell(const Batch& batch, const Reading& reading);
    void divide(const Batch& batch, const Cut& cut);
    void end();
    void readPart(const std::optional<Location>& part, std::function<void(const Reply&, std::string text)> done);
    void tellIdentity(std::string type, std::string version);

    Link& m_link;
    const ParameterFile& m_file;
    QTimer m_timer;
    QTimer m_soon;
    Cuts m_cuts;
    /// Parameters whose read timed out while others were answered; they come last, so that they hold up nobody.
    std::set<std::size_t> m_silent;
    std::deque<Batch> m_todo;
    std::list<Batch> m_asked; ///< what has not been answered yet
    Reply m_failure;
    std::optional<std::pair<std::string, std::string>> m_identity;
    std::optional<unsigned> m_identifiedOn; ///< the connection
    int m_sinceIdentity = 0;                ///< rounds
    int m_rounds = 0;
    bool m_inRound = false;
    bool m_late = false;
    bool m_answered = false;
    bool m_again = false;
};

} // namespace zor::monitor
