#include <zor/monitor/session/session.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zor::monitor {
namespace {

constexpr const char* kOtherDevice = QT_TRANSLATE_NOOP("reasons", "another device");

} // namespace

Session::Session(std::unique_ptr<Link> link, ParameterFile file, Log* log)
    : m_link(std::move(link)), m_file(std::move(file)), m_log(log), m_poller(*m_link, m_file),
      m_writer(*m_link, m_file), m_states(m_file.parameters.size()), m_shownBy(m_states.size())
{
    m_clock.start();
    m_link->setManners({m_file.requests.pause, m_file.requests.retries, m_file.requests.underWay});
    m_poller.wanted = [this] { return wanted(); };
    m_poller.onReading = [this](std::size_t parameter, const Reading& reading) { hear(parameter, reading); };
    m_poller.onRound = [this](bool answered) { hearRound(answered); };
    m_poller.onIdentity = [this](const std::string& type, const std::string& version) {
        hearIdentity(type, version);
    };
    m_writer.onResult = [this](const Change& change, const WriteResult& result) { hearResult(change, result); };
    m_writer.onDone = [this] { endWriting(); };
    m_writer.askWhetherSame = [this](const Link::Done& done) {
        m_poller.identify([this, before = m_device, done](const Reply& reply) {
            if (m_device == before)
                return done(reply);
            Reply other;
            other.reason = kOtherDevice;
            done(other);
        });
    };
}

void Session::start(int periodMilliseconds, int timeoutMilliseconds)
{
    m_timeout = timeoutMilliseconds;
    setPeriod(periodMilliseconds);
    m_poller.start(periodMilliseconds);
}

void Session::setPeriod(int milliseconds)
{
    m_poller.setPeriod(milliseconds);
    m_link->setDeadline(m_timeout > 0 ? m_timeout : milliseconds);
}

void Session::connectTo(Endpoint endpoint)
{
    m_link->connectTo(std::move(endpoint.transport), endpoint.unit);
    m_poller.forget();
    m_poller.pollNow();
}

// --- Reading

std::vector<std::size_t> Session::wanted()
{
    std::vector<std::size_t> parameters(m_readsAll ? m_states.size() : 0);
    std::iota(parameters.begin(), parameters.end(), std::size_t{0});
    parameters.insert(parameters.end(), m_followed.begin(), m_followed.end());
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        Binding& binding = *m_bindings[i];
        if (binding.parameter() == nullptr)
            continue;
        const auto parameter = static_cast<std::size_t>(binding.parameter() - m_file.parameters.data());
        const bool visible = !isVisible || isVisible(binding.control());
        const State& state = m_states[parameter];
        if (visible || binding.isModified() || state.unconfirmed)
            parameters.push_back(parameter);
        // What has not been read for a while does not pass for live while its first read is under way.
        const bool stale = state.readAt < 0 || m_clock.elapsed() - state.readAt > m_poller.period();
        if (visible && !m_views[i].visible && stale)
            binding.await();
        m_views[i].visible = visible;
    }
    if (parameters.empty() && m_keepsAlive)
        parameters.push_back(0);
    return parameters;
}

void Session::hear(std::size_t parameter, const Reading& reading)
{
    State& state = m_states[parameter];
    const bool live = reading.outcome == ReadOutcome::Live;
    const bool none = live && decode(m_file.parameters[parameter], reading.registers).isEmpty();
    const ReadOutcome outcome = none ? ReadOutcome::NoValue : reading.outcome;
    logRead(parameter, {outcome, reading.registers, reading.reason});
    if (onReading)
        onReading(parameter, {outcome, reading.registers, reading.reason});
    state.outcome = outcome;
    forEach(parameter, [&](Binding& binding) { binding.showOutcome(outcome); });
    if (live || outcome == ReadOutcome::NotAvailable)
        state.readAt = m_clock.elapsed();
    if (!live)
        return;
    // Between a write and its reading back every answer is about our own change.
    if (!m_writer.isWriting(parameter))
        hearValue(parameter, reading.registers);
}

