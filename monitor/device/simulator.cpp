#include <zor/monitor/device/simulator.h>
#include <zor/monitor/link/modbus.h>

#include <QModbusDeviceIdentification>
#include <QTcpServer>
#include <QTcpSocket>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zor::monitor {
namespace {

constexpr int kTickMilliseconds = 200;

// In the order of Bank.
constexpr std::array kServedTypes{QModbusDataUnit::HoldingRegisters, QModbusDataUnit::InputRegisters,
                                  QModbusDataUnit::Coils, QModbusDataUnit::DiscreteInputs};

struct AccessRow {
    int function;
    Bank bank;
    bool one; ///< has no count
};

constexpr std::array kServedAccesses{
    AccessRow{1, Bank::Coil, false},  AccessRow{2, Bank::Discrete, false}, AccessRow{3, Bank::Holding, false},
    AccessRow{4, Bank::Input, false}, AccessRow{5, Bank::Coil, true},      AccessRow{6, Bank::Holding, true},
    AccessRow{15, Bank::Coil, false}, AccessRow{16, Bank::Holding, false}, AccessRow{22, Bank::Holding, true},
};

QModbusDataUnit::RegisterType typeOf(Bank bank) { return kServedTypes[static_cast<std::size_t>(bank)]; }

/// A port that is free now.
int freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}

} // namespace

QModbusResponse SimulatedServer::processRequest(const QModbusPdu& request)
{
    quint16 address = 0;
    quint16 count = 0;
    const auto code = static_cast<int>(request.functionCode());
    const auto* const access = std::ranges::find(kServedAccesses, code, &AccessRow::function);
    if (access != kServedAccesses.end() && request.dataSize() >= 4) {
        request.decodeData(&address, &count);
        const int end = address + (access->one ? 1 : count);
        const bool refused = std::ranges::any_of(absent, [&](const Location& location) {
            return access->bank == location.bank && location.address < end &&
                   location.address + location.registers > address;
        });
        if (refused)
            return {static_cast<QModbusPdu::FunctionCode>(code | QModbusPdu::ExceptionByte),
                    static_cast<quint8>(QModbusExceptionResponse::IllegalDataAddress)};
    }
    return QModbusTcpServer::processRequest(request);
}

Simulator::Simulator(const ParameterFile& file, int port) : m_file(file), m_port(port != 0 ? port : freePort())
{
    std::array<int, kServedTypes.size()> ends{1, 1, 1, 1};
    const auto reach = [&](const Location& location) {
        int& end = ends[static_cast<std::size_t>(location.bank)];
        end = std::max(end, location.address + location.registers);
    };
    for (const Parameter& parameter : file.parameters) {
        reach(parameter.location);
        if (parameter.simulation.absent)
            m_server.absent.push_back(parameter.location);
    }
    for (const auto& part : {file.identity.type, file.identity.version}) {
        if (part)
            reach(*part);
    }
    QModbusDataUnitMap map;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        // A unit counts with 16 bits, so the last address of all cannot be had.
        map.insert(kServedTypes[i], {kServedTypes[i], 0, static_cast<quint16>(std::min(ends[i], 65535))});
    }
    m_server.setMap(map);
    m_server.setServerAddress(1);
    m_server.setConnectionParameter(QModbusDevice::NetworkAddressParameter, "127.0.0.1");
    m_server.setConnectionParameter(QModbusDevice::NetworkPortParameter, m_port);
    connect(&m_clock, &QTimer::timeout, this, [this] { tick(); });
    fill();
}

bool Simulator::start()
{
    m_clock.start(kTickMilliseconds);
    return m_server.connectDevice();
}

void Simulator::stop()
{
    m_clock.stop();
    // The server frees what it holds for a connection when the socket ends, which must be before it does itself.
    for (QTcpSocket* socket : m_server.findChildren<QTcpSocket*>()) {
        socket->abort();
        delete socket;
    }
    m_server.disconnectDevice();
}

Registers Simulator::registers(Bank bank, int address, int count)
{
    QModbusDataUnit unit(typeOf(bank), address, static_cast<quint16>(count));
    m_server.data(&unit);
    QList<quint16> values = unit.values();
    // Qt keeps a coil as it was written.
    if (holdsBits(bank))
        std::ranges::transform(values, values.begin(), [](quint16 word) { return word != 0 ? 1 : 0; });
    return {values.begin(), values.end()};
}

void Simulator::setRegisters(Bank bank, int address, const Registers& values)
{
    m_server.setData(QModbusDataUnit(typeOf(bank), address, QList<quint16>(values.begin(), values.end())));
}

void Simulator::set(const Parameter& parameter, double seconds)
{
    const Location& location = parameter.location;
    const Simulation& simulation = parameter.simulation;
    if (location.type == ValueType::Bit) {
        const Registers now = registers(location.bank, location.address, 1);
        const std::uint32_t bit = simulation.value != 0 ? 1 : 0;
        setRegisters(location.bank, location.address, mergeBits(location, now, 1, bit));
        return;
    }
    const double angle = 2 * std::numbers::pi * seconds / simulation.period;
    const Variant value = location.type == ValueType::Text
                              ? Variant(simulation.text)
                              : Variant(simulation.value + simulation.swing * std::sin(angle));
    const Encoded encoded = encode(parameter, value);
    if (encoded.unfit == Unfit::No)
        setRegisters(location.bank, location.address, encoded.registers);
}

void Simulator::fill()
{
    for (const Parameter& parameter : m_file.parameters)
        set(parameter, 0);
    const auto identify = [&](const std::optional<Location>& part, const std::string& text) {
        if (!part)
            return;
        if (part->type == ValueType::Text) {
            Parameter place;
            place.location = *part;
            return setRegisters(part->bank, part->address, encode(place, text).registers);
        }
        // A version in numbers: one to a register.
        Registers numbers(part->registers, 0);
        std::size_t at = 0;
        for (const QString& number : QString::fromStdString(text).split('.')) {
            if (at < numbers.size())
                numbers[at++] = number.toUShort();
        }
        setRegisters(part->bank, part->address, numbers);
    };
    identify(m_file.identity.type, m_file.identity.simulatedType.text);
    identify(m_file.identity.version, m_file.identity.simulatedVersion.text);
    QModbusDeviceIdentification own;
    own.insert(QModbusDeviceIdentification::VendorNameObjectId, "ZorSmartControls");
    own.insert(QModbusDeviceIdentification::ProductCodeObjectId, m_file.identity.simulatedType.text.c_str());
    own.insert(QModbusDeviceIdentification::MajorMinorRevisionObjectId,
               m_file.identity.simulatedVersion.text.c_str());
    m_server.setValue(QModbusServer::DeviceIdentification, QVariant::fromValue(own));
}

void Simulator::tick()
{
    m_seconds += kTickMilliseconds / 1000.0;
    for (const Parameter& parameter : m_file.parameters) {
        if (parameter.simulation.swing != 0)
            set(parameter, m_seconds);
    }
}

} // namespace zor::monitor
