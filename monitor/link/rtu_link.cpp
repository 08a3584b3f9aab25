#include <zor/monitor/link/rtu_link.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

struct ErrorRow {
    QSerialPort::SerialPortError error;
    Fault fault;
};

constexpr std::array kErrors{
    ErrorRow{QSerialPort::DeviceNotFoundError, Fault::NoPort},
    ErrorRow{QSerialPort::PermissionError, Fault::PortDenied},
    ErrorRow{QSerialPort::ResourceError, Fault::PortLost},
};

Fault faultOf(QSerialPort::SerialPortError error)
{
    const auto* const row = std::ranges::find(kErrors, error, &ErrorRow::error);
    return row != kErrors.end() ? row->fault : Fault::System;
}

/// Three and a half characters, by which the units of a line tell where a frame ends.
int silenceAt(int baud)
{
    constexpr int kBits = 7 * 11 / 2; // of 3.5 characters, rounded down
    constexpr int kShortest = 2;
    constexpr int kSecond = 1000;
    return std::max(kShortest, kBits * kSecond / baud + 1);
}

} // namespace

RtuTransport::RtuTransport(const SerialSettings& settings) : m_silence(silenceAt(settings.baud))
{
    m_port.setPortName(settings.device);
    m_port.setBaudRate(settings.baud);
    m_port.setDataBits(QSerialPort::Data8);
    m_port.setParity(static_cast<QSerialPort::Parity>(settings.parity));
    m_port.setStopBits(static_cast<QSerialPort::StopBits>(settings.stopBits));
    QObject::connect(&m_port, &QSerialPort::readyRead, &m_port, [this] { onBytes(); });
    QObject::connect(&m_port, &QSerialPort::errorOccurred, &m_port, [this](auto error) {
        if (error != QSerialPort::NoError)
            onFailure(faultOf(error), m_port.errorString());
    });
}

RtuTransport::~RtuTransport()
{
    m_port.disconnect();
    close();
}

void RtuTransport::open()
{
    if (!m_port.open(QIODevice::ReadWrite))
        return;
    // What came while nobody listened belongs to nobody.
    m_port.clear();
    onOpen();
}

void RtuTransport::close()
{
    if (m_port.isOpen())
        m_port.close();
}

void RtuTransport::write(const Bytes& bytes)
{
    m_port.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
}

Bytes RtuTransport::read(std::size_t most)
{
    const QByteArray bytes = m_port.isOpen() ? m_port.read(static_cast<qint64>(most)) : QByteArray();
    return {bytes.begin(), bytes.end()};
}

} // namespace zor::monitor