void Session::hearValue(std::size_t parameter, const Registers& registers)
{
    State& state = m_states[parameter];
    if (state.unconfirmed && m_poller.isIdentified())
        settle(parameter, registers);
    const bool foreign = !state.written.empty() && state.written != registers;
    if (foreign)
        state.written.clear();
    bool modified = false;
    forEach(parameter, [&](const Binding& binding) { modified = modified || binding.isModified(); });
    const bool again = std::exchange(state.wasModified, modified) && !modified;
    state.last = registers;
    forEach(parameter, [&](Binding& binding) { update(binding, registers, foreign, again); });
}

bool Session::isInEdit(const Binding& binding) const
{
    if (binding.isInHand() || !binding.isChoice())
        return binding.isInHand();
    const auto parameter = static_cast<std::size_t>(binding.parameter() - m_file.parameters.data());
    return std::ranges::any_of(m_shownBy[parameter],
                               [](const Binding* other) { return other->isChoice() && other->isModified(); });
}

void Session::update(Binding& binding, const Registers& registers, bool foreign, bool again)
{
    if (isInEdit(binding)) {
        const bool known = !binding.seen.empty();
        if (known && binding.isModified() && binding.relevant(binding.seen) != binding.relevant(registers))
            binding.tellOther(registers, m_language);
        binding.seen = registers;
        return;
    }
    const bool mine =
        foreign && !binding.seen.empty() && binding.relevant(binding.seen) != binding.relevant(registers);
    if (again || binding.shown != registers)
        binding.showValue(registers, m_language);
    if (mine)
        binding.tellOther(registers, m_language);
}

void Session::hearRound(bool answered)
{
    const bool recovered = answered && !m_healthy;
    m_healthy = answered;
    m_failedRounds += answered ? 0 : 1;
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        Binding& binding = *m_bindings[i];
        if (binding.parameter() == nullptr)
            continue;
        if (!answered)
            binding.showOutcome(ReadOutcome::NoAnswer);
        else if (recovered && !m_views[i].visible && binding.control().CFail() && !binding.isModified())
            binding.await();
    }
    if (onRound)
        onRound(answered);
}

// --- Writing

bool Session::hasEdits() const
{
    return std::ranges::any_of(m_bindings, [](const auto& binding) { return binding->isModified(); });
}

std::vector<Change> Session::pending() const
{
    std::vector<Change> changes = collectChanges(m_file, m_shownBy, m_language);
    for (Change& change : changes)
        change.device = m_device;
    return changes;
}

bool Session::write(const std::vector<Change>& changes)
{
    if (isWriting())
        return false;
    std::vector<Change> writable;
    std::ranges::copy_if(changes, std::back_inserter(writable),
                         [](const Change& change) { return change.problem == Problem::None; });
    m_isWriting = true;
    m_toWrite = writable.size();
    if (onWriting)
        onWriting();
    if (m_poller.isIdentified()) {
        Reply known;
        known.outcome = Outcome::Answered;
        writeIdentified(std::move(writable), known);
    } else {
        // What was reviewed for one device is not written into whatever has come in its place.
        m_poller.identify(
            [this, writable = std::move(writable)](const Reply& reply) { writeIdentified(writable, reply); });
    }
    return true;
}

void Session::writeIdentified(std::vector<Change> changes, const Reply& identified)
{
    std::vector<Change> writable;
    for (Change& change : changes) {
        if (identified.outcome != Outcome::Answered)
            hearResult(change, {WriteOutcome::NotSent, identified.exception, {}, identified.reason});
        else if (change.device != m_device)
            hearResult(change, {WriteOutcome::Overtaken, 0, {}, kOtherDevice});
        else
            writable.push_back(std::move(change));
    }
    m_writer.write(std::move(writable), m_poller.identifiedOn());
}

