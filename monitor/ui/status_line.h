#pragma once

/// What the status bar says: how the connection stands, what has just been done, how fast the device answers.

#include <zor/monitor/parts/elided_label.h>
#include <zor/monitor/session/session.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStatusBar>
#include <QTime>

#include <array>

namespace zor::monitor {

class StatusLine final {
    Q_DECLARE_TR_FUNCTIONS(StatusLine)
public:
    /// Must outlive the line.
    explicit StatusLine(QStatusBar& bar);

    /// Speaks of this session from now on; it must outlive that. Of a simulated device it says so, not its
    /// address.
    void follow(Session& session, bool simulated);

    /// After a round, and whenever something about the session has changed.
    void showRound(bool answered);
    /// For some seconds, in place of the state of the connection.
    void say(const QString& text);

private:
    [[nodiscard]] QString connection(bool answered) const;
    void showTraffic();

    QStatusBar& m_bar;
    Session* m_session = nullptr;
    ElidedLabel* m_state;
    QLabel* m_traffic;
    QElapsedTimer m_clock;
    /// Reads and writes counted so far, for how many came since.
    std::array<std::uint64_t, 2> m_counted{};
    QTime m_time;      ///< of the last round
    int m_rounds = -1; ///< of the session, by then
    bool m_simulated = false;
    bool m_answered = false;
};

} // namespace zor::monitor
