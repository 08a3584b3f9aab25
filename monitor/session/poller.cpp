#include <zor/monitor/session/poller.h>

#include <algorithm>
#include <array>
#include <utility>

namespace zor::monitor {
namespace {

constexpr int kIdentityRounds = 20; ///< a device is rarely exchanged, but it is

ReadOutcome outcomeOf(const Reply& reply)
{
    if (reply.outcome == Outcome::Answered)
        return ReadOutcome::Live;
    if (reply.outcome != Outcome::Refused || isGatewayException(reply.exception))
        return ReadOutcome::NoAnswer;
    return isBusyException(reply.exception) ? ReadOutcome::Busy : ReadOutcome::NotAvailable;
}

std::string joinedNumbers(std::span<const std::uint16_t> numbers)
{
    std::string text;
    for (const std::uint16_t number : numbers)
        text.append(text.empty() ? "" : ".").append(std::to_string(number));
    return text;
}

std::string identityText(const Location& location, const Registers& registers)
{
    return location.type == ValueType::Text ? decodeText(location, registers) : joinedNumbers(registers);
}

} // namespace

Poller::Poller(Link& link, const ParameterFile& file) : m_link(link), m_file(file)
{
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, [this] { begin(); });
}

Request Poller::readRequest(const Location& location)
{
    // In the order of Bank.
    constexpr std::array kFunctions{Function::ReadHolding, Function::ReadInput, Function::ReadCoils,
                                    Function::ReadDiscrete};
    return {kFunctions[static_cast<std::size_t>(location.bank)], location.address, location.registers};
}

void Poller::start(int periodMilliseconds)
{
    m_timer.start(periodMilliseconds);
    m_soon.start(0);
}

void Poller::setPeriod(int milliseconds) { m_timer.setInterval(milliseconds); }

void Poller::pollNow()
{
    if (m_inRound)
        m_again = true;
    else
        m_soon.start(0);
}

void Poller::tick()
{
    if (!m_inRound)
        return begin();
    // A device slower than the period is asked again only when it has answered.
    if (std::exchange(m_late, true))
        return;
    for (const Batch& batch : m_asked)
        tell(batch, {ReadOutcome::Late});
    for (const Batch& batch : m_todo)
        tell(batch, {ReadOutcome::Late});
}

void Poller::begin()
{
    if (m_inRound)
        return;
    m_inRound = true;
    m_late = m_answered = m_again = false;
    const std::vector<Batch> batches = plan(m_file.parameters, wanted(), m_cuts, m_file.requests);
    const auto isSilent = [&](const Batch& batch) {
        return std::ranges::any_of(batch.parameters, [&](std::size_t i) { return m_silent.contains(i); });
    };
    m_todo.assign(batches.begin(), batches.end());
    std::stable_partition(m_todo.begin(), m_todo.end(), [&](const Batch& batch) { return !isSilent(batch); });
    if (m_todo.empty()) {
        // Nobody wants to know anything, so nothing is learned about the connection either.
        m_inRound = false;
        return;
    }
    next();
}

void Poller::next()
{
    // Until something has answered, one at a time: see hear().
    const std::size_t most = m_answered ? static_cast<std::size_t>(m_file.requests.underWay) : 1;
    while (!m_todo.empty() && m_asked.size() < most) {
        const auto asked = m_asked.insert(m_asked.end(), std::move(m_todo.front()));
        m_todo.pop_front();
        const Location location{asked->bank, static_cast<std::uint16_t>(asked->first),
                                static_cast<std::uint16_t>(asked->count)};
        m_link.send(readRequest(location), [this, asked](const Reply& reply) {
            const Batch batch = std::move(*asked);
            m_asked.erase(asked);
            hear(batch, reply);
        });
    }
}

