#pragma once

/// Modbus RTU on a serial line.

#include <zor/monitor/link/transport.h>

#include <QSerialPort>

namespace zor::monitor {

struct SerialSettings {
    QString device;
    int baud = 19200;
    int parity = QSerialPort::EvenParity;
    int stopBits = 1;
};

class RtuTransport final : public Transport {
public:
    explicit RtuTransport(const SerialSettings& settings);
    ~RtuTransport() override;

    void open() override;
    void close() override;
    [[nodiscard]] bool isOpen() const override { return m_port.isOpen(); }
    void write(const Bytes& bytes) override;
    [[nodiscard]] Bytes read(std::size_t most) override;
    [[nodiscard]] const Framing& framing() const override { return rtuFraming(); }
    [[nodiscard]] QString description() const override { return "rtu:" + m_port.portName(); }
    [[nodiscard]] int silence() const override { return m_silence; }

private:
    QSerialPort m_port;
    int m_silence;
};

} // namespace zor::monitor
