#include "monitor/poller.h"

namespace zor::monitor {
namespace {

constexpr int kMostRegisters = 125; ///< the protocol's limit for one request
constexpr int kWidestGap = 8;       ///< registers read for nothing are cheaper than another request

QModbusDataUnit::RegisterType bankOf(REGISTER_TYPE bank)
{
    return bank == HoldingRegister ? QModbusDataUnit::HoldingRegisters : QModbusDataUnit::InputRegisters;
}

} // namespace

Poller::Poller(Link& link, int periodMilliseconds) : m_link(link)
{
    buildGroups();
    connect(&m_timer, &QTimer::timeout, this, [this] { round(); });
    m_timer.start(periodMilliseconds);
    QTimer::singleShot(0, this, [this] { round(); });
}

void Poller::buildGroups()
{
    for (std::size_t i = 0; i < kParameters.size(); ++i) {
        const Parameter& parameter = kParameters[i];
        const int end = parameter.address + parameter.registers;
        Group* last = m_groups.empty() ? nullptr : &m_groups.back();
        if (last != nullptr && last->bank == parameter.bank && parameter.address >= last->first &&
            parameter.address - (last->first + last->count) <= kWidestGap && end - last->first <= kMostRegisters) {
            last->count = std::max(last->count, end - last->first);
            last->parameters.push_back(i);
        } else {
            m_groups.push_back({parameter.bank, parameter.address, parameter.registers, {i}});
        }
    }
}

void Poller::split(std::size_t group)
{
    // One register that the device does not have must not take its neighbours with it.
    const Group whole = m_groups[group];
    m_groups.erase(m_groups.begin() + static_cast<std::ptrdiff_t>(group));
    for (const std::size_t i : whole.parameters)
        m_groups.push_back({whole.bank, kParameters[i].address, kParameters[i].registers, {i}});
}

void Poller::round()
{
    // A device slower than the period is asked again only when it has answered.
    if (m_waiting != 0 || m_link.pending() != 0)
        return;
    m_answered = false;
    if (!m_identified)
        readIdentity();
    m_waiting = m_groups.size();
    for (std::size_t group = 0; group < m_groups.size(); ++group)
        readGroup(group);
}

void Poller::readGroup(std::size_t group)
{
    m_link.read(bankOf(m_groups[group].bank), m_groups[group].first, static_cast<quint16>(m_groups[group].count),
                [this, group](const Reply& reply) { hear(group, reply); });
}

void Poller::hear(std::size_t group, const Reply& reply)
{
    const Group& heard = m_groups[group];
    m_answered = m_answered || reply.outcome != Outcome::NoAnswer;
    for (const std::size_t i : heard.parameters) {
        Reply own = reply;
        if (reply.outcome == Outcome::Answered)
            own.registers = reply.registers.mid(kParameters[i].address - heard.first, kParameters[i].registers);
        onRead(i, own);
    }
    const bool refused = reply.outcome == Outcome::Refused && heard.parameters.size() > 1;
    if (--m_waiting == 0) {
        ++m_rounds;
        if (!m_answered)
            m_identified = false;
        onRound(m_answered);
        // Numbers of groups are only stable within a round.
        if (refused)
            split(group);
    }
}

void Poller::readIdentity()
{
    m_link.read(QModbusDataUnit::InputRegisters, kIdentityAddress, kIdentityRegisters, [this](const Reply& reply) {
        if (reply.outcome != Outcome::Answered)
            return;
        m_identified = true;
        onIdentity(decodeText(reply.registers.mid(0, 8)),
                   std::to_string(reply.registers.at(8)) + '.' + std::to_string(reply.registers.at(9)));
    });
}

void Poller::readNow(std::size_t parameter)
{
    const Parameter& row = kParameters[parameter];
    m_link.read(bankOf(row.bank), row.address, row.registers,
                [this, parameter](const Reply& reply) { onRead(parameter, reply); });
}

void Poller::write(std::size_t parameter, const QList<quint16>& registers, Link::Done done)
{
    m_link.write(kParameters[parameter].address, registers, std::move(done));
}

} // namespace zor::monitor