void Poller::hear(const Batch& batch, const Reply& reply)
{
    const ReadOutcome outcome = outcomeOf(reply);
    const bool answered = outcome != ReadOutcome::NoAnswer;
    if (!answered)
        m_failure = reply;
    const std::optional<Cut> cut = cutOf(m_file.parameters, batch);
    if (cut && (outcome == ReadOutcome::NotAvailable || (!answered && m_answered))) {
        divide(batch, *cut);
        m_answered = m_answered || answered;
    } else {
        m_answered = m_answered || answered;
        for (const std::size_t i : batch.parameters) {
            if (answered)
                m_silent.erase(i);
            else
                m_silent.insert(i);
        }
        tell(batch, {outcome, reply.registers, reply.reason});
    }
    if (!m_answered) {
        // Nothing has answered: asking for the rest would only make the operator wait for the news.
        for (const Batch& rest : std::exchange(m_todo, {}))
            tell(rest, {outcome, {}, reply.reason});
    }
    if (m_todo.empty() && m_asked.empty())
        end();
    else
        next();
}

void Poller::tell(const Batch& batch, const Reading& reading)
{
    for (const std::size_t i : batch.parameters) {
        Reading own = reading;
        if (reading.outcome == ReadOutcome::Live) {
            const Location& location = m_file.parameters[i].location;
            const auto begin = reading.registers.begin() + (location.address - batch.first);
            own.registers.assign(begin, begin + location.registers);
        }
        onReading(i, own);
    }
}

void Poller::divide(const Batch& batch, const Cut& cut)
{
    m_cuts.insert(cut);
    const std::vector<Batch> parts = plan(m_file.parameters, batch.parameters, m_cuts, m_file.requests);
    m_todo.insert(m_todo.begin(), parts.begin(), parts.end());
}

void Poller::end()
{
    m_inRound = false;
    ++m_rounds;
    if (!m_answered) {
        // What comes back may be another device, or the same with other firmware.
        m_identifiedOn.reset();
        m_cuts.clear();
    } else if (!isIdentified() || ++m_sinceIdentity >= kIdentityRounds) {
        identify([](const Reply&) {});
    }
    onRound(m_answered);
    if (m_again)
        m_soon.start(0);
}

// --- Identity

bool Poller::isIdentified() const { return m_identifiedOn && m_identifiedOn == m_link.connection(); }

void Poller::forget()
{
    m_identifiedOn.reset();
    m_identity.reset();
    m_cuts.clear();
    m_silent.clear();
}

void Poller::identify(std::function<void(const Reply&)> done)
{
    readPart(m_file.identity.type, [this, done = std::move(done)](const Reply& asked, const std::string& type) {
        if (asked.outcome != Outcome::Answered)
            return done(asked);
        readPart(m_file.identity.version, [this, done, type](const Reply& reply, std::string version) {
            if (reply.outcome == Outcome::Answered)
                tellIdentity(type, std::move(version));
            done(reply);
        });
    });
}

void Poller::readPart(const std::optional<Location>& part,
                      std::function<void(const Reply&, std::string text)> done)
{
    Reply unasked;
    unasked.outcome = Outcome::Answered;
    if (!part)
        return done(unasked, {});
    m_link.send(readRequest(*part), [part, unasked, done = std::move(done)](const Reply& reply) {
        if (reply.outcome == Outcome::Answered)
            return done(reply, identityText(*part, reply.registers));
        const bool refused = reply.outcome == Outcome::Refused && outcomeOf(reply) == ReadOutcome::NotAvailable;
        done(refused ? unasked : reply, {});
    });
}

void Poller::tellIdentity(std::string type, std::string version)
{
    m_identifiedOn = m_link.connection();
    m_sinceIdentity = 0;
    std::optional<std::pair<std::string, std::string>> identity;
    identity.emplace(std::move(type), std::move(version));
    if (m_identity == identity)
        return;
    m_identity = std::move(identity);
    m_cuts.clear();
    m_silent.clear();
    onIdentity(m_identity->first, m_identity->second);
}

} // namespace zor::monitor
