#pragma once

/// Modbus TCP on a plain socket.

#include <zor/monitor/link/link.h>

#include <QTcpSocket>

namespace zor::monitor {

class TcpTransport final : public Transport {
public:
    TcpTransport(QString host, quint16 port);
    ~TcpTransport() override;

    void open() override;
    void close() override { m_socket.abort(); }
    [[nodiscard]] bool isOpen() const override { return m_socket.state() == QAbstractSocket::ConnectedState; }
    void write(const Bytes& bytes) override;
    [[nodiscard]] Bytes read(std::size_t most) override;
    [[nodiscard]] const Framing& framing() const override { return tcpFraming(); }
    [[nodiscard]] QString description() const override;

private:
    QTcpSocket m_socket;
    QString m_host;
    quint16 m_port;
};

/// A link over TCP.
class TcpLink final : public Link {
public:
    TcpLink(QString host, quint16 port, std::uint8_t unit, int deadlineMilliseconds)
        : Link(std::make_unique<TcpTransport>(std::move(host), port), unit, deadlineMilliseconds)
    {}
};

} // namespace zor::monitor
