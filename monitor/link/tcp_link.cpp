#include <zor/monitor/link/tcp_link.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

constexpr int kHeader = 7;    ///< transaction, protocol, length, unit
constexpr int kLongest = 260; ///< of a frame
constexpr int kFewest = 2;    ///< the least that the length counts: unit and function

void put(QByteArray& bytes, unsigned word)
{
    bytes.append(static_cast<char>(word >> 8U & 0xFFU));
    bytes.append(static_cast<char>(word & 0xFFU));
}

unsigned word(const QByteArray& bytes, int at)
{
    return static_cast<unsigned>(static_cast<quint8>(bytes[at])) << 8U | static_cast<quint8>(bytes[at + 1]);
}

struct ErrorRow {
    QAbstractSocket::SocketError error;
    const char* reason;
};

// The same words whatever language the libraries speak: they stand in the record.
constexpr std::array kErrors{
    ErrorRow{QAbstractSocket::ConnectionRefusedError, "the connection was refused"},
    ErrorRow{QAbstractSocket::RemoteHostClosedError, "the device closed the connection"},
    ErrorRow{QAbstractSocket::HostNotFoundError, "there is no such host"},
    ErrorRow{QAbstractSocket::NetworkError, "the network does not reach the device"},
};

QString reasonOf(const QTcpSocket& socket)
{
    const auto* const row = std::ranges::find(kErrors, socket.error(), &ErrorRow::error);
    return row != kErrors.end() ? QString(row->reason) : socket.errorString();
}

} // namespace

TcpLink::TcpLink(QString host, quint16 port, std::uint8_t unit, int deadlineMilliseconds)
    : Link(deadlineMilliseconds), m_host(std::move(host)), m_port(port), m_unit(unit)
{
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(&m_socket, &QTcpSocket::connected, this, [this] {
        connected();
        write();
    });
    connect(&m_socket, &QTcpSocket::readyRead, this, [this] { receive(); });
    connect(&m_socket, &QTcpSocket::errorOccurred, this, [this] { fail(reasonOf(m_socket)); });
}

TcpLink::~TcpLink()
{
    m_socket.disconnect(this);
    m_socket.abort();
}

QString TcpLink::description() const
{
    const bool bracketed = m_host.contains(':');
    return QString(bracketed ? "tcp://[%1]:%2" : "tcp://%1:%2").arg(m_host).arg(m_port);
}

void TcpLink::transmit(const Request& /*request*/)
{
    if (isConnected())
        return write();
    m_socket.abort();
    m_socket.connectToHost(m_host, m_port);
}

void TcpLink::drop() { m_socket.abort(); }

bool TcpLink::isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }

void TcpLink::write()
{
    if (!isBusy())
        return;
    const std::vector<std::uint8_t> pdu = requestPdu(current());
    QByteArray frame;
    put(frame, ++m_transaction);
    put(frame, 0);
    put(frame, static_cast<unsigned>(pdu.size() + 1));
    frame.append(static_cast<char>(m_unit));
    for (const std::uint8_t byte : pdu)
        frame.append(static_cast<char>(byte));
    m_received.clear();
    sent();
    m_socket.write(frame);
}

void TcpLink::receive()
{
    if (!isBusy()) {
        // Nobody has asked.
        m_socket.abort();
        return;
    }
    m_received += m_socket.read(kLongest + 1 - m_received.size());
    judge();
}

void TcpLink::judge()
{
    // Each field is judged as soon as it is there; a frame that is wrong is not waited for.
    const auto size = static_cast<int>(m_received.size());
    if (size >= 2 && word(m_received, 0) != m_transaction)
        return fail("a reply to another transaction");
    if (size >= 4 && word(m_received, 2) != 0)
        return fail("a reply in another protocol");
    if (size < 6)
        return;
    const auto length = static_cast<int>(word(m_received, 4));
    if (length < kFewest + 1 || length > kLongest - kHeader + 1)
        return fail("a reply of an impossible length");
    if (size >= kHeader && static_cast<quint8>(m_received[6]) != m_unit)
        return fail("a reply from another unit");
    const int whole = kHeader - 1 + length;
    if (size > whole)
        return fail("more bytes than the reply has");
    if (size < whole)
        return;
    std::vector<std::uint8_t> pdu(static_cast<std::size_t>(whole - kHeader));
    std::copy(m_received.cbegin() + kHeader, m_received.cend(), pdu.begin());
    finish(judgeReply(current(), pdu));
}

} // namespace zor::monitor
