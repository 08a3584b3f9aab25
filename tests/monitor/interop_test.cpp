// Against programs by others: the monitor with a server, and the simulated device with a client.

#include <zor/monitor/device/simulator.h>
#include <zor/tests/monitor/files.h>
#include <zor/tests/monitor/session_fixture.h>

#include <QRegularExpression>

namespace zor::monitor {
namespace {

using tests::Host;

TEST(Interop, TheMonitorWithAServerByOthers)
{
    int port = 0;
    {
        QTcpServer probe;
        ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
        port = probe.serverPort();
    }
    QProcess server;
    const auto start = [&] {
        server.start("/usr/bin/python3", {ZOR_TEST_DATA "/../monitor/pymodbus_server.py", QString::number(port)});
        QByteArray said;
        return Host::until([&] { return (said += server.readAllStandardOutput()).contains("ready"); });
    };
    ASSERT_TRUE(start()) << "python3-pymodbus: " << server.readAllStandardError().toStdString();
    std::string file = tests::kParameters;
    const std::string list = "\"parameters\": [";
    file.replace(file.find(list), list.size(), R"("requests": {"underWay": 4, "pause": 2}, )" + list + R"(
      {"tag": "Pump", "bank": "coil", "address": 4, "type": "bit", "access": "write"},
      {"tag": "Door", "bank": "discrete", "address": 7, "type": "bit"},)");
    Host host(static_cast<quint16>(port), nullptr, file.c_str());
    for (const char* tag : {"Pump", "Door", "Horn"})
        host.boxes[tag] = host.add("ctx_ZorCheckBox", tag);
    host.run({"Level", "Limit", "Wide", "Name", "Missing"});
    EXPECT_EQ(host.get("Pump", "DeviceValue"), Variant(0));
    EXPECT_EQ(host.get("Door", "DeviceValue"), Variant(1));
    EXPECT_EQ(host.text("Level"), "10");
    EXPECT_EQ(host.text("Wide"), "1441815.000");
    EXPECT_TRUE(host.box("Missing").DataNotAvailable());
    EXPECT_FALSE(host.box("Limit").DataNotAvailable());
    host.type("Limit", "450");
    host.type("Wide", "70000");
    for (const char* tag : {"Pump", "Horn"})
        host.box(tag).setProperty("ModifiedValue", 1);
    for (const Written& written : host.write())
        EXPECT_EQ(written.result.outcome, WriteOutcome::Written) << written.result.reason;
    EXPECT_EQ(host.text("Limit") + ' ' + host.text("Wide"), "450 70000.000");
    EXPECT_EQ(host.get("Pump", "DeviceValue"), Variant(1));
    EXPECT_EQ(host.session->held(*host.session->file().indexOf("Horn")), (Registers{51})) << "with a mask";
    host.type("Limit", "451");
    server.kill();
    server.waitForFinished();
    EXPECT_TRUE(host.until([&] { return host.box("Level").CFail() && host.box("Limit").CFail(); }));
    ASSERT_TRUE(start()) << server.readAllStandardError().toStdString();
    EXPECT_TRUE(host.untilLive());
    EXPECT_EQ(host.text("Limit"), "451");
    EXPECT_TRUE(host.get("Limit", "DataChanged").toBoolean()) << "the restarted server holds 20 again";
    server.kill();
    server.waitForFinished();
}

/// Runs mbpoll on the simulated device; what it prints.
QString mbpoll(int port, const QStringList& how, const QStringList& values = {})
{
    QProcess client;
    client.setProcessChannelMode(QProcess::MergedChannels);
    client.start("mbpoll", QStringList{"-m", "tcp", "-a", "1", "-1", "-p", QString::number(port)} + how +
                               QStringList{"127.0.0.1"} + values);
    EXPECT_TRUE(Host::until([&] { return client.state() == QProcess::NotRunning; }));
    return client.readAll();
}

TEST(Interop, TheSimulatedDeviceWithAClientByOthers)
{
    const ParameterFile file = readParameterFile(
        R"({"parameters": [
          {"tag": "Gain", "bank": "holding", "address": 4, "type": "float32", "access": "write", "order": "CDAB",
           "simulation": {"value": 1.5}},
          {"tag": "Pump", "bank": "coil", "address": 6, "type": "bit", "access": "write"},
          {"tag": "Door", "bank": "discrete", "address": 8, "type": "bit", "simulation": {"value": 1}},
          {"tag": "Count", "bank": "input", "address": 7, "type": "uint16", "simulation": {"value": 4711}},
          {"tag": "Gone", "bank": "input", "address": 9, "type": "uint16", "simulation": {"absent": true}}]})",
        "test");
    Simulator device(file);
    ASSERT_TRUE(device.start());
    const auto has = [](const QString& said, const char* pattern) {
        EXPECT_TRUE(said.contains(QRegularExpression(pattern))) << said.toStdString();
    };
    has(mbpoll(device.port(), {"-0", "-t", "3", "-r", "7", "-c", "1"}), R"(\[7\]:\s+4711)");
    has(mbpoll(device.port(), {"-0", "-t", "4:float", "-r", "4", "-c", "1"}), R"(\[4\]:\s+1\.5)");
    has(mbpoll(device.port(), {"-0", "-t", "3", "-r", "9", "-c", "1"}), "Illegal data address");
    has(mbpoll(device.port(), {"-0", "-t", "1", "-r", "8", "-c", "1"}), R"(\[8\]:\s+1)");
    has(mbpoll(device.port(), {"-0", "-t", "0", "-r", "6"}, {"1"}), "Written 1 references");
    EXPECT_EQ(device.registers(Bank::Coil, 6, 1), (Registers{1}));
    has(mbpoll(device.port(), {"-0", "-t", "4:float", "-r", "4"}, {"2.25"}), "Written 1 references");
    EXPECT_EQ(decode(file.parameters[0], device.registers(Bank::Holding, 4, 2)), Variant(2.25));
}

