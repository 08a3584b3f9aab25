#include "monitor/link.h"

#include <QVariant>

namespace zor::monitor {
namespace {

constexpr int kUnit = 1;
constexpr int kReconnectMilliseconds = 250;

} // namespace

Link::Link(const QString& host, int port)
{
    m_client.setConnectionParameter(QModbusDevice::NetworkAddressParameter, host);
    m_client.setConnectionParameter(QModbusDevice::NetworkPortParameter, port);
    m_client.setTimeout(kDeadline);
    m_client.setNumberOfRetries(0);
    m_deadline.setSingleShot(true);
    // The client's own timer stops once a reply's header has come; this one does not. What comes later belongs
    // to nobody, so the connection is given up.
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        m_client.disconnectDevice();
        finish({});
    });
    connect(&m_retry, &QTimer::timeout, this, [this] { reconnect(); });
    m_retry.start(kReconnectMilliseconds);
    reconnect();
}

Link::~Link()
{
    m_retry.stop();
    m_queue.clear();
    if (m_reply != nullptr)
        m_reply->disconnect(this);
    m_client.disconnectDevice();
}

void Link::reconnect()
{
    if (m_client.state() == QModbusDevice::UnconnectedState)
        m_client.connectDevice();
}

void Link::read(QModbusDataUnit::RegisterType bank, int address, quint16 count, Done done)
{
    m_queue.push_back({QModbusDataUnit(bank, address, count), false, std::move(done)});
    next();
}

void Link::write(int address, const QList<quint16>& values, Done done)
{
    m_queue.push_back(
        {QModbusDataUnit(QModbusDataUnit::HoldingRegisters, address, values), true, std::move(done)});
    next();
}

void Link::next()
{
    if (m_busy || m_queue.empty())
        return;
    m_busy = true;
    const Request& request = m_queue.front();
    m_reply = !isConnected()    ? nullptr
              : request.isWrite ? m_client.sendWriteRequest(request.unit, kUnit)
                                : m_client.sendReadRequest(request.unit, kUnit);
    if (m_reply == nullptr) {
        // Later, so that a caller never hears of an outcome before it has returned.
        QTimer::singleShot(0, this, [this] { finish({}); });
        return;
    }
    m_deadline.start(kDeadline);
    connect(m_reply, &QModbusReply::finished, this, [this] { judge(*m_reply); });
}

void Link::judge(QModbusReply& reply)
{
    const Request& request = m_queue.front();
    Reply result;
    if (reply.error() == QModbusDevice::ProtocolError) {
        result.outcome = Outcome::Refused;
        result.exception = reply.rawResult().exceptionCode();
    } else if (reply.error() == QModbusDevice::NoError) {
        const QModbusDataUnit unit = reply.result();
        const bool same = reply.serverAddress() == kUnit && unit.startAddress() == request.unit.startAddress() &&
                          unit.valueCount() == request.unit.valueCount();
        if (same && (!request.isWrite || unit.registerType() == request.unit.registerType())) {
            result.outcome = Outcome::Answered;
            result.registers = unit.values();
        }
    }
    finish(result);
}

void Link::finish(const Reply& reply)
{
    if (!m_busy || m_queue.empty())
        return;
    m_deadline.stop();
    if (m_reply != nullptr) {
        m_reply->disconnect(this);
        m_reply->deleteLater();
        m_reply = nullptr;
    }
    const Done done = std::move(m_queue.front().done);
    m_queue.pop_front();
    m_busy = false;
    done(reply);
    next();
}

} // namespace zor::monitor
