#include <zor/monitor/settings/survey.h>

#include <QEventLoop>

#include <algorithm>
#include <utility>

namespace zor::monitor {

Survey::Survey(Session& session, std::vector<std::size_t> parameters)
    : m_session(session), m_parameters(std::move(parameters)), m_since(session.now()),
      m_readAll(session.readsEverything())
{
    session.readEverything();
    session.poller().pollNow();
}

Survey::~Survey() { m_session.readEverything(m_readAll); }

std::size_t Survey::done() const
{
    const auto settled = [this](std::size_t parameter) {
        const ReadOutcome outcome = m_session.outcome(parameter);
        return m_session.readAt(parameter) >= m_since &&
               (outcome == ReadOutcome::Live || outcome == ReadOutcome::NotAvailable ||
                outcome == ReadOutcome::NoValue);
    };
    return static_cast<std::size_t>(std::ranges::count_if(m_parameters, settled));
}

Survey::State Survey::hearRound(bool answered)
{
    constexpr int kMostSilent = 3;
    constexpr int kMostIdle = 10;
    const std::size_t before = std::exchange(m_done, done());
    // What was read over a new connection may be another device's. It is asked what it is at the end of the round,
    // and had it become another, all would have to be read anew by the end of the next.
    const bool isComplete = m_done == total() && m_session.isDeviceKnown();
    if (isComplete && (m_session.poller().isIdentified() || before == total()))
        return State::Complete;
    m_silent = answered ? 0 : m_silent + 1;
    m_idle = m_done > before ? 0 : m_idle + 1;
    return m_silent >= kMostSilent || m_idle >= kMostIdle ? State::GivenUp : State::Going;
}

bool surveyAtOnce(Session& session, std::vector<std::size_t> parameters)
{
    Survey survey(session, std::move(parameters));
    QEventLoop loop;
    bool complete = false;
    session.onRound = [&](bool answered) {
        const Survey::State state = survey.hearRound(answered);
        complete = state == Survey::State::Complete;
        if (state != Survey::State::Going)
            loop.quit();
    };
    loop.exec();
    session.onRound = nullptr;
    return complete;
}

} // namespace zor::monitor
