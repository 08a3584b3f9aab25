#pragma once

#include <zor/monitor/data/codec.h>

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <vector>

namespace zor::tests {

/// A Modbus TCP device of 200 registers and 200 bits in which everything can go wrong.
class Peer : public QTcpServer {
public:
    Peer()
    {
        for (std::size_t i = 0; i < registers.size(); ++i)
            registers[i] = static_cast<std::uint16_t>(i);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = nextPendingConnection()) {
                sockets.push_back(socket);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { receive(*socket); });
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
        listen(QHostAddress::LocalHost);
    }

    /// Sends the reply to a request, or whatever else it likes.
    std::function<void(QTcpSocket&, const QByteArray& reply)> answer =
        [](QTcpSocket& socket, const QByteArray& reply) { socket.write(reply); };
    std::array<std::uint16_t, 200> registers{};
    std::array<bool, 200> bits{};
    bool masks = false; ///< knows the masked write
    /// Function codes of the requests so far.
    std::vector<int> functions;
    std::vector<QPointer<QTcpSocket>> sockets;

    /// Ends as a device without power does.
    void die()
    {
        close();
        for (const auto& socket : sockets) {
            if (socket != nullptr)
                socket->abort();
        }
    }
    void revive(quint16 port)
    {
        EXPECT_TRUE(listen(QHostAddress::LocalHost, port)) << "the port is somebody else's";
    }

private:
    void receive(QTcpSocket& socket)
    {
        while (socket.bytesAvailable() >= 8) {
            const QByteArray head = socket.peek(6);
            const auto size = 6 + static_cast<quint8>(head[5]);
            if (socket.bytesAvailable() < size)
                return;
            const QByteArray request = socket.read(size);
            functions.push_back(static_cast<quint8>(request[7]));
            answer(socket, reply(request));
        }
    }

    QByteArray reply(const QByteArray& request)
    {
        const auto word = [&](int at) {
            return static_cast<std::size_t>(static_cast<quint8>(request[at])) << 8U |
                   static_cast<quint8>(request[at + 1]);
        };
        const int function = static_cast<quint8>(request[7]);
        const std::size_t address = word(8);
        QByteArray pdu(1, request[7]);
        const bool one = function == 5 || function == 6 || function == 22 || function == 43;
        const std::size_t count = one ? 1 : word(10);
        if ((function == 22 && !masks) || function == 43) {
            pdu = QByteArray(1, static_cast<char>(function | 0x80)) + '\1';
        } else if (address + count > registers.size()) {
            pdu = QByteArray(1, static_cast<char>(function | 0x80)) + '\2';
        } else if (function == 22) {
            registers[address] =
                static_cast<std::uint16_t>((registers[address] & word(10)) | (word(12) & ~word(10)));
            pdu = request.mid(7);
        } else if (function == 1 || function == 2) {
            pdu += static_cast<char>((count + 7) / 8);
            pdu.append(static_cast<qsizetype>((count + 7) / 8), '\0');
            for (std::size_t i = 0; i < count; ++i)
                pdu[static_cast<qsizetype>(2 + i / 8)] |= static_cast<char>(bits[address + i] ? 1 << i % 8 : 0);
        } else if (function == 5 || function == 15) {
            for (std::size_t i = 0; i < count; ++i)
                bits[address + i] = function == 5
                                        ? request[10] != 0
                                        : (request[static_cast<qsizetype>(13 + i / 8)] >> i % 8 & 1) != 0;
            pdu = request.mid(7, 5);
        } else if (function == 3 || function == 4) {
            pdu += static_cast<char>(2 * count);
            for (std::size_t i = 0; i < count; ++i) {
                pdu += static_cast<char>(registers[address + i] >> 8U);
                pdu += static_cast<char>(registers[address + i] & 0xFFU);
            }
        } else {
            for (std::size_t i = 0; i < count; ++i)
                registers[address + i] =
                    static_cast<std::uint16_t>(word((function == 6 ? 10 : 13) + static_cast<int>(2 * i)));
            pdu = request.mid(7, 5);
        }
        QByteArray frame = request.left(4);
        frame += '\0';
        frame += static_cast<char>(pdu.size() + 1);
        frame += request[6];
        return frame + pdu;
    }
};

/// The ways in which a reply can be wrong.
struct Fault {
    const char* name;
    std::function<void(QTcpSocket&, QByteArray)> answer;
};

inline const std::vector<Fault>& faults()
{
    const auto changed = [](int at, int value) {
        return [at, value](QTcpSocket& socket, QByteArray reply) {
            reply[at] = static_cast<char>(value);
            socket.write(reply);
        };
    };
    static const std::vector<Fault> all{
        {"silence", [](QTcpSocket&, const QByteArray&) {}},
        {"cut in the middle of a frame",
         [](QTcpSocket& socket, const QByteArray& reply) {
             socket.write(reply.left(9));
             socket.flush();
             socket.abort();
         }},
        {"closed instead of answered", [](QTcpSocket& socket, const QByteArray&) { socket.close(); }},
        {"half a frame and silence",
         [](QTcpSocket& socket, const QByteArray& reply) { socket.write(reply.left(reply.size() - 1)); }},
        {"a header and silence", [](QTcpSocket& socket, const QByteArray& reply) { socket.write(reply.left(7)); }},
        {"late",
         [](QTcpSocket& socket, const QByteArray& reply) {
             QTimer::singleShot(450, &socket, [&socket, reply] { socket.write(reply); });
         }},
        {"a byte a second",
         [](QTcpSocket& socket, const QByteArray& reply) {
             for (int i = 0; i < reply.size(); ++i)
                 QTimer::singleShot(1000 * i, &socket, [&socket, reply, i] { socket.write(reply.mid(i, 1)); });
         }},
        {"another transaction", changed(1, 0xEE)},
        {"another protocol", changed(3, 1)},
        {"another unit", changed(6, 9)},
        {"another function", changed(7, 0x2B)},
        {"length 0", changed(5, 0)},
        {"length 1", changed(5, 1)},
        {"length too great", changed(4, 1)},
        {"length one less",
         [](QTcpSocket& socket, QByteArray reply) {
             reply[5] = static_cast<char>(reply[5] - 1);
             socket.write(reply);
         }},
        {"another byte count", changed(8, 0x7F)},
        {"one byte more", [](QTcpSocket& socket, const QByteArray& reply) { socket.write(reply + 'x'); }},
        {"the reply twice", [](QTcpSocket& socket, const QByteArray& reply) { socket.write(reply + reply); }},
        {"garbage", [](QTcpSocket& socket, const QByteArray&) { socket.write(QByteArray(100000, 'z')); }},
        {"an empty exception",
         [](QTcpSocket& socket, QByteArray reply) {
             reply.resize(8);
             reply[5] = 2;
             reply[7] = static_cast<char>(static_cast<quint8>(reply[7]) | 0x80U);
             socket.write(reply);
         }},
    };
    return all;
}

} // namespace zor::tests
