// A host's work, without a window, against a device that does what it should.

#include <zor/tests/monitor/files.h>
#include <zor/tests/monitor/session_fixture.h>

namespace zor::monitor {
namespace {

using tests::Host;
using tests::kPeriod;
using tests::only;
using tests::Peer;
using tests::SessionTest;
using tests::textIn;
using tests::writeFile;

TEST_F(SessionTest, ReadsEachParameterAndTellsHowItWent)
{
    peer.registers[100] = 0x5A54;
    peer.registers[30] = 0x4162;
    peer.registers[31] = 0x6320;
    peer.registers[32] = peer.registers[33] = 0;
    peer.registers[70] = 0x7FC0; // no number
    host.run({"Level", "Limit", "Wide", "Name", "Missing", "Ratio", "Nowhere"});
    EXPECT_EQ(host.text("Level"), "10");
    EXPECT_EQ(host.text("Wide"), "1441815.000") << "register 22 is the high word";
    EXPECT_EQ(host.text("Name"), "Abc");
    for (const char* tag : {"Missing", "Ratio"}) {
        EXPECT_TRUE(host.box(tag).DataNotAvailable()) << tag;
        EXPECT_EQ(host.text(tag), "") << "a number that nobody has read";
    }
    EXPECT_NE(host.session->report().find("Ratio  ?  no value\n"), std::string::npos) << host.session->report();
    EXPECT_FALSE(host.box("Limit").DataNotAvailable()) << "a neighbour's refusal";
    EXPECT_TRUE(host.box("Nowhere").DeviceTagNotFound());
    EXPECT_EQ(host.get("Level", "RegisterType"), Variant(1));
    EXPECT_EQ(host.get("Missing", "ReadOnly"), Variant(true));
    EXPECT_TRUE(host.until([&] { return host.session->deviceVersion() == "2.3"; }));
    EXPECT_EQ(host.box("Level").DeviceType(), "ZT");
    peer.registers[10] = 77;
    peer.registers[32] = 0x1B41; // escape, A
    host.rounds();
    EXPECT_EQ(host.text("Level"), "77");
    EXPECT_NE(host.session->report().find("Name  Abc ?A  live\n"), std::string::npos) << "steers a terminal";
}

TEST_F(SessionTest, ReadsOnlyWhatIsSeenOrEdited)
{
    std::string seen = "Level";
    host.session->isVisible = [&](core::Control& control) { return control.DeviceTag() == seen; };
    host.boxes["Level"] = host.add("ctx_ZorTextBox", "Level");
    host.boxes["Far"] = host.add("ctx_ZorTextBox", "Far");
    for (const auto& control : host.controls)
        host.session->bind(*control);
    host.session->start(kPeriod);
    host.rounds(3);
    EXPECT_EQ(std::ranges::count(peer.functions, 3), 0) << "a holding register was read that nobody sees";
    EXPECT_TRUE(host.box("Far").WaitingForData());
    seen = "Far";
    host.session->poller().pollNow();
    EXPECT_TRUE(host.untilLive());
    EXPECT_EQ(host.text("Far"), "150.000");
    host.type("Far", "7");
    seen = "Level";
    peer.registers[150] = 9;
    EXPECT_TRUE(host.until([&] { return host.get("Far", "DataChanged").toBoolean(); }))
        << "an edit is watched unseen";
}

TEST_F(SessionTest, AnEditIsKeptUntilItIsWrittenAndReadBack)
{
    host.run({"Level", "Limit", "Wide", "Name"});
    host.type("Limit", "450");
    host.type("Wide", "70000");
    host.type("Name", "\u00C4bc");
    host.rounds();
    EXPECT_EQ(host.text("Limit"), "450") << "polling overwrote the edit";
    EXPECT_EQ(peer.registers[20], 20) << "written before anybody said so";
    const std::vector<Change> changes = host.session->pending();
    ASSERT_EQ(changes.size(), 3U);
    EXPECT_EQ(changes[0].tag + ' ' + changes[0].oldText + ' ' + changes[0].newText, "Limit 20 450");
    EXPECT_EQ(changes[1].newText, "70000");
    peer.functions.clear();
    EXPECT_EQ(host.write().size(), 3U);
    EXPECT_EQ(std::ranges::count(peer.functions, 6), 1) << "one register is written with function 6";
    EXPECT_EQ(std::ranges::count(peer.functions, 16), 2);
    EXPECT_EQ(peer.registers[20], 450);
    EXPECT_EQ(peer.registers[22] << 16U | peer.registers[23], 70000);
    EXPECT_EQ(peer.registers[30], 0xC462);
    for (const char* tag : {"Limit", "Wide", "Name"})
        EXPECT_FALSE(host.get(tag, "DataModified").toBoolean()) << tag;
    EXPECT_EQ(host.text("Limit"), "450");
    EXPECT_FALSE(host.session->hasEdits());
}

TEST_F(SessionTest, WhatCannotBeWrittenIsNamedAndKept)
{
    host.run({"Limit", "Far", "Name", "Gone"});
    for (const char* tag : {"Limit", "Far"})
        host.box(tag).setProperty("InvalidEntryEnable", true);
    host.type("Limit", "1001");
    host.type("Far", "40000");
    host.type("Name", "\u20ACuro");
    host.type("Gone", "5");
    const std::vector<Change> changes = host.session->pending();
    ASSERT_EQ(changes.size(), 4U);
    EXPECT_EQ(changes[0].problem, Problem::OutsideLimits);
    EXPECT_EQ(changes[0].newText + ": " + changes[0].lowest + " to " + changes[0].highest, "1001: 0 to 1000");
    EXPECT_EQ(changes[1].problem, Problem::CharactersUnknown);
    EXPECT_EQ(changes[2].oldText, "?") << "an edit of what was never read";
    EXPECT_EQ(changes[3].lowest, "-32768") << "beyond the type";
    host.box("Far").setProperty("InvalidEntryEnable", false);
    host.type("Far", "40001");
    EXPECT_EQ(host.session->pending()[3].problem, Problem::OutOfRange);
    peer.functions.clear();
    EXPECT_EQ(only(host.write()), WriteOutcome::Refused) << "Gone";
    EXPECT_EQ(std::ranges::count(peer.functions, 6) + std::ranges::count(peer.functions, 16), 1);
    EXPECT_EQ(host.text("Limit"), "1001");
    host.session->undoAll();
    EXPECT_EQ(host.text("Limit") + host.text("Far") + host.text("Gone"), "20150.000");
    EXPECT_FALSE(host.session->hasEdits());
}

TEST_F(SessionTest, WhatIsTypedIsWrittenWhateverTheUnitShows)
{
    struct Row {
        const char* tag;
        const char* typed;
        const char* review; // old and new value, or why there is none
        int held;
    };
    peer.registers[60] = 45; // 4.5 s, shown as 5
    host.run({"Damping", "Ratio"});
    for (const Row& row : {Row{"Damping", "5", "4.5 5", 50}, Row{"Damping", "4.5", "5 4.5", 45},
                           Row{"Damping", "4.52", "", 45}, Row{"Damping", "10.04", "4.5 10", 100},
                           Row{"Damping", "11", "outside", 100}, Row{"Damping", "-7", "range", 100},
                           Row{"Ratio", "-7", "outside", 70}, Row{"Ratio", "0.1234567", "", 0x3DFC}}) {
        SCOPED_TRACE(std::string(row.tag) + ' ' + row.typed);
        host.type(row.tag, row.typed);
        // Neither another unit nor passing through the field changes what has been typed.
        for (const MEAS_TYPE unit : {TimeU_hr, TimeU_s}) {
            host.session->setUnit(TIMEUNITS, unit);
            host.hands.focus(host.field(row.tag));
            host.hands.blur(host.field(row.tag));
        }
        const std::vector<Change> changes = host.session->pending();
        ASSERT_EQ(changes.size(), 1U);
        const Change& change = changes.front();
        const std::string said = change.problem == Problem::None            ? change.oldText + ' ' + change.newText
                                 : change.problem == Problem::OutsideLimits ? "outside"
                                 : change.problem == Problem::OutOfRange    ? "range"
                                                                            : "?";
        EXPECT_TRUE(*row.review == '\0' || said == row.review) << said;
        host.write();
        EXPECT_EQ(peer.registers[host.session->file().parameters[change.parameter].location.address], row.held);
        host.session->undoAll();
    }
}

TEST_F(SessionTest, ARefusedWriteKeepsItsEditAndTheOthersEnd)
{
    host.run({"Limit", "Far"});
    host.type("Limit", "5");
    host.type("Far", "6");
    peer.answer = [](QTcpSocket& socket, QByteArray reply) {
        if (reply[7] == 6 && static_cast<quint8>(reply[9]) == 20) {
            reply = reply.left(5) + QByteArray("\x03\x01\x86\x03", 4);
        }
        socket.write(reply);
    };
    const std::vector<Written> results = host.write();
    ASSERT_EQ(results.size(), 2U);
    EXPECT_EQ(results[0].result.outcome, WriteOutcome::Refused);
    EXPECT_EQ(results[0].result.exception, 3);
    EXPECT_EQ(results[1].result.outcome, WriteOutcome::Written);
    EXPECT_TRUE(host.get("Limit", "DataModified").toBoolean());
    EXPECT_EQ(host.text("Limit"), "5");
    EXPECT_FALSE(host.get("Far", "DataModified").toBoolean());
}

TEST(Sessions, AWriteThatIsLeftOpenIsSentOnceAndSettledByReading)
{
    enum Carried { AtOnce, Late, Never };
    struct Row {
        const char* name;
        int exception; // 0 for silence, -1 for an answer after which the device cannot be read
        Carried carried;
        WriteOutcome outcome;
        const char* record;
    };
    const std::vector<Row> rows{
        {"silence, carried out", 0, AtOnce, WriteOutcome::Unconfirmed, "unconfirmed: no complete answer in time"},
        {"silence, not carried out", 0, Never, WriteOutcome::Unconfirmed,
         "unconfirmed: no complete answer in time"},
        {"the device works on it", 5, Late, WriteOutcome::Unconfirmed, "unconfirmed: exception 5"},
        {"a gateway waits in vain", 11, Late, WriteOutcome::Unconfirmed, "unconfirmed: exception 11"},
        {"an answer, then silence", -1, AtOnce, WriteOutcome::Unread, "not read back: no complete answer in time"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QTemporaryDir folder;
        // The last run had a power cut.
        const QString file = writeFile(folder.filePath("log.csv"), "time,event,tag,old,new,result\n2026-");
        Log log(file);
        Peer peer;
        const auto good = peer.answer;
        Host host(peer.serverPort(), &log);
        host.run({"Limit"});
        host.type("Limit", "5");
        bool blocked = false;
        peer.answer = [&](QTcpSocket& socket, QByteArray reply) {
            const bool write = reply[7] == 6;
            if (write && row.carried != AtOnce)
                peer.registers[20] = 20;
            if (write && row.exception > 0)
                reply = reply.left(5) + QByteArray("\x03\x01\x86", 3) + static_cast<char>(row.exception);
            if (!blocked && !(write && row.exception == 0))
                good(socket, reply);
            blocked = blocked || (write && row.exception <= 0);
        };
        peer.functions.clear();
        EXPECT_EQ(only(host.write()), row.outcome);
        EXPECT_TRUE(host.get("Limit", "DataModified").toBoolean()) << "the edit was lost";
        blocked = false;
        host.rounds(3);
        if (row.carried == Late)
            peer.registers[20] = 5;
        host.rounds(2);
        EXPECT_EQ(std::ranges::count(peer.functions, 6), 1) << "resent blindly";
        EXPECT_EQ(host.get("Limit", "DataModified").toBoolean(), row.carried == Never);
        EXPECT_EQ(host.text("Limit"), "5");
        const QString record = textIn(file);
        EXPECT_TRUE(record.startsWith("time,event,tag,old,new,result\n2026-\n2")) << record.toStdString();
        EXPECT_TRUE(record.contains(",read,Limit,?,20,live\n")) << record.toStdString();
        EXPECT_TRUE(record.contains(QString(",write,Limit,20,5,") + row.record)) << record.toStdString();
        EXPECT_EQ(record.contains(",write,Limit,20,5,confirmed\n"), row.carried != Never) << record.toStdString();
        EXPECT_EQ(record.count(",write,Limit,20,5,not carried out\n"), row.carried == AtOnce ? 0 : 1)
            << record.toStdString();
    }
}

TEST_F(SessionTest, WhatHasChangedSinceTheReviewIsNotWritten)
{
    host.run({"Limit"});
    host.type("Limit", "25");
    const std::vector<Change> reviewed = host.session->pending();
    peer.registers[20] = 44; // another master
    EXPECT_EQ(only(host.write(reviewed)), WriteOutcome::Overtaken);
    EXPECT_EQ(peer.registers[20], 44);
    EXPECT_EQ(host.text("Limit"), "25") << "the edit was lost";
    EXPECT_EQ(host.session->pending().at(0).oldText, "44");
    EXPECT_EQ(only(host.write()), WriteOutcome::Written);
}

TEST(Sessions, AnotherDeviceIsNoticedAndJudgedAnew)
{
    for (const bool connectsAnew : {true, false}) {
        SCOPED_TRACE(connectsAnew ? "with another connection" : "in its place");
        Peer peer;
        peer.registers[100] = 0x5A54;
        Host host(peer.serverPort());
        for (const char* tag : {"Level", "Far"})
            host.add("ctx_ZorTextBox", tag)->DeviceTypeSupported(*tag == 'F' ? "XY" : "ZT");
        host.run({"Limit", "Wide"});
        host.box("Wide").DeviceTypeSupported("ZT");
        EXPECT_TRUE(host.until([&] { return host.session->deviceType() == "ZT"; }));
        EXPECT_FALSE(host.controls[0]->DeviceTypeNotSupported());
        EXPECT_TRUE(host.controls[1]->DeviceTypeNotSupported());
        host.type("Limit", "25");
        host.type("Wide", "7");
        const std::vector<Change> reviewed = host.session->pending();
        peer.registers[100] = 0x5859;
        if (connectsAnew) {
            for (const auto& socket : peer.sockets)
                socket->abort();
            QTest::qWait(kPeriod / 3);
        } else {
            for (int i = 0; i < 4; ++i)
                host.rounds(5);
            EXPECT_TRUE(host.until([&] { return host.session->deviceType() == "XY"; }));
        }
        for (const Written& written : host.write(reviewed))
            EXPECT_EQ(written.result.outcome, WriteOutcome::Overtaken);
        EXPECT_EQ(host.session->deviceType(), "XY");
        EXPECT_EQ(peer.registers[20], 20) << "written into another device than was reviewed";
        EXPECT_TRUE(host.controls[0]->DeviceTypeNotSupported());
        EXPECT_FALSE(host.controls[1]->DeviceTypeNotSupported());
        EXPECT_TRUE(host.get("Limit", "DataChanged").toBoolean());
        const std::vector<Change> anew = host.session->pending();
        ASSERT_EQ(anew.size(), 2U);
        EXPECT_TRUE(anew[0].otherDevice && !anew[0].changedByOther) << "nobody else has changed it";
        EXPECT_EQ(anew[0].problem, Problem::None);
        EXPECT_EQ(anew[1].problem, Problem::NotThere) << "would be written into what means something else";
    }
}

TEST_F(SessionTest, AWriteIsNotConfirmedByAnotherDevice)
{
    host.run({"Limit"});
    host.type("Limit", "5");
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[7] != 6)
            return void(socket.write(reply));
        // It leaves without an answer; what takes its place holds the same by chance.
        peer.registers[100] = 0x5859;
        socket.abort();
    };
    EXPECT_EQ(only(host.write()), WriteOutcome::Unconfirmed);
    host.rounds(3);
    EXPECT_EQ(host.session->deviceType(), "XY");
    EXPECT_TRUE(host.get("Limit", "DataModified").toBoolean());
    EXPECT_EQ(host.session->writes().size(), 1U) << "settled by what another device holds";
}

TEST(Sessions, ADeviceThatDoesNotSayWhatItIsHasNoRestrictedParameter)
{
    std::string parameters = tests::kParameters;
    parameters.replace(parameters.find("100"), 3, "250"); // refused
    Peer peer;
    Host host(peer.serverPort(), nullptr, parameters.c_str());
    host.add("ctx_ZorTextBox", "Level")->DeviceTypeSupported("ZT");
    host.run({"Limit"});
    host.rounds();
    EXPECT_TRUE(host.controls[0]->DeviceTypeNotSupported());
    host.type("Limit", "25");
    EXPECT_EQ(only(host.write()), WriteOutcome::Written);
}

TEST_F(SessionTest, AWriteWhoseAnswerIsLostButReadsBackIsWritten)
{
    host.run({"Wide"});
    host.type("Wide", "5");
    peer.answer = [](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[7] != 16)
            socket.write(reply);
    };
    EXPECT_EQ(only(host.write()), WriteOutcome::Written);
    EXPECT_FALSE(host.session->hasEdits());
}

