#include <zor/monitor/session/poller.h>
#include <zor/monitor/session/writer.h>

#include <algorithm>
#include <utility>

namespace zor::monitor {
namespace {

WriteResult resultOf(const Reply& reply)
{
    WriteResult result;
    result.exception = reply.exception;
    result.reason = reply.reason;
    switch (reply.outcome) {
    case Outcome::Answered: result.outcome = WriteOutcome::Written; break;
    case Outcome::Refused:
        result.outcome = leavesOpen(reply.exception) ? WriteOutcome::Unconfirmed : WriteOutcome::Refused;
        break;
    case Outcome::NotSent: result.outcome = WriteOutcome::NotSent; break;
    case Outcome::NoAnswer: result.outcome = WriteOutcome::Unconfirmed; break;
    }
    return result;
}

} // namespace

bool Writer::isWriting(std::size_t parameter) const
{
    return std::ranges::any_of(m_jobs, [&](const Job& job) {
        return std::ranges::any_of(job.changes,
                                   [&](const Change& change) { return change.parameter == parameter; });
    });
}

void Writer::write(std::vector<Change> changes, std::optional<unsigned> connection)
{
    m_connection = connection;
    std::ranges::stable_sort(changes, {}, [this](const Change& change) {
        const Location& location = m_file.parameters[change.parameter].location;
        return std::pair(location.bank, location.address);
    });
    const int most = std::min(kMostWriteRegisters, m_file.requests.registers);
    for (Change& change : changes) {
        const Location& location = m_file.parameters[change.parameter].location;
        const bool bits = change.mask != 0;
        const int end = location.address + location.registers;
        const auto shares = [&](const Job& job) {
            return job.bits && bits && location.bank == job.bank && location.address < job.first + job.count &&
                   end - job.first <= most;
        };
        const auto found = std::ranges::find_if(m_jobs, shares);
        if (found == m_jobs.end()) {
            m_jobs.push_back({location.bank, location.address, location.registers, bits, {}});
            m_jobs.back().changes.push_back(std::move(change));
        } else {
            found->count = std::max(found->count, end - found->first);
            found->changes.push_back(std::move(change));
        }
    }
    next();
}

Request Writer::readRequest() const
{
    const Job& job = m_jobs.front();
    return Poller::readRequest(
        {job.bank, static_cast<std::uint16_t>(job.first), static_cast<std::uint16_t>(job.count)});
}

void Writer::next()
{
    if (m_jobs.empty()) {
        onDone();
    } else if (m_jobs.front().changes.front().before.empty()) {
        // The device does not let it be read.
        send(m_jobs.front().changes.front().target);
    } else {
        readFirst();
    }
}

Registers Writer::partOf(const Registers& registers, const Change& change) const
{
    const Location& location = m_file.parameters[change.parameter].location;
    const auto at = registers.begin() + (location.address - m_jobs.front().first);
    return {at, at + location.registers};
}

void Writer::readFirst()
{
    const auto hear = [this](const Reply& reply) {
        if (reply.outcome == Outcome::Answered)
            return compare(reply.registers);
        // The read has failed; the write has not been sent.
        WriteResult result = resultOf(reply);
        result.outcome = WriteOutcome::NotSent;
        finish(result, {});
    };
    m_link.send(readRequest(), hear, m_connection);
}

void Writer::compare(const Registers& held)
{
    Job& job = m_jobs.front();
    const auto overtaken =
        std::stable_partition(job.changes.begin(), job.changes.end(), [&](const Change& change) {
            return isAsReviewed(change, m_file.parameters[change.parameter].location, partOf(held, change));
        });
    const std::vector<Change> stopped(overtaken, job.changes.end());
    job.changes.erase(overtaken, job.changes.end());
    for (const Change& change : stopped)
        onResult(change, {WriteOutcome::Overtaken, 0, partOf(held, change), {}});
    if (job.changes.empty()) {
        m_jobs.pop_front();
        return next();
    }
    if (!job.bits)
        return send(job.changes.front().target);
    if (const auto masked = maskedRequest())
        return sendMasked(*masked);
    Registers registers = held;
    for (const Change& change : job.changes) {
        const Location& location = m_file.parameters[change.parameter].location;
        const Registers merged = mergeBits(location, partOf(registers, change), change.mask, change.bits);
        std::ranges::copy(merged, registers.begin() + (location.address - job.first));
    }
    send(registers);
}

std::optional<Request> Writer::maskedRequest() const
{
    const Job& job = m_jobs.front();
    if (!m_isMaskable || !m_file.requests.masked || holdsBits(job.bank))
        return std::nullopt;
    // By register of the job: what stays, and what is set.
    Registers kept(static_cast<std::size_t>(job.count), UINT16_MAX);
    Registers set(kept.size(), 0);
    for (const Change& change : job.changes) {
        const Location& location = m_file.parameters[change.parameter].location;
        const Registers none(location.registers, 0);
        const Registers mask = mergeBits(location, none, change.mask, change.mask);
        const Registers bits = mergeBits(location, none, change.mask, change.bits);
        for (std::size_t i = 0; i < mask.size(); ++i) {
            const auto at = static_cast<std::size_t>(location.address - job.first) + i;
            kept[at] = static_cast<std::uint16_t>(kept[at] & ~mask[i]);
            set[at] |= bits[i];
        }
    }
    const auto touches = [](std::uint16_t word) { return word != UINT16_MAX; };
    if (std::ranges::count_if(kept, touches) != 1)
        return std::nullopt;
    const auto at = std::ranges::find_if(kept, touches) - kept.begin();
    return Request{Function::MaskWrite,
                   static_cast<std::uint16_t>(job.first + at),
                   1,
                   {kept[static_cast<std::size_t>(at)], set[static_cast<std::size_t>(at)]}};
}

void Writer::sendMasked(const Request& request)
{
    constexpr std::uint8_t kUnknownFunction = 1;
    const auto hear = [this](const Reply& reply) {
        const bool unknown = reply.exception == kUnknownFunction;
        // Some devices leave what they do not know without an answer.
        if (unknown || reply.outcome == Outcome::NoAnswer)
            m_isMaskable = false;
        if (unknown)
            return readFirst();
        hearWrite(reply);
    };
    m_link.send(request, hear, m_connection);
}

void Writer::send(const Registers& registers)
{
    const Job& job = m_jobs.front();
    const auto address = static_cast<std::uint16_t>(job.first);
    const bool coils = holdsBits(job.bank);
    m_parts.clear();
    if (m_file.requests.write != WriteWith::Single) {
        m_parts.push_back(writeRequest(address, registers, coils, m_file.requests.write == WriteWith::Multiple));
    } else {
        for (std::size_t i = 0; i < registers.size(); ++i)
            m_parts.push_back(writeRequest(static_cast<std::uint16_t>(address + i), {registers[i]}, coils));
    }
    sendParts();
}

void Writer::sendParts()
{
    Request part = std::move(m_parts.front());
    m_parts.pop_front();
    const auto hear = [this](const Reply& reply) {
        if (reply.outcome != Outcome::Answered || m_parts.empty())
            return hearWrite(reply);
        m_isBegun = true;
        sendParts();
    };
    m_link.send(std::move(part), hear, m_connection);
}

void Writer::hearWrite(const Reply& reply)
{
    WriteResult result = resultOf(reply);
    const bool unchanged = result.outcome == WriteOutcome::Refused || result.outcome == WriteOutcome::NotSent;
    if (unchanged && !m_isBegun)
        return finish(result, {});
    // A part of the registers holds the new value already.
    if (unchanged)
        result.outcome = WriteOutcome::Differs;
    askAndReadBack(result);
}

namespace {

/// The result where it could not be read back.
WriteResult unread(WriteResult written, const Reply& why)
{
    if (written.outcome == WriteOutcome::Written) {
        written.outcome = WriteOutcome::Unread;
        written.reason = why.reason;
    }
    return written;
}

} // namespace

void Writer::askAndReadBack(const WriteResult& written)
{
    if (!m_connection || m_link.connection() == m_connection)
        return readBack(written);
    askWhetherSame([this, written](const Reply& reply) {
        if (reply.outcome == Outcome::Answered)
            return readBack(written);
        finish(unread(written, reply), {});
    });
}

void Writer::readBack(const WriteResult& written)
{
    const auto hear = [this, written](const Reply& reply) {
        if (reply.outcome == Outcome::Answered)
            return finish(written, reply.registers);
        // Lost with a connection that another request has given up: it is asked for once more over the next.
        if (reply.fault == Fault::ConnectionLost && !std::exchange(m_isAskedAgain, true))
            return askAndReadBack(written);
        finish(unread(written, reply), {});
    };
    m_link.send(readRequest(), hear, m_link.connection());
}

void Writer::finish(const WriteResult& result, const Registers& registers)
{
    for (const Change& change : m_jobs.front().changes) {
        WriteResult own = result;
        if (!registers.empty()) {
            own.readBack = partOf(registers, change);
            // A write whose answer was lost may have been carried out all the same, and may yet be.
            if (isFulfilled(change, m_file.parameters[change.parameter].location, own.readBack))
                own.outcome = WriteOutcome::Written;
            else if (own.outcome == WriteOutcome::Written)
                own.outcome = WriteOutcome::Differs;
        }
        onResult(change, own);
    }
    m_jobs.pop_front();
    m_isBegun = m_isAskedAgain = false;
    next();
}

} // namespace zor::monitor
