// Settings files: what is refused, what is compared, and what becomes of them when a device dies.

#include <zor/monitor/settings/comparison.h>
#include <zor/tests/monitor/files.h>
#include <zor/tests/monitor/session_fixture.h>

#include <QDir>

namespace zor::monitor {
namespace {

using tests::Exit;
using tests::Host;
using tests::Peer;
using tests::textIn;
using tests::writeFile;

constexpr const char* kGood = R"({"format": "zor-settings", "formatVersion": 1,
"device": {"type": "ZT", "version": "1"}, "date": "2026-11-25T08:30:00Z", "parameters": [
{"tag": "Limit", "value": 20, "unit": "LgthU_MM", "registers": [20]}]})";

struct Commands : testing::Test {
    QTemporaryDir folder;
    QString saved = folder.filePath("saved.json");
    QString parameters = writeFile(folder.filePath("parameters.json"), tests::kParameters);

    Exit monitor(int port, const QStringList& arguments)
    {
        return tests::runMonitor(QStringList{"--parameters", parameters, "--period", "150", "--device",
                                             QString("tcp://127.0.0.1:%1").arg(port)} +
                                 arguments);
    }
};

TEST(SettingsFiles, WhatIsWrongIsRefusedWithItsPlaceAndTheSchemaAgrees)
{
    const QByteArray second = R"({"tag": "Limit", "value": 1}, {"tag")";
    const std::vector<tests::Damage> rows{
        {"", "", nullptr},
        {R"(, "registers": [20])", "", nullptr},
        {"20, \"unit\": \"LgthU_MM\"", "\"text\"", nullptr},
        {"zor-settings", "other", "test:1: a settings file has the format"},
        {"Version\": 1", "Version\": 2", "test:1: version 1 is expected here"},
        {"\"format\": \"zor-settings\", ", "", "test:1: \"format\" is missing"},
        {"\"ZT\"", "5", "test:2: a text is expected"},
        {"2026-11-25T", "yesterday", "test:2: \"yesterday08:30:00Z\" is no date"},
        {"\"tag\": \"Limit\", ", "", "test:3: \"tag\" is missing"},
        {"\"Limit\"", "\"\"", "test:3: a tag is not empty"},
        {"\"value\": 20", "\"value\": true", "test:3: a number is expected"},
        {"\"value\": 20", "\"value\": null", "test:3: a number is expected"},
        {"\"value\": 20", "\"value\": \"20\"", "test:3: only a number has a unit"},
        {"\"value\": 20", "\"value\": [20]", "test:3: a number is expected"},
        {"LgthU_MM", "Furlong", "test:3: \"Furlong\" is no unit"},
        {"[20]", "[65536]", "test:3: a whole number from 0 to 65535"},
        {"[20]", "[-1]", "test:3: a whole number from 0"},
        {"[20]", "[]", "test:3: a parameter has 1 to 123 registers"},
        {"[20]", "[" + QByteArray("1,").repeated(123) + "1]", "test:3: a parameter has 1 to 123 registers"},
        {"[20]", "20", "test:3: a list is expected"},
        {"\"registers\"", "\"register\"", "test:3: \"register\" is not known here"},
        {"\"date\"", "\"author\"", "test:2: \"author\" is not known here"},
        {"{\"tag\"", second, "test:3: the tag \"Limit\" stands twice", false},
        {"\"value\": 20", "\"value\": 20, \"value\": 30", "test:3: \"value\" stands twice", false},
        {"\"value\": 20", "\"value\": 1e999", "test:3: this is not JSON", false},
        {"]}]}", "]]}]}", "test:3: this is not JSON", false},
        {"[20]", QByteArray("[").repeated(100000), "test:3: nested too deeply", false},
        {"Limit", "L\xFFmit", "test:3: this is not JSON", false},
    };
    tests::expectRefusals(kGood, rows, "settings-file.schema.json",
                          [](const std::string& text) { return readSettingsFile(text, "test"); });
}

