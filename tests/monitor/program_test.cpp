// The program as it is started: its options, its exit status and what it leaves behind.

#include <zor/tests/monitor/files.h>

#include <QImage>
#include <QTcpServer>

namespace zor::monitor {
namespace {

using tests::Exit;
using tests::runMonitor;

TEST(Program, RunsUnattendedAndLeavesAReportAPictureAndARecord)
{
    QTemporaryDir folder;
    const QString picture = folder.filePath("picture.png");
    const QString log = folder.filePath("log.csv");
    const QString report = folder.filePath("report.html");
    const Exit good = runMonitor({"--run-for", "2", "--screenshot", picture, "--log", log, "--language", "de",
                                  "--trend", "Distance", "--report", report});
    EXPECT_EQ(good.status, 0) << good.error.toStdString();
    EXPECT_TRUE(good.out.contains("Density  ?  nicht vorhanden\n")) << good.out.toStdString();
    EXPECT_TRUE(good.out.contains(" m3  gelesen\n")) << good.out.toStdString();
    EXPECT_FALSE(QImage(picture).isNull());
    const QString html = tests::textIn(report);
    EXPECT_TRUE(html.contains("<td>Tankhöhe</td><td>TankHeight</td><td>12,500</td><td>m</td><td>gelesen</td>"))
        << html.toStdString();
    EXPECT_TRUE(html.contains("<td>Horn</td><td>Ein</td>"));
    EXPECT_TRUE(html.contains("data:image/png"));
    const QString lines = tests::textIn(log);
    EXPECT_TRUE(lines.contains(",read,TankHeight,?,125000,live\n")) << "of a tab that nobody has opened";
    EXPECT_FALSE(good.out.contains("nicht gelesen")) << good.out.toStdString();
}

TEST(Program, SaysWhyItCannotRun)
{
    QTemporaryDir folder;
    const auto fileOf = [&](const char* name, const char* text) {
        return tests::writeFile(folder.filePath(name), text);
    };
    const QString bad = fileOf("bad.json", "{\n\"parameters\": [\n{\"tag\": 5}]}");
    const QString empty = fileOf("empty.ui", R"(<ui version="4.0"><widget class="QWidget" name="a"/></ui>)");
    const QString absent = fileOf("absent.json", R"({"parameters": [{"tag": "A", "bank": "input", "address": 0,
        "type": "uint16", "simulation": {"absent": true}}]})");
    QTcpServer silent;
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    const QString port = QString::number(silent.serverPort());
    const QString record = folder.filePath("log.csv");
    struct Row {
        QStringList arguments;
        int status;
        QString error;
    };
    const std::vector<Row> rows{
        {{"--bogus"}, 2, "--bogus"},
        {{"--period", "5"}, 2, "--period"},
        {{"--device", "tcp://"}, 2, "tcp://: not a device"},
        {{"--device", "rtu:/dev/x?baud=fast"}, 2, "baud is a number"},
        {{"--device", "127.0.0.1:1", "--run-for", "1"}, 1, "rounds: the connection was refused\nThe host is"},
        {{"--device", "127.0.0.1:" + port, "--run-for", "2", "--log", record}, 1, "no complete answer in time"},
        {{"--parameters", absent, "--run-for", "1"}, 1, "the device has none of the parameters"},
        {{"--tab", "4"}, 2, "--tab 4: the last tab is 3"},
        {{"--device", "rtu:/dev/there-is-none", "--run-for", "1"}, 1, "the device did not answer in"},
        {{"--parameters", bad}, 2, bad + ":3: a text is expected here"},
        {{"--parameters", folder.filePath("none.json")}, 2, "none.json: "},
        {{"--form", bad}, 2, "bad.json:1: "},
        {{"--form", empty}, 2, "empty.ui: no controls of the library"},
        {{"--form", fileOf("class.ui", R"(<ui><widget class="zor::ZorTextBux" name="a"/></ui>)")},
         2,
         "class.ui:1: unknown class \"zor::ZorTextBux\""},
        {{"--form",
          fileOf("value.ui", "<ui><widget class='zor::ZorTextBox' name='a'>\n<property name='OutputUnit'>"
                             "<enum>LgthU_Nix</enum></property></widget></ui>")},
         2,
         "value.ui:2: a.OutputUnit: <enum> holds no value"},
        {{"--form", folder.filePath("none.ui")}, 2, "none.ui: "},
        {{"--log", folder.filePath("no/log.csv")}, 2, "no/log.csv: "},
        {{"--parameters", absent, "--save-settings", folder.filePath("./absent.json")},
         2,
         "./absent.json: this is the file of --parameters"},
        {{"--log", absent}, 2, "absent.json: holds something else than a record"},
        {{"--frames", "/dev/full", "--run-for", "1"}, 2, "/dev/full: No space left on device"},
        {{"--log", "/dev/full", "--run-for", "1"}, 2, "/dev/full: No space left on device"},
        {{"--screenshot", "a.xyz"}, 2, "a.xyz: no kind of picture"},
        {{"--screenshot", folder.filePath("no/a.png"), "--run-for", "1"}, 2, "no/a.png: "},
        {{"--report", "a.txt"}, 2, "a.txt: neither .pdf nor .html"},
        {{"--report", folder.filePath("no/a.pdf")}, 2, "no/a.pdf: "},
        {{"--device", "127.0.0.1:1", "--report", folder.filePath("a.pdf")},
         1,
         "for all parameters: the connection"},
        {{"--trend", "Name"}, 2, "--trend Name: no parameter that is a number"},
        {{"--trend", "Flow", "--save-trend", "a.txt"}, 2, "a.txt: neither .csv nor .png"},
        {{"--trend", "Flow", "--save-trend", folder.filePath("no/a.csv"), "--run-for", "1"}, 2, "no/a.csv: "},
        {{"--site", fileOf("no-site.json", "{\n\"format\": \"site\"}")},
         2,
         "no-site.json:2: a site file has the format"},
        {{"--site", absent, "--device", "simulated"}, 2, "excludes --site"},
        {{"--serve", port}, 2, "port " + port + ": "},
        {{"--serve", port, "--save-settings", "a.json"}, 2, "excludes"},
        {{"--trend", "Flow", "--save-settings", "a.json"}, 2, "excludes"},
        {{"--form", "/dev/zero"}, 2, "/dev/zero: larger than 16 MB"},
        {{"--parameters", bad, "--language", "de"}, 2, bad + ":3: hier wird ein Text erwartet"},
        {{"--form", fileOf("cut.ui", "<ui>\n<widget"), "--language", "fr"}, 2, "cut.ui:2: <widget n'est pas"},
        {{"--device", "tcp://h?unit=x", "--language", "de"}, 2, "unit ist eine Zahl von 0 bis 255"},
    };
    for (const Row& row : rows) {
        const Exit bad = runMonitor(row.arguments);
        EXPECT_EQ(bad.status, row.status) << row.arguments.join(' ').toStdString();
        EXPECT_TRUE((bad.error + bad.out).contains(row.error))
            << row.arguments.join(' ').toStdString() << ": " << bad.error.toStdString();
    }
    EXPECT_EQ(runMonitor({"--help"}).status, 0);
    QProcess full;
    full.setStandardOutputFile("/dev/full");
    full.start(ZOR_MONITOR, {"--run-for", "1"});
    EXPECT_TRUE(full.waitForFinished());
    EXPECT_EQ(full.exitCode(), 2) << "what was printed is lost without a word";
    EXPECT_EQ(tests::textIn(record).count('\n'), 25)
        << "a heading, and once for each parameter that nobody answers";
}

TEST(Program, KilledLeavesItsRecordWhole)
{
    QTemporaryDir folder;
    QFile record(folder.filePath("log.csv"));
    QProcess program;
    program.start(ZOR_MONITOR, {"--log", record.fileName(), "--period", "100"});
    QByteArray text;
    constexpr int kParameters = 24;
    for (int i = 0; i < 100 && text.count('\n') <= kParameters; ++i) {
        constexpr int kPause = 100;
        program.waitForFinished(kPause);
        if (record.open(QIODevice::ReadOnly))
            text = record.readAll();
        record.close();
    }
    program.kill();
    program.waitForFinished();
    ASSERT_EQ(text.count('\n'), 1 + kParameters) << "lines are kept back";
    EXPECT_TRUE(text.endsWith('\n'));
    for (const QByteArray& line : text.trimmed().split('\n'))
        EXPECT_EQ(line.count(',') - line.count(", "), 5) << line.toStdString();
}

} // namespace
} // namespace zor::monitor
