// The connection against a peer that misbehaves, over real TCP and over a pseudo-terminal.

#include <zor/monitor/link/tcp_link.h>
#include <zor/monitor/scan/scanner.h>
#include <zor/tests/monitor/peer.h>
#include <zor/tests/monitor/times.h>

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTest>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace zor::monitor {
namespace {

using tests::kDeadline;
using tests::kPatience;

Reply ask(Link& link, const Request& request)
{
    std::optional<Reply> heard;
    link.send(request, [&](const Reply& reply) { heard = reply; });
    EXPECT_FALSE(heard) << "heard before send() has returned";
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard.has_value(); }, kPatience));
    return heard.value_or(Reply{});
}

const Request kRead{Function::ReadHolding, 20, 3};

TEST(TcpLink, TakesNothingThatIsNotTheReplyAndRecovers)
{
    tests::Peer peer;
    const auto good = peer.answer;
    TcpLink link("127.0.0.1", peer.serverPort(), 1, kDeadline);
    for (const tests::Fault& fault : tests::faults()) {
        for (const Request& request : {kRead, writeRequest(40, {7}), writeRequest(40, {7, 8})}) {
            SCOPED_TRACE(std::string(fault.name) + ", function " +
                         std::to_string(static_cast<int>(request.function)));
            peer.answer = fault.answer;
            const std::size_t before = peer.functions.size();
            const Reply reply = ask(link, request);
            EXPECT_EQ(reply.outcome, Outcome::NoAnswer);
            EXPECT_FALSE(reply.reason.empty());
            EXPECT_EQ(peer.functions.size(), before + 1) << "sent a second time";
            peer.answer = good;
            const Reply next = ask(link, kRead);
            EXPECT_EQ(next.outcome, Outcome::Answered);
            EXPECT_EQ(next.registers, (Registers{20, 21, 22}));
        }
    }
}

/// Sends reads of one register at 10, 11 ... and waits for all.
std::vector<Reply> askMany(Link& link, int count)
{
    std::vector<Reply> replies(static_cast<std::size_t>(count));
    int heard = 0;
    for (int i = 0; i < count; ++i)
        link.send({Function::ReadHolding, static_cast<std::uint16_t>(10 + i), 1}, [&, i](const Reply& reply) {
            replies[static_cast<std::size_t>(i)] = reply;
            ++heard;
        });
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard == count; }, kPatience));
    return replies;
}

TEST(TcpLink, SeveralReadsUnderWaySufferNoMoreFromAFaultThanOne)
{
    tests::Peer peer;
    const auto good = peer.answer;
    TcpLink link("127.0.0.1", peer.serverPort(), 1, kDeadline);
    link.setManners({0, 0, 4});
    for (const tests::Fault& fault : tests::faults()) {
        SCOPED_TRACE(fault.name);
        (void)ask(link, kRead);
        bool isFirst = true;
        peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
            if (std::exchange(isFirst, false))
                fault.answer(socket, reply);
            else
                good(socket, reply);
        };
        const std::vector<Reply> replies = askMany(link, 6);
        int failures = 0;
        for (std::size_t i = 0; i < replies.size(); ++i) {
            failures += replies[i].outcome == Outcome::Answered ? 0 : 1;
            EXPECT_TRUE(replies[i].outcome == Outcome::NoAnswer ||
                        replies[i].registers == Registers{std::uint16_t(10 + i)})
                << i;
        }
        EXPECT_LE(failures, 1);
        peer.answer = good;
    }
}

