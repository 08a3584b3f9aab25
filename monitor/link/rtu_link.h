#pragma once

/// Modbus RTU over a serial line. Qt frames and checks the bytes; the fields are judged here as on TCP.

#include <zor/monitor/link/link.h>

#include <QModbusRtuSerialClient>

namespace zor::monitor {

struct SerialSettings {
    QString device;
    int baud = 19200;
    int parity = 2; ///< 0 none, 2 even, 3 odd
    int stopBits = 1;
};

class RtuLink final : public Link {
public:
    RtuLink(const SerialSettings& settings, std::uint8_t unit, int deadlineMilliseconds);
    ~RtuLink() override;

    [[nodiscard]] QString description() const override;

private:
    void transmit(const Request& request) override;
    void drop() override;
    [[nodiscard]] bool isConnected() const override { return m_client.state() == QModbusDevice::ConnectedState; }
    void hear(const QModbusReply& reply);

    QModbusRtuSerialClient m_client;
    QString m_device;
    QModbusReply* m_reply = nullptr;
    std::uint8_t m_unit;
};

} // namespace zor::monitor
