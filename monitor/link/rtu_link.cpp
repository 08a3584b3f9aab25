#include <zor/monitor/link/rtu_link.h>

#include <QVariant>

namespace zor::monitor {

RtuLink::RtuLink(const SerialSettings& settings, std::uint8_t unit, int deadlineMilliseconds)
    : Link(deadlineMilliseconds), m_device(settings.device), m_unit(unit)
{
    m_client.setConnectionParameter(QModbusDevice::SerialPortNameParameter, settings.device);
    m_client.setConnectionParameter(QModbusDevice::SerialBaudRateParameter, settings.baud);
    m_client.setConnectionParameter(QModbusDevice::SerialParityParameter, settings.parity);
    m_client.setConnectionParameter(QModbusDevice::SerialStopBitsParameter, settings.stopBits);
    m_client.setConnectionParameter(QModbusDevice::SerialDataBitsParameter, 8);
    // The deadline is the link's; Qt's own timer must not come first, nor send anything again.
    constexpr int kLongAfter = 60000;
    m_client.setTimeout(kLongAfter);
    m_client.setNumberOfRetries(0);
}

RtuLink::~RtuLink() { drop(); }

QString RtuLink::description() const { return "rtu:" + m_device; }

void RtuLink::transmit(const Request& request)
{
    if (!isConnected()) {
        if (!m_client.connectDevice())
            return fail(m_client.errorString());
        connected();
    }
    const std::vector<std::uint8_t> pdu = requestPdu(request);
    const QByteArray data(reinterpret_cast<const char*>(pdu.data() + 1), static_cast<qsizetype>(pdu.size() - 1));
    m_reply = m_client.sendRawRequest(
        QModbusRequest(static_cast<QModbusPdu::FunctionCode>(request.function), data), m_unit);
    if (m_reply == nullptr)
        return fail(m_client.errorString());
    sent();
    connect(m_reply, &QModbusReply::finished, this, [this] { hear(*m_reply); });
}

void RtuLink::drop()
{
    if (m_reply != nullptr) {
        m_reply->disconnect(this);
        m_reply->deleteLater();
        m_reply = nullptr;
    }
    m_client.disconnectDevice();
}

void RtuLink::hear(const QModbusReply& reply)
{
    const bool replied = reply.error() == QModbusDevice::NoError || reply.error() == QModbusDevice::ProtocolError;
    if (!replied || reply.serverAddress() != m_unit)
        return fail(reply.errorString());
    const QModbusResponse response = reply.rawResult();
    // Qt has compared the function; of an exception its own accessors would read a code that is no member of
    // their enumeration.
    const bool exception = reply.error() == QModbusDevice::ProtocolError;
    const unsigned function = exception ? static_cast<unsigned>(current().function) | 0x80U
                                        : static_cast<unsigned>(response.functionCode());
    std::vector<std::uint8_t> pdu{static_cast<std::uint8_t>(function)};
    for (const char byte : response.data())
        pdu.push_back(static_cast<std::uint8_t>(byte));
    m_reply->disconnect(this);
    m_reply->deleteLater();
    m_reply = nullptr;
    finish(judgeReply(current(), pdu));
}

} // namespace zor::monitor
