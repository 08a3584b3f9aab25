#pragma once

/// Modbus TCP, framed here: no reply is taken that does not fit the request in every field.

#include <zor/monitor/link/link.h>

#include <QByteArray>
#include <QTcpSocket>

namespace zor::monitor {

class TcpLink final : public Link {
public:
    TcpLink(QString host, quint16 port, std::uint8_t unit, int deadlineMilliseconds);
    ~TcpLink() override;

    [[nodiscard]] QString description() const override;

private:
    void transmit(const Request& request) override;
    void drop() override;
    [[nodiscard]] bool isConnected() const override;
    void write();
    void receive();
    void judge();

    QTcpSocket m_socket;
    QString m_host;
    QByteArray m_received;
    quint16 m_port;
    std::uint16_t m_transaction = 0;
    std::uint8_t m_unit;
};

} // namespace zor::monitor