// A reply of one register has 11 bytes: one of six that lacks as many takes the whole next one for its end.
TEST(TcpLink, ACutReplyIsNotTakenForAWholeOneWhateverComesBehindIt)
{
    tests::Peer peer;
    TcpLink link("127.0.0.1", peer.serverPort(), 1, kDeadline);
    link.setManners({0, 0, 2});
    int missing = 0; // of the next reply
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        socket.write(reply.chopped(std::exchange(missing, 0)));
    };
    for (const int cut : {1, 10, 11}) {
        (void)ask(link, kRead);
        missing = cut;
        Reply cutOne;
        link.send({Function::ReadHolding, 20, 6}, [&](const Reply& reply) { cutOne = reply; });
        const Reply next = ask(link, {Function::ReadHolding, 10, 1});
        EXPECT_TRUE(QTest::qWaitFor([&] { return link.pending() == 0; }, kPatience));
        EXPECT_TRUE(cutOne.registers.empty() || cutOne.registers == (Registers{20, 21, 22, 23, 24, 25})) << cut;
        EXPECT_TRUE(next.registers.empty() || next.registers == Registers{10}) << cut;
    }
}

TEST(TcpLink, TakesRepliesInAnyOrderAndWritesAlone)
{
    tests::Peer peer;
    std::vector<QByteArray> held;
    std::size_t most = 0;
    QTimer flush;
    flush.setSingleShot(true);
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        held.push_back(reply);
        most = std::max(most, held.size());
        EXPECT_TRUE(held.size() == 1 || (held.front()[7] == 3 && reply[7] == 3)) << "a write is not alone";
        flush.disconnect();
        QObject::connect(&flush, &QTimer::timeout, &socket, [&] {
            QByteArray all;
            for (const QByteArray& one : std::exchange(held, {}))
                all.prepend(one);
            socket.write(all);
        });
        flush.start(20);
    };
    TcpLink link("127.0.0.1", peer.serverPort(), 1, kDeadline);
    link.setManners({0, 0, 3});
    Outcome written = Outcome::NoAnswer;
    (void)ask(link, kRead);
    link.send(kRead, [](const Reply&) {});
    link.send(writeRequest(40, {7}), [&](const Reply& reply) { written = reply.outcome; });
    for (const Reply& reply : askMany(link, 5))
        EXPECT_EQ(reply.outcome, Outcome::Answered);
    EXPECT_EQ(written, Outcome::Answered);
    EXPECT_EQ(most, 3U);
}

TEST(TcpLink, ReadsAreRetriedAndPausedAsToldWritesNever)
{
    tests::Peer peer;
    const auto good = peer.answer;
    int silent = 0;
    QElapsedTimer clock;
    std::vector<qint64> times;
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        times.push_back(clock.elapsed());
        if (silent-- <= 0)
            good(socket, reply);
    };
    TcpLink link("127.0.0.1", peer.serverPort(), 1, 100);
    link.setManners({60, 2, 1});
    silent = 2;
    EXPECT_EQ(ask(link, kRead).outcome, Outcome::Answered);
    silent = 1;
    EXPECT_EQ(ask(link, writeRequest(40, {7})).outcome, Outcome::NoAnswer);
    EXPECT_EQ(peer.functions, (std::vector<int>{3, 3, 3, 6}));
    times.clear();
    clock.start();
    (void)askMany(link, 3);
    ASSERT_EQ(times.size(), 3U);
    EXPECT_GE(times[2] - times[0], 118);
    silent = 9;
    link.send(kRead, [](const Reply& reply) { EXPECT_EQ(reply.outcome, Outcome::NoAnswer); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return times.size() > 3; }, kPatience));
    tests::Peer other;
    link.connectTo(std::make_unique<TcpTransport>("127.0.0.1", other.serverPort()), 1);
    EXPECT_EQ(ask(link, kRead).outcome, Outcome::Answered);
    EXPECT_EQ(other.functions.size(), 1U);
}

TEST(TcpLink, ComparesTheEchoOfAWrite)
{
    tests::Peer peer;
    TcpLink link("127.0.0.1", peer.serverPort(), 1, kDeadline);
    for (const int at : {8, 9, 10, 11}) {
        peer.answer = [at](QTcpSocket& socket, QByteArray reply) {
            reply[at] = static_cast<char>(reply[at] ^ 4);
            socket.write(reply);
        };
        EXPECT_EQ(ask(link, writeRequest(40, {7})).outcome, Outcome::NoAnswer) << at;
        EXPECT_EQ(ask(link, writeRequest(40, {7, 8})).outcome, Outcome::NoAnswer) << at;
    }
}

