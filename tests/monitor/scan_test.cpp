// Looking for devices: what is asked, what is found, and what becomes of it when a device dies meanwhile.

#include <zor/monitor/scan/scan_command.h>
#include <zor/tests/monitor/session_fixture.h>

#include <QProcess>
#include <QRegularExpression>

namespace zor::monitor {
namespace {

using tests::Host;
using tests::Peer;

TEST(ScanLines, AreWhatTheAddressSaysOrRefused)
{
    struct Row {
        const char* address;
        const char* lines; ///< nullptr: refused
    };
    for (const Row& row : {
             Row{"127.0.0.1:5020", "127.0.0.1:5020 1"},
             Row{"tcp://host?unit=3-5,9,4", "tcp://host 3 4 5 9"},
             Row{"rtu:/dev/x?unit=7&baud=9600,19200&parity=even,none",
                 "rtu:/dev/x?baud=9600&parity=even 7; rtu:/dev/x?baud=9600&parity=none 7; "
                 "rtu:/dev/x?baud=19200&parity=even 7; rtu:/dev/x?baud=19200&parity=none 7"},
             Row{"host?unit=256", nullptr},
             Row{"rtu:/dev/x?unit=0-3", nullptr},
             Row{"host?unit=", nullptr},
             Row{"host?unit=5-3", nullptr},
             Row{"host?unit=1-", nullptr},
             Row{"host?baud=9600", nullptr},
             Row{"rtu:/dev/x?parity=even,some", nullptr},
             Row{"192.168.1.0/24", nullptr},
             Row{"", nullptr},
         }) {
        QStringList lines;
        try {
            for (const ScanLine& line : scanLines(row.address)) {
                lines.append(line.address);
                for (const std::uint8_t unit : line.units)
                    lines.last() += ' ' + QString::number(unit);
            }
            EXPECT_EQ(lines.join("; ").toStdString(), row.lines != nullptr ? row.lines : "") << row.address;
        } catch (const AddressError&) {
            EXPECT_EQ(row.lines, nullptr) << row.address;
        }
    }
    EXPECT_EQ(scanLines("rtu:/dev/x").at(0).units.size(), 247U);
}

struct Scan : testing::Test {
    /// Scans and waits for the end; each hit and trouble is a line.
    std::string of(const QString& address)
    {
        Scanner scanner(scanLines(address), file, 100);
        std::string said;
        bool over = false;
        scanner.onHit = [&](const ScanHit& hit) {
            said +=
                hit.address.section('?', 1).toStdString() + ' ' + hit.version + ' ' + identificationOf(hit) + "; ";
        };
        scanner.onTrouble = [&](const QString&, const Reply& reply) { said += reply.reason + "; "; };
        scanner.onProgress = [&](int done, int total) {
            EXPECT_LE(done, total);
            if (done == cancelAt)
                scanner.cancel();
        };
        scanner.onDone = [&] { over = true; };
        scanner.start();
        EXPECT_EQ(Host::until([&] { return over || !scanner.isRunning(); }), true);
        EXPECT_EQ(over, cancelAt < 0);
        return said;
    }

    const ParameterFile file = readParameterFile(tests::kParameters, "test");
    int cancelAt = -1;
};

TEST_F(Scan, FindsTheUnitsBehindAGatewayAndGoesOnWithoutTheOthers)
{
    Peer peer;
    const auto good = peer.answer;
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[6] == 2 || reply[6] == 4)
            return good(socket, reply);
        if (reply[6] != 3)
            socket.write(reply.left(5) + '\3' + reply.mid(6, 2).replace(1, 1, "\x84") + '\x0B');
    };
    const QString address = QString("127.0.0.1:%1?unit=1-5").arg(peer.serverPort());
    EXPECT_EQ(of(address), "unit=2 2.3 ; unit=4 2.3 ; ");
    cancelAt = 2;
    EXPECT_EQ(of(address), "unit=2 2.3 ; ");
    cancelAt = -1;
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[6] == 2 && (reply[7] & 0x7F) == 43)
            peer.die();
        else
            good(socket, reply);
    };
    EXPECT_EQ(of(address), "unit=1 2.3 ; unit=2 2.3 ; the connection was refused; ");
}

TEST(ScanCommand, PrintsWhatAServerByOthersSaysOfItself)
{
    QTcpServer probe;
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
    const QString port = QString::number(probe.serverPort());
    probe.close();
    QProcess server;
    server.start("/usr/bin/python3", {ZOR_TEST_DATA "/../monitor/pymodbus_server.py", port});
    QByteArray said;
    ASSERT_TRUE(Host::until([&] { return (said += server.readAllStandardOutput()).contains("ready"); }));
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(ZOR_MONITOR, {"--scan", "127.0.0.1:" + port + "?unit=1-4", "127.0.0.1:1"});
    ASSERT_TRUE(program.waitForFinished());
    const QString out = QString::fromUtf8(program.readAll()).replace(QRegularExpression("\\d+ ms"), "N ms");
    EXPECT_EQ(program.exitCode(), 0);
    for (const int unit : {1, 3})
        EXPECT_TRUE(
            out.contains(QString("127.0.0.1:%1?unit=%2  ?d?e?f?g?h?i?j?k  108.109  Maker P-1 2.0  (N ms)\n")
                             .arg(port)
                             .arg(unit)))
            << out.toStdString();
    EXPECT_FALSE(out.contains("unit=2") || out.contains("unit=4")) << out.toStdString();
    EXPECT_TRUE(out.contains("127.0.0.1:1: the connection was refused\nThe host is there")) << out.toStdString();
    server.kill();
    server.waitForFinished();
}

} // namespace
} // namespace zor::monitor