TEST(Interop, TheSchemaAgreesWithTheReader)
{
    const QByteArray good = R"({"parameters": [{"tag": "A", "bank": "holding", "address": 1, "type": "uint16"}]})";
    const auto read = [](const std::string& text) { return readParameterFile(text, "test"); };
    const char* const schema = "parameter-file.schema.json";
    tests::expectRefusals(tests::textIn(ZOR_TEST_DATA "/../../monitor/device/demo.json"), {{"", "", nullptr}},
                          schema, read);
    tests::expectRefusals(
        good,
        {{"", "", nullptr},
         {"\"address\": 1", "\"address\": 65536"},
         {"uint16\"", "text\""},
         {"uint16\"", "uint16\", \"access\": \"always\""},
         {"\"tag\"", "\"tga\""},
         {"holding\"", "input\", \"access\": \"write\""},
         {"uint16\"", "bit\", \"scale\": 2"},
         {"holding", "coil"},
         {"holding\", \"address\": 1, \"type\": \"uint16", "coil\", \"address\": 1, \"type\": \"bit"},
         {"{\"par", "{\"requests\": {\"pause\": -1}, \"par"},
         {"{\"par", "{\"requests\": {\"write\": \"single\"}, \"par"},
         {"uint16\"", "uint16\", \"unit\": \"LgthU_MM\""},
         {"uint16\"", "uint16\", \"unit\": \"Length\""},
         {"uint16\"", "uint16\", \"unit\": \"LgthU_MM\", \"digits\": 2"},
         {"uint16\"", "bit\", \"bit\": 1, \"minimum\": 0"},
         {"uint16\"", "uint16\", \"control\": \"ctx_ZorKnob\""},
         {"uint16\"", "uint16\", \"control\": \"ctx_ZorComboBox\""},
         {"uint16\"", "uint16\", \"control\": \"ctx_ZorSlider\", \"minimum\": 1"},
         {"uint16\"", "uint16\", \"control\": \"ctx_ZorSlider\", \"minimum\": 1, \"maximum\": 2"},
         {"uint16\"", "int16\", \"entries\": [{\"value\": 40000, \"text\": \"a\"}]"}},
        schema, read);
}
} // namespace
} // namespace zor::monitor
