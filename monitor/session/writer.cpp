#include <zor/monitor/session/writer.h>

#include <algorithm>

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
        return m_file.parameters[change.parameter].location.address;
    });
    for (Change& change : changes) {
        const Location& location = m_file.parameters[change.parameter].location;
        const bool bits = change.mask != 0;
        const int end = location.address + location.registers;
        const auto shares = [&](const Job& job) {
            return job.bits && bits && location.address < job.first + job.count &&
                   end - job.first <= kMostWriteRegisters;
        };
        const auto found = std::ranges::find_if(m_jobs, shares);
        if (found == m_jobs.end()) {
            m_jobs.push_back({location.address, location.registers, bits, {}});
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
    return {Function::ReadHolding, static_cast<std::uint16_t>(m_jobs.front().first),
            static_cast<std::uint16_t>(m_jobs.front().count)};
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
    Registers registers = held;
    for (const Change& change : job.changes) {
        const Location& location = m_file.parameters[change.parameter].location;
        const Registers merged = mergeBits(location, partOf(registers, change), change.mask, change.bits);
        std::ranges::copy(merged, registers.begin() + (location.address - job.first));
    }
    send(std::move(registers));
}

void Writer::send(Registers registers)
{
    const auto address = static_cast<std::uint16_t>(m_jobs.front().first);
    const auto hear = [this](const Reply& reply) {
        const WriteResult result = resultOf(reply);
        if (result.outcome == WriteOutcome::Refused || result.outcome == WriteOutcome::NotSent)
            return finish(result, {});
        readBack(result);
    };
    m_link.send(writeRequest(address, std::move(registers)), hear, m_connection);
}

void Writer::readBack(const WriteResult& written)
{
    m_link.send(readRequest(), [this, written](const Reply& reply) {
        if (reply.outcome == Outcome::Answered)
            return finish(written, reply.registers);
        WriteResult result = written;
        if (written.outcome == WriteOutcome::Written) {
            result.outcome = WriteOutcome::Unread;
            result.reason = reply.reason;
        }
        finish(result, {});
    });
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
    next();
}

} // namespace zor::monitor
