#include <zor/monitor/link/tcp_link.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

struct SocketErrorRow {
    QAbstractSocket::SocketError error;
    Fault fault;
};

// The same words whatever language the libraries speak: they stand in the record.
constexpr std::array kSocketErrors{
    SocketErrorRow{QAbstractSocket::ConnectionRefusedError, Fault::Refused},
    SocketErrorRow{QAbstractSocket::RemoteHostClosedError, Fault::Closed},
    SocketErrorRow{QAbstractSocket::HostNotFoundError, Fault::NoHost},
    SocketErrorRow{QAbstractSocket::NetworkError, Fault::Network},
};

Fault faultOf(QAbstractSocket::SocketError error)
{
    const auto* const row = std::ranges::find(kSocketErrors, error, &SocketErrorRow::error);
    return row != kSocketErrors.end() ? row->fault : Fault::System;
}

} // namespace

TcpTransport::TcpTransport(QString host, quint16 port) : m_host(std::move(host)), m_port(port)
{
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    QObject::connect(&m_socket, &QTcpSocket::connected, &m_socket, [this] { onOpen(); });
    QObject::connect(&m_socket, &QTcpSocket::readyRead, &m_socket, [this] { onBytes(); });
    QObject::connect(&m_socket, &QTcpSocket::errorOccurred, &m_socket,
                     [this](auto error) { onFailure(faultOf(error), m_socket.errorString()); });
}

TcpTransport::~TcpTransport()
{
    m_socket.disconnect();
    m_socket.abort();
}

QString TcpTransport::description() const
{
    const bool bracketed = m_host.contains(':');
    return QString(bracketed ? "tcp://[%1]:%2" : "tcp://%1:%2").arg(m_host).arg(m_port);
}

void TcpTransport::open()
{
    m_socket.abort();
    m_socket.connectToHost(m_host, m_port);
}

void TcpTransport::write(const Bytes& bytes)
{
    m_socket.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
}

Bytes TcpTransport::read(std::size_t most)
{
    const QByteArray bytes = isOpen() ? m_socket.read(static_cast<qint64>(most)) : QByteArray();
    return {bytes.begin(), bytes.end()};
}

} // namespace zor::monitor
