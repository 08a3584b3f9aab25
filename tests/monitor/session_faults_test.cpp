// A host's work, without a window, against a device that does not do what it should.

#include <zor/tests/monitor/session_fixture.h>

namespace zor::monitor {
namespace {

using tests::Host;
using tests::kPeriod;
using tests::only;
using tests::Peer;
using tests::SessionTest;

TEST(Sessions, EveryFaultIsACommunicationFailureAndHealsByItself)
{
    for (const tests::Fault& fault : tests::faults()) {
        SCOPED_TRACE(fault.name);
        Peer peer;
        const auto good = peer.answer;
        Host host(peer.serverPort());
        host.run({"Level", "Limit", "Missing"});
        host.type("Limit", "5");
        qint64 longest = 0;
        QElapsedTimer pause;
        QTimer beat;
        QObject::connect(&beat, &QTimer::timeout, &beat, [&] { longest = std::max(longest, pause.restart()); });
        pause.start();
        beat.start(10);
        peer.answer = fault.answer;
        EXPECT_TRUE(host.until([&] {
            return std::ranges::all_of(host.controls, [](const auto& control) { return control->CFail(); });
        }));
        EXPECT_EQ(host.text("Limit"), "5");
        peer.answer = good;
        peer.registers[10] = 99;
        EXPECT_TRUE(host.until([&] { return host.text("Level") == "99" && !host.box("Level").CFail(); }));
        EXPECT_TRUE(host.untilLive());
        EXPECT_EQ(host.text("Limit"), "5") << "the edit was lost";
        EXPECT_LT(longest, 1000) << "the window would have stopped painting";
    }
}

TEST(Sessions, AnExceptionIsWaitedForReportedOrAFailure)
{
    struct Row {
        char exception;
        bool cFail;
        bool noData;
        bool waiting;
    };
    for (const Row& row : {Row{1, false, true, false}, Row{2, false, true, false}, Row{4, false, true, false},
                           Row{5, false, true, true}, Row{6, false, true, true}, Row{10, true, false, false},
                           Row{11, true, false, false}}) {
        SCOPED_TRACE("exception " + std::to_string(row.exception));
        Peer peer;
        const auto good = peer.answer;
        Host host(peer.serverPort());
        host.run({"Level"});
        peer.answer = [&row](QTcpSocket& socket, const QByteArray& reply) {
            socket.write(reply.left(5) + '\3' + reply[6] +
                         static_cast<char>(static_cast<quint8>(reply[7]) | 0x80U) + row.exception);
        };
        core::Control& level = host.box("Level");
        EXPECT_TRUE(host.until([&] {
            return level.CFail() == row.cFail && level.DataNotAvailable() == row.noData &&
                   level.WaitingForData() == row.waiting;
        }));
        peer.answer = good;
        EXPECT_TRUE(
            host.until([&] { return !level.CFail() && !level.DataNotAvailable() && !level.WaitingForData(); }));
    }
}

TEST_F(SessionTest, OneSilentParameterHoldsUpNobody)
{
    host.boxes["Far"] = host.add("ctx_ZorTextBox", "Far");
    peer.answer = [](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[7] != 4)
            socket.write(reply);
    };
    host.boxes["Level"] = host.add("ctx_ZorTextBox", "Level");
    for (const auto& control : host.controls)
        host.session->bind(*control);
    host.session->start(kPeriod);
    EXPECT_TRUE(host.until([&] { return host.text("Far") == "150.000" && host.box("Level").CFail(); }));
    peer.registers[150] = 3;
    EXPECT_TRUE(host.until([&] { return host.text("Far") == "3.000"; }));
    EXPECT_FALSE(host.box("Far").CFail());
}

TEST(Sessions, ARestartDuringAWriteLosesNothing)
{
    Peer peer;
    const quint16 port = peer.serverPort();
    const auto good = peer.answer;
    Host host(port);
    host.run({"Limit"});
    host.type("Limit", "5");
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[7] != 6)
            return good(socket, reply);
        peer.registers[20] = 20;
        peer.die();
    };
    EXPECT_EQ(only(host.write()), WriteOutcome::Unconfirmed);
    EXPECT_EQ(host.text("Limit"), "5");
    peer.answer = good;
    peer.revive(port);
    EXPECT_TRUE(host.untilLive());
    EXPECT_TRUE(host.get("Limit", "DataModified").toBoolean());
    EXPECT_EQ(only(host.write()), WriteOutcome::Written);
    EXPECT_EQ(peer.registers[20], 5);
}

TEST(Sessions, ASlowDeviceIsWaitedForAndHoldsUpNoOperator)
{
    std::string parameters = R"({"tag": "Level", "bank": "input", "address": 10, "type": "uint16"})";
    std::vector<std::string> tags;
    for (int address = 0; address < 200; address += 20) { // too far from each other for one request
        tags.push_back(std::to_string(address));
        parameters += R"(, {"tag": ")" + tags.back() + R"(", "bank": "holding", "address": )" + tags.back() +
                      R"(, "type": "uint16", "access": "write"})";
    }
    Peer peer;
    const auto good = peer.answer;
    Host host(peer.serverPort(), nullptr, (R"({"parameters": [)" + parameters + "]}").c_str());
    host.boxes["Level"] = host.add("ctx_ZorTextBox", "Level");
    host.run(tags);
    host.session->link().setDeadline(10 * kPeriod);
    host.rounds(); // what is under way has the deadline of its start
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        QTimer::singleShot(3 * kPeriod, &socket, [&socket, reply] { socket.write(reply); });
    };
    EXPECT_TRUE(host.until([&] { return host.box("Level").WaitingForData(); }));
    EXPECT_FALSE(host.box("Level").CFail());
    for (const std::string& tag : tags) {
        host.hands.focus(host.field(tag));
        QTest::qWait(kPeriod);
        host.type(tag, "7");
    }
    EXPECT_EQ(host.session->pending().size(), tags.size()) << "an entry was not taken";
    peer.answer = good;
    EXPECT_TRUE(host.untilLive());
}

} // namespace
} // namespace zor::monitor
