#include "monitor/device.h"

#include "monitor/parameters.h"

#include <QTcpServer>
#include <QVariant>

#include <cmath>
#include <span>

namespace zor::monitor {
namespace {

constexpr int kRegisters = 128;
constexpr int kTickMilliseconds = 200;

void set(QModbusTcpServer& server, QModbusDataUnit::RegisterType bank, int address, const QList<quint16>& values)
{
    server.setData(QModbusDataUnit(bank, address, values));
}

/// A port that is free now.
int freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}

} // namespace

Device::Device(int port) : m_port(port != 0 ? port : freePort())
{
    QModbusDataUnitMap map;
    for (const auto bank : {QModbusDataUnit::HoldingRegisters, QModbusDataUnit::InputRegisters})
        map.insert(bank, {bank, 0, kRegisters});
    m_server.setMap(map);
    m_server.setServerAddress(1);
    m_server.setConnectionParameter(QModbusDevice::NetworkAddressParameter, "127.0.0.1");
    m_server.setConnectionParameter(QModbusDevice::NetworkPortParameter, m_port);
    connect(&m_clock, &QTimer::timeout, this, [this] { tick(); });
    fill();
    tick();
}

bool Device::start()
{
    m_clock.start(kTickMilliseconds);
    return m_server.connectDevice();
}

void Device::stop()
{
    m_clock.stop();
    m_server.disconnectDevice();
}

void Device::fill()
{
    const auto holding = QModbusDataUnit::HoldingRegisters;
    set(m_server, holding, 0, encodeNumber(Encoding::Int32, 125000)); // 12.5 m
    set(m_server, holding, 2, encodeNumber(Encoding::Int16, 850));    // 85 degrees
    set(m_server, holding, 3, encodeNumber(Encoding::UInt16, 20));
    set(m_server, holding, 8, encodeText("TK-101 North", 8));
    set(m_server, QModbusDataUnit::InputRegisters, kIdentityAddress, encodeText("ZT100", 8));
    set(m_server, QModbusDataUnit::InputRegisters, kIdentityAddress + 8, {2, 3});
}

void Device::tick()
{
    m_seconds += kTickMilliseconds / 1000.0;
    const double slow = std::sin(m_seconds / 20);
    const double quick = std::sin(m_seconds / 3);
    const auto input = QModbusDataUnit::InputRegisters;
    set(m_server, input, 0, encodeNumber(Encoding::Float32, 62500 + 20000 * slow));
    set(m_server, input, 2, encodeNumber(Encoding::Float32, 0.0001 * std::cos(m_seconds / 20)));
    set(m_server, input, 4, encodeNumber(Encoding::Int16, 215 + 12 * quick));
    set(m_server, input, 5, encodeNumber(Encoding::UInt16, 1013 + 25 * quick));
    set(m_server, input, 6, encodeNumber(Encoding::Float32, 480.0 - 153 * slow));
    set(m_server, input, 8, encodeNumber(Encoding::Float32, 27.5 + 4 * quick));
}

} // namespace zor::monitor
