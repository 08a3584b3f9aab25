// What a parameter file says of a device's protocol, kept: functions, masks, coils, several reads under way.

#include <zor/tests/monitor/session_fixture.h>

namespace zor::monitor {
namespace {

using tests::Host;
using tests::Peer;

std::string with(const std::string& requests)
{
    return R"({"requests": {)" + requests + R"(}, "identity": {
      "type": {"bank": "input", "address": 100, "registers": 1}},
      "parameters": [
      {"tag": "Pump", "bank": "coil", "address": 3, "type": "bit", "access": "write",
       "entries": [{"value": 0, "text": "Off"}, {"value": 1, "text": "On"}]},
      {"tag": "Door", "bank": "discrete", "address": 5, "type": "bit"},
      {"tag": "Limit", "bank": "holding", "address": 20, "type": "uint16", "access": "write"},
      {"tag": "Wide", "bank": "holding", "address": 22, "type": "uint32", "access": "write"},
      {"tag": "Horn", "bank": "holding", "address": 50, "type": "bit", "bit": 0, "access": "write"},
      {"tag": "Lamp", "bank": "holding", "address": 50, "type": "bit", "bit": 3, "access": "write"},
      {"tag": "Far", "bank": "holding", "address": 150, "type": "uint16"}]})";
}

/// Proposes the registers for a parameter, writes, and says how that went.
WriteOutcome put(Host& host, const std::string& tag, const Registers& registers)
{
    EXPECT_TRUE(host.session->propose(*host.session->file().indexOf(tag), registers)) << tag;
    return host.write().at(0).result.outcome;
}

TEST(Protocol, WritesWithTheFunctionsThatTheFileNames)
{
    struct Row {
        const char* requests;
        std::map<int, int> written; ///< by function, how many
    };
    for (const Row& row : {Row{"", {{5, 1}, {6, 1}, {16, 1}}}, Row{R"("write": "single")", {{5, 1}, {6, 3}}},
                           Row{R"("write": "multiple", "underWay": 3, "pause": 5)", {{15, 1}, {16, 2}}}}) {
        SCOPED_TRACE(row.requests);
        Peer peer;
        peer.bits[5] = true;
        const std::string file = with(row.requests);
        Host host(peer.serverPort(), nullptr, file.c_str());
        host.boxes["Pump"] = host.add("ctx_ZorComboBox", "Pump");
        host.boxes["Door"] = host.add("ctx_ZorCheckBox", "Door");
        host.run({"Limit", "Wide", "Far"});
        EXPECT_EQ(host.get("Door", "DeviceValue"), Variant(1));
        EXPECT_EQ(host.text("Far"), "150.000");
        peer.functions.clear();
        EXPECT_EQ(put(host, "Pump", {1}), WriteOutcome::Written);
        EXPECT_EQ(put(host, "Limit", {7}), WriteOutcome::Written);
        EXPECT_EQ(put(host, "Wide", {8, 9}), WriteOutcome::Written);
        EXPECT_TRUE(peer.bits[3]);
        EXPECT_EQ((std::vector{peer.registers[20], peer.registers[22], peer.registers[23]}), (Registers{7, 8, 9}));
        std::map<int, int> written;
        for (const int function : peer.functions) {
            if (function > 4)
                ++written[function];
        }
        EXPECT_EQ(written, row.written);
    }
}

TEST(Protocol, AValueThatWasWrittenInPartIsNotCalledRefused)
{
    Peer peer;
    const std::string file = with(R"("write": "single")");
    Host host(peer.serverPort(), nullptr, file.c_str());
    host.run({"Wide"});
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (reply[7] != 6 || reply[9] != 23)
            return void(socket.write(reply));
        peer.registers[23] = 23;
        socket.write(reply.left(5) + "\3" + reply.mid(6, 1) + "\x86\4");
    };
    EXPECT_EQ(put(host, "Wide", {8, 9}), WriteOutcome::Differs);
}

TEST(Protocol, BitsAreMaskedWhereTheDeviceKnowsThatWhichIsLearnedOnce)
{
    Peer peer;
    peer.masks = true;
    const std::string file = with("");
    Host host(peer.serverPort(), nullptr, file.c_str());
    for (const char* tag : {"Horn", "Lamp"})
        host.boxes[tag] = host.add("ctx_ZorCheckBox", tag);
    host.run({"Limit"});
    const auto written = [&](const std::string& tag, std::uint16_t word) {
        peer.functions.clear();
        EXPECT_EQ(put(host, tag, {word}), WriteOutcome::Written);
        std::erase_if(peer.functions, [](int function) { return function <= 4; });
        return peer.functions;
    };
    // Register 50 holds 50. Somebody else sets bit 8 between the read and the write.
    const auto good = peer.answer;
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        good(socket, reply);
        peer.registers[50] |= 0x100;
    };
    EXPECT_EQ(written("Horn", 51), (std::vector{22}));
    EXPECT_EQ(peer.registers[50], 0x133);
    peer.masks = false;
    EXPECT_EQ(written("Lamp", 0x13B), (std::vector{22, 6}));
    EXPECT_EQ(written("Horn", 0x13A), (std::vector{6})) << "asked a second time";
    const unsigned device = host.session->device();
    peer.masks = true;
    peer.registers[100] = 0x5859;
    peer.die();
    peer.revive(static_cast<quint16>(host.session->link().description().section(':', -1).toInt()));
    ASSERT_TRUE(host.until([&] { return host.session->device() != device; }));
    EXPECT_EQ(written("Horn", 0x13B), (std::vector{22})) << "another device may know it";
    EXPECT_EQ(peer.registers[50], 0x13B);
}

} // namespace
} // namespace zor::monitor