TEST_F(SessionTest, ADeviceThatHoldsSomethingElseKeepsTheEdit)
{
    host.run({"Limit"});
    host.type("Limit", "5");
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        socket.write(reply);
        if (reply[7] == 6)
            peer.registers[20] = 8; // the device knows better
    };
    EXPECT_EQ(only(host.write()), WriteOutcome::Differs);
    EXPECT_EQ(host.text("Limit"), "5");
    EXPECT_TRUE(host.get("Limit", "DataModified").toBoolean());
    EXPECT_TRUE(host.get("Limit", "DataChanged").toBoolean());
    EXPECT_EQ(host.session->pending().at(0).oldText, "8");
}

TEST(Sessions, TwoOperatorsSeeEachOthersWrites)
{
    Peer peer;
    Host one(peer.serverPort());
    Host two(peer.serverPort());
    for (Host* host : {&one, &two}) {
        host->run({"Limit", "Far"});
    }
    one.type("Limit", "5");
    two.type("Limit", "6");
    two.type("Far", "7");
    EXPECT_EQ(two.write().size(), 2U);
    one.rounds();
    EXPECT_EQ(one.text("Limit"), "5") << "the open edit was overwritten";
    EXPECT_TRUE(one.get("Limit", "DataChanged").toBoolean());
    EXPECT_EQ(one.text("Far"), "7.000");
    EXPECT_FALSE(one.get("Far", "DataChanged").toBoolean());
    EXPECT_TRUE(one.session->pending().at(0).changedByOther);
    EXPECT_EQ(only(one.write()), WriteOutcome::Written);
    EXPECT_FALSE(one.get("Limit", "DataChanged").toBoolean());
    two.rounds();
    EXPECT_EQ(two.text("Limit"), "5");
    EXPECT_TRUE(two.get("Limit", "DataChanged").toBoolean()) << "what two wrote last has been changed since";
}

TEST(Sessions, AnUndoneEditShowsWhatTheDeviceHoldsByNow)
{
    Peer peer;
    Host host(peer.serverPort());
    host.run({"Limit"});
    host.type("Limit", "5");
    peer.registers[20] = 33;
    EXPECT_TRUE(host.until([&] { return host.get("Limit", "DataChanged").toBoolean(); }));
    host.hands.pointer(*host.box("Limit").widget(2), platform::Pointer::RightClick);
    host.hands.chooseItem(*host.box("Limit").menu(), 0);
    EXPECT_FALSE(host.get("Limit", "DataModified").toBoolean());
    EXPECT_TRUE(host.until([&] { return host.text("Limit") == "33"; }))
        << host.text("Limit") << " passes for live";
    host.rounds();
    EXPECT_FALSE(host.session->hasEdits());
}

} // namespace
} // namespace zor::monitor