TEST(TcpLink, KnowsARefusalFromSilenceAndWhatWasNeverSent)
{
    tests::Peer peer;
    const quint16 port = peer.serverPort();
    TcpLink link("127.0.0.1", port, 1, kDeadline);
    const Reply refused = ask(link, {Function::ReadInput, 199, 2});
    EXPECT_EQ(refused.outcome, Outcome::Refused);
    EXPECT_EQ(refused.exception, 2);
    peer.die();
    QTest::qWait(50);
    EXPECT_EQ(ask(link, writeRequest(40, {7})).outcome, Outcome::NotSent);
    peer.revive(port);
    EXPECT_EQ(ask(link, kRead).outcome, Outcome::Answered);
    EXPECT_EQ(peer.registers[40], 40) << "a write that was not sent arrived";
    EXPECT_EQ(link.reads().requests, 2U);
    EXPECT_EQ(link.reads().failures, 1U);
}

TEST(TcpLink, EndsWithAReplyPending)
{
    tests::Peer peer;
    peer.answer = [](QTcpSocket&, const QByteArray&) {};
    auto link = std::make_unique<TcpLink>("127.0.0.1", peer.serverPort(), 1, kDeadline);
    link->send(kRead, [](const Reply&) { ADD_FAILURE() << "heard after the end"; });
    link->send(kRead, [](const Reply&) { ADD_FAILURE() << "heard after the end"; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return !peer.functions.empty(); }, kPatience));
    link.reset();
    QTest::qWait(2 * kDeadline);
}

TEST(DeviceAddress, IsReadOrRefusedWithAReason)
{
    for (const char* address : {"tcp://127.0.0.1:5020?unit=3", "127.0.0.1:5020", "host", "tcp://[::1]:502",
                                "rtu:/dev/ttyS9?unit=7&baud=9600&parity=none&stop=2"})
        EXPECT_NO_THROW((void)openLink(address, kDeadline)) << address;
    for (const char* address :
         {"", "tcp://", "udp://h:1", "h:0", "h:70000", "tcp://h:1?unit=256", "tcp://h:1?unit=1&unit=2",
          "tcp://h:1?baud=9600", "tcp://h:1/x", "rtu:", "rtu:/dev/x?parity=some", "rtu:/dev/x?stop=3"})
        EXPECT_THROW((void)openLink(address, kDeadline), AddressError) << address;
}

// --- Serial

unsigned crc(const QByteArray& bytes)
{
    unsigned sum = 0xFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? sum >> 1U ^ 0xA001U : sum >> 1U;
    }
    return sum;
}

/// The other end of a serial line.
struct SerialPeer {
    SerialPeer() : handle(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        EXPECT_EQ(grantpt(handle) | unlockpt(handle), 0);
        notifier = std::make_unique<QSocketNotifier>(handle, QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] {
            std::array<char, 256> bytes{};
            const auto count = read(handle, bytes.data(), bytes.size());
            heard.append(bytes.data(), count > 0 ? count : 0);
            if (heard.size() >= size)
                send(answer);
        });
    }
    ~SerialPeer() { close(handle); }
    void send(QByteArray frame)
    {
        heard.clear();
        if (frame.isEmpty())
            return;
        const unsigned sum = crc(frame) ^ wrong;
        frame += static_cast<char>(sum & 0xFFU);
        frame += static_cast<char>(sum >> 8U);
        EXPECT_EQ(write(handle, frame.data(), static_cast<std::size_t>(frame.size())), frame.size());
    }

    int handle;
    unsigned wrong = 0;
    int size = 8; ///< of a request
    QByteArray heard;
    QByteArray answer;
    std::unique_ptr<QSocketNotifier> notifier;
};