void Session::endWriting()
{
    m_isWriting = false;
    if (onWritten)
        onWritten(std::exchange(m_results, {}));
}

void Session::hearIdentity(const std::string& type, const std::string& version)
{
    // The first is the one that has been read, and perhaps edited, all along.
    const bool other = std::exchange(m_isKnown, true);
    if (other && m_log != nullptr)
        m_log->record("device", {}, m_type + ' ' + m_version, type + ' ' + version, kOtherDevice);
    m_type = type;
    m_version = version;
    m_device += other ? 1U : 0U;
    for (const auto& binding : m_bindings) {
        binding->control().DeviceType(type);
        binding->control().DeviceVersion(version);
        if (!other || binding->parameter() == nullptr)
            continue;
        // What the last device held says nothing about this one.
        binding->await();
        if (binding->isModified() && !binding->seen.empty())
            binding->tellOtherDevice();
    }
    if (other)
        m_writer.forgetDevice();
    for (State& state : m_states) {
        if (other) {
            state.written.clear();
            state.unconfirmed.reset();
            state.readAt = -1;
        }
    }
    m_poller.pollNow();
}

void Session::hearResult(const Change& change, const WriteResult& result)
{
    State& state = m_states[change.parameter];
    logWrite(change, result, nameOf(result.outcome));
    state.unconfirmed.reset();
    state.wasDoubted = false;
    if (result.outcome == WriteOutcome::Written) {
        endEdits(change, result.readBack);
    } else if (result.outcome == WriteOutcome::Unconfirmed || result.outcome == WriteOutcome::Unread) {
        // Another device has no part in it: what it holds confirms nothing.
        if (change.device == m_device)
            state.unconfirmed = change;
    } else if (!result.readBack.empty()) {
        state.last = result.readBack;
        for (const Origin& origin : change.origins) {
            origin.binding->seen = result.readBack;
            origin.binding->tellOther(result.readBack, m_language);
        }
    }
    m_results.push_back({change, result});
    if (onWriting)
        onWriting();
}

void Session::endEdits(const Change& change, const Registers& registers)
{
    State& state = m_states[change.parameter];
    state.written = state.last = registers;
    state.wasModified = false;
    for (const Origin& origin : change.origins) {
        // What the operator has typed since the review is a new edit.
        if (origin.actions == origin.binding->actions()) {
            origin.binding->forgetOther();
            origin.binding->showValue(registers, m_language);
        }
    }
    forEach(change.parameter, [&](Binding& binding) {
        if (isInEdit(binding))
            binding.seen = registers;
        else if (binding.shown != registers)
            binding.showValue(registers, m_language);
    });
}

void Session::settle(std::size_t parameter, const Registers& registers)
{
    State& state = m_states[parameter];
    const Change change = *state.unconfirmed;
    const bool done = isFulfilled(change, m_file.parameters[parameter].location, registers);
    const bool open = std::ranges::any_of(change.origins, [](const Origin& o) { return o.binding->isModified(); });
    // A device may take its time: as long as the edit stands, it may yet be carried out.
    if (done || !open)
        state.unconfirmed.reset();
    if (done || !std::exchange(state.wasDoubted, true))
        logWrite(change, {},
                 done ? QT_TRANSLATE_NOOP("texts", "confirmed") : QT_TRANSLATE_NOOP("texts", "not carried out"));
    if (done)
        endEdits(change, registers);
}

void Session::undoAll()
{
    for (std::size_t i = 0; i < m_states.size(); ++i) {
        bool modified = false;
        forEach(i, [&](const Binding& binding) { modified = modified || binding.isModified(); });
        if (!modified)
            continue;
        m_states[i].unconfirmed.reset();
        m_states[i].wasModified = false;
        forEach(i, [&](Binding& binding) {
            if (m_states[i].last.empty())
                binding.showNothing();
            else
                binding.showValue(m_states[i].last, m_language);
        });
    }
}

} // namespace zor::monitor