TEST(SettingsFiles, EachValueIsJudgedAgainstWhatIsHeld)
{
    const ParameterFile parameters = readParameterFile(tests::kParameters, "test");
    Held held{"ZT", "2.3", 0, std::vector<Registers>(parameters.parameters.size())};
    for (std::size_t i = 0; i < parameters.parameters.size(); ++i) {
        const Location& location = parameters.parameters[i].location;
        for (int r = 0; location.address < 200 && r < location.registers; ++r)
            held.registers[i].push_back(static_cast<std::uint16_t>(location.address + r));
    }
    struct Row {
        const char* setting;
        Verdict verdict;
        Problem problem = Problem::None;
    };
    for (const Row& row : {
             Row{R"("Limit", "value": 20, "unit": "LgthU_MM")", Verdict::Same},
             Row{R"("Limit", "value": 0.02, "unit": "LgthU_Mtr")", Verdict::Same},
             Row{R"("Limit", "value": 21, "unit": "LgthU_MM", "registers": [20])", Verdict::Different},
             Row{R"("Limit", "value": 20)", Verdict::Unfit, Problem::NotANumber},
             Row{R"("Limit", "value": 20, "unit": "TimeU_s")", Verdict::Unfit, Problem::NotANumber},
             Row{R"("Limit", "value": "20")", Verdict::Unfit, Problem::NotANumber},
             Row{R"("Limit", "value": 1001, "unit": "LgthU_MM")", Verdict::Unfit, Problem::OutsideLimits},
             Row{R"("Wide", "value": 1e12)", Verdict::Unfit, Problem::OutOfRange},
             Row{R"("Name", "value": "longer than 8")", Verdict::Unfit, Problem::TextTooLong},
             Row{R"("Name", "value": "\u20ac")", Verdict::Unfit, Problem::CharactersUnknown},
             Row{R"("Mode", "value": 41)", Verdict::Different},
             Row{R"("Mode", "value": 42)", Verdict::Unfit, Problem::OutsideLimits},
             Row{R"("Flags", "value": 51)", Verdict::Different},
             Row{R"("Horn", "value": 2)", Verdict::Unfit, Problem::OutOfRange},
             Row{R"("Horn", "value": 1)", Verdict::Different},
             Row{R"("Damping", "value": 6.0, "unit": "TimeU_s")", Verdict::Same},
             Row{R"("Level", "value": 11, "unit": "LgthU_MM")", Verdict::NotWritable, Problem::ReadOnly},
             Row{R"("Level", "value": 10, "unit": "LgthU_MM")", Verdict::Same},
             Row{R"("Gone", "value": 1)", Verdict::MissingHere},
             Row{R"("Nowhere", "value": 1)", Verdict::MissingHere},
         }) {
        const SettingsFile file =
            readSettingsFile(R"({"format": "zor-settings", "formatVersion": 1, "parameters": [{"tag": )" +
                                 std::string(row.setting) + "}]}",
                             "test");
        const Comparison comparison = compare(parameters, file, held, "en");
        const auto found = std::ranges::find(comparison.rows, file.settings[0].tag, &Compared::tag);
        ASSERT_NE(found, comparison.rows.end()) << row.setting;
        EXPECT_EQ(found->verdict, row.verdict) << row.setting;
        EXPECT_EQ(found->problem, row.problem) << row.setting;
        const std::vector<Change> changes = changesOf(parameters, comparison, "en");
        const bool written = changes.size() == 1 && changes[0].problem == Problem::None;
        EXPECT_EQ(written, row.verdict == Verdict::Different) << row.setting;
        EXPECT_EQ(written && changes[0].mask == 1, written && found->here == Registers{50})
            << row.setting << ": one bit";
        EXPECT_GE(comparison.count(Verdict::MissingThere), 7U);
    }
}

