#pragma once

/// The embedded device: a Modbus TCP server on loopback that holds the parameters of a file and moves them with
/// time as the file says.

#include <zor/monitor/data/codec.h>

#include <QModbusTcpServer>
#include <QTimer>

namespace zor::monitor {

/// Refuses the registers that a file says are absent.
class SimulatedServer : public QModbusTcpServer {
public:
    std::vector<Location> absent;

protected:
    QModbusResponse processRequest(const QModbusPdu& request) override;
};

class Simulator : public QObject {
public:
    /// Serves on 127.0.0.1 as unit 1; port 0 lets the system choose one. The file must outlive the device.
    explicit Simulator(const ParameterFile& file, int port = 0);
    ~Simulator() override { stop(); }

    /// False when the port cannot be had; error() says why.
    [[nodiscard]] bool start();
    /// As if the power were cut: connections break. The registers keep what they hold.
    void stop();
    [[nodiscard]] bool isRunning() const { return m_server.state() == QModbusDevice::ConnectedState; }
    [[nodiscard]] QString error() const { return m_server.errorString(); }
    [[nodiscard]] int port() const { return m_port; }

    /// What the registers hold, and what somebody at the device would change.
    [[nodiscard]] Registers registers(Bank bank, int address, int count);
    void setRegisters(Bank bank, int address, const Registers& values);

private:
    void fill();
    void tick();
    void set(const Parameter& parameter, double seconds);

    const ParameterFile& m_file;
    SimulatedServer m_server;
    QTimer m_clock;
    int m_port;
    double m_seconds = 0;
};

} // namespace zor::monitor