TEST(RtuLink, ReadsAndJudgesAsOnTcp)
{
    SerialPeer peer;
    const auto link = openLink(QString("rtu:%1?unit=5&parity=none").arg(ptsname(peer.handle)), 500);
    const Request read{Function::ReadHolding, 20, 2};
    const auto hex = [](const char* text) { return QByteArray::fromHex(text); };
    peer.answer = hex("0503 04 0102 FFFE");
    const Reply reply = ask(*link, read);
    EXPECT_EQ(reply.outcome, Outcome::Answered) << reply.reason;
    EXPECT_EQ(reply.registers, (Registers{0x0102, 0xFFFE}));
    peer.answer = hex("0583 02");
    const Reply refused = ask(*link, read);
    EXPECT_EQ(refused.exception, 2) << refused.reason;
    peer.answer = hex("0506 0028 0007");
    EXPECT_EQ(ask(*link, writeRequest(40, {7})).outcome, Outcome::Answered);
    peer.answer = hex("0506 0028 0008");
    EXPECT_EQ(ask(*link, writeRequest(40, {7})).outcome, Outcome::NoAnswer) << "the echo differs";
    peer.answer = hex("0603 04 0102 FFFE");
    EXPECT_EQ(ask(*link, read).outcome, Outcome::NoAnswer) << "another unit";
    peer.answer = hex("0503 02 0102");
    EXPECT_EQ(ask(*link, read).outcome, Outcome::NoAnswer) << "fewer registers";
    peer.answer = QByteArray();
    EXPECT_EQ(ask(*link, read).outcome, Outcome::NoAnswer) << "silence";
    peer.answer = hex("0503 04 0102 FFFE");
    peer.wrong = 1;
    EXPECT_EQ(ask(*link, read).outcome, Outcome::NoAnswer) << "a wrong checksum";
    peer.wrong = 0;
    EXPECT_EQ(ask(*link, read).registers, (Registers{0x0102, 0xFFFE})) << "recovers";
    EXPECT_EQ(ask(*openLink("rtu:/dev/there-is-none", 500), read).fault, Fault::NoPort);
}

TEST(RtuLink, IsScannedWithEachSettingInTurn)
{
    SerialPeer peer; // the identification, a shorter request, it does not answer
    peer.answer = QByteArray::fromHex("0504 02 0102");
    const ParameterFile file = readParameterFile(
        R"({"parameters": [{"tag": "A", "bank": "input", "address": 0, "type": "uint16"}]})", "test");
    Scanner scanner(scanLines(QString("rtu:%1?unit=4-6&baud=9600,19200&parity=none").arg(ptsname(peer.handle))),
                    file, kDeadline);
    QStringList hits;
    bool over = false;
    scanner.onHit = [&](const ScanHit& hit) { hits.append(hit.address.section('?', 1)); };
    scanner.onTrouble = [](const QString&, const Reply& reply) { ADD_FAILURE() << reply.reason; };
    scanner.onProgress = [](int, int) {};
    scanner.onDone = [&] { over = true; };
    scanner.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return over; }, kPatience));
    EXPECT_EQ(hits.join("; "), "baud=9600&parity=none&unit=5; baud=19200&parity=none&unit=5");
}

TEST(RtuLink, TakesNoReplyThatComesLate)
{
    SerialPeer peer;
    const auto link = openLink(QString("rtu:%1?parity=none").arg(ptsname(peer.handle)), 100);
    EXPECT_EQ(ask(*link, kRead).outcome, Outcome::NoAnswer);
    link->send(kRead, [](const Reply& reply) { EXPECT_EQ(reply.outcome, Outcome::NoAnswer); });
    QTest::qWait(50);
    peer.send(QByteArray::fromHex("0103 06 0001 0002 0003"));
    QTest::qWait(250);
    peer.size = 7;
    peer.answer = QByteArray::fromHex("012B 0E 01 01 00 00 01 00 03 414243");
    const Reply reply = ask(*link, identifyRequest());
    EXPECT_EQ(reply.texts.at(0), "ABC") << reply.reason;
}

} // namespace
} // namespace zor::monitor