TEST_F(Commands, AFileSavedFromOneServerByOthersMakesAnotherTheSame)
{
    std::array<QProcess, 2> servers;
    std::array<int, 2> ports{};
    for (std::size_t i = 0; i < servers.size(); ++i) {
        QTcpServer probe;
        ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
        ports[i] = probe.serverPort();
        probe.close();
        servers[i].start("/usr/bin/python3", {ZOR_TEST_DATA "/../monitor/pymodbus_server.py",
                                              QString::number(ports[i]), QString::number(i)});
        QByteArray said;
        ASSERT_TRUE(Host::until([&] { return (said += servers[i].readAllStandardOutput()).contains("ready"); }));
    }
    EXPECT_EQ(monitor(ports[0], {"--save-settings", saved}).status, 0);
    const Exit different = monitor(ports[1], {"--compare", saved, "--json"});
    EXPECT_EQ(different.status, 1);
    EXPECT_TRUE(different.out.contains("\"different\": 9")) << different.out.toStdString();
    EXPECT_TRUE(different.out.contains("\"otherType\": true")) << different.out.toStdString();
    EXPECT_EQ(monitor(ports[1], {"--load-settings", saved}).status, 2) << "without a yes";
    EXPECT_EQ(monitor(ports[1], {"--compare", saved}).status, 1) << "written without a yes";
    const Exit loaded = monitor(ports[1], {"--load-settings", saved, "--yes"});
    EXPECT_EQ(loaded.status, 0) << loaded.error.toStdString();
    EXPECT_EQ(monitor(ports[1], {"--compare", saved}).status, 0);
    const QString again = folder.filePath("again.json");
    EXPECT_EQ(monitor(ports[1], {"--save-settings", again}).status, 0);
    EXPECT_EQ(monitor(1, {"--compare", saved, "--against", again}).status, 0) << "and no device is asked";
    for (QProcess& server : servers) {
        server.kill();
        server.waitForFinished();
    }
}

TEST_F(Commands, ADeviceThatDiesInTheMiddleOfSavingLeavesTheOldFile)
{
    Peer peer;
    const quint16 port = peer.serverPort();
    writeFile(saved, "old");
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (peer.functions.size() == 2)
            return peer.die();
        socket.write(reply);
    };
    const Exit died = monitor(port, {"--save-settings", saved});
    EXPECT_EQ(died.status, 1);
    EXPECT_TRUE(died.error.contains("the device did not answer")) << died.error.toStdString();
    EXPECT_EQ(textIn(saved), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2) << "half a file is left behind";
    EXPECT_EQ(monitor(port, {"--compare", saved}).status, 2) << "a bad file";
    writeFile(saved, kGood);
    EXPECT_EQ(monitor(port, {"--compare", saved}).status, 3);
    peer.revive(port);
    int lost = 0;
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        if (++lost == 2)
            return socket.abort(); // once
        socket.write(reply);
    };
    EXPECT_EQ(monitor(port, {"--save-settings", saved}).status, 0) << "taken up again by itself";
    EXPECT_TRUE(textIn(saved).contains("\"Far\""));
    EXPECT_EQ(monitor(port, {"--save-settings", folder.filePath("no/a.json")}).status, 2);
}

TEST_F(Commands, ALoadingThatBreaksOffGoesOnWithWhatIsLeft)
{
    Peer peer;
    const quint16 port = peer.serverPort();
    const QString file =
        writeFile(folder.filePath("edited.json"),
                  QByteArray(kGood).replace(R"(20, "unit": "LgthU_MM", "registers": [20])",
                                            R"(30, "unit": "LgthU_MM"}, {"tag": "Far", "value": -5)"));
    const auto writes = [&] {
        return std::ranges::count_if(peer.functions, [](int function) { return function == 6 || function == 16; });
    };
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        socket.write(reply);
        socket.flush();
        if (writes() == 1)
            peer.die();
    };
    EXPECT_EQ(monitor(port, {"--load-settings", file, "--yes"}).status, 1);
    EXPECT_EQ(peer.registers[20], 30);
    EXPECT_EQ(peer.registers[150], 150);
    peer.answer = [](QTcpSocket& socket, const QByteArray& reply) { socket.write(reply); };
    peer.revive(port);
    const Exit loaded = monitor(port, {"--load-settings", file, "--yes"});
    EXPECT_EQ(loaded.status, 0) << loaded.error.toStdString();
    EXPECT_EQ(writes(), 2) << "what had taken was written again";
    EXPECT_EQ(static_cast<std::int16_t>(peer.registers[150]), -5);
}

} // namespace
} // namespace zor::monitor
