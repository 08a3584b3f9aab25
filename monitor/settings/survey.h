#pragma once

/// Reads parameters that need not be in sight, each once.

#include <zor/monitor/session/session.h>

namespace zor::monitor {

/// Goes on from where it was when a connection comes back; a device that stays silent, or that makes no progress,
/// ends it. Holds the session to reading every parameter for as long as it lives.
class Survey {
public:
    enum class State : std::uint8_t { Going, Complete, GivenUp };

    /// Only what is read from now on counts. The session must outlive it.
    Survey(Session& session, std::vector<std::size_t> parameters);
    ~Survey();
    Survey(const Survey&) = delete;
    Survey& operator=(const Survey&) = delete;

    /// To be told of each round.
    State hearRound(bool answered);
    [[nodiscard]] std::size_t done() const;
    [[nodiscard]] std::size_t total() const { return m_parameters.size(); }

private:
    Session& m_session;
    std::vector<std::size_t> m_parameters;
    const qint64 m_since;
    const bool m_readAll;
    std::size_t m_done = 0;
    int m_silent = 0; ///< rounds without an answer, one after the other
    int m_idle = 0;   ///< rounds without progress
};

/// Reads them in the program's event loop; whether the device answered for each. Nobody else may be told of
/// rounds.
[[nodiscard]] bool surveyAtOnce(Session& session, std::vector<std::size_t> parameters);

} // namespace zor::monitor
