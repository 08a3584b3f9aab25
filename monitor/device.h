#pragma once

/// The embedded device: a simulated transmitter behind a Modbus TCP server on loopback.

#include <QModbusTcpServer>
#include <QTimer>

namespace zor::monitor {

class Device : public QObject {
public:
    /// Serves on 127.0.0.1; port 0 lets the system choose one.
    explicit Device(int port = 0);

    /// False when the port cannot be had; error() says why.
    [[nodiscard]] bool start();
    void stop();
    [[nodiscard]] QString error() const { return m_server.errorString(); }
    [[nodiscard]] int port() const { return m_port; }
    [[nodiscard]] QModbusTcpServer& server() { return m_server; }

private:
    void fill();
    void tick();

    QModbusTcpServer m_server;
    QTimer m_clock;
    int m_port;
    double m_seconds = 0;
};

} // namespace zor::monitor
