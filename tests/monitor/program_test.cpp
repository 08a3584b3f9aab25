// The program as it is started: its options, its exit status and what it leaves behind.

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zor::monitor {
namespace {

struct Ended {
    int status;
    QString out;
    QString error;
};

Ended run(const QStringList& arguments)
{
    QProcess program;
    program.start(ZOR_MONITOR, arguments);
    constexpr int kLongest = 60000;
    EXPECT_TRUE(program.waitForFinished(kLongest));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << "crashed";
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

TEST(Program, RunsUnattendedAndLeavesAReportAPictureAndARecord)
{
    QTemporaryDir folder;
    const QString picture = folder.filePath("picture.png");
    const QString log = folder.filePath("log.csv");
    const Ended good = run({"--run-for", "2", "--screenshot", picture, "--log", log, "--language", "de"});
    EXPECT_EQ(good.status, 0) << good.error.toStdString();
    EXPECT_TRUE(good.out.contains("Density  ?  not available\n")) << good.out.toStdString();
    EXPECT_TRUE(good.out.contains(" m3  live\n")) << good.out.toStdString();
    EXPECT_FALSE(QImage(picture).isNull());
    QFile record(log);
    ASSERT_TRUE(record.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString(record.readAll()).contains(",read,Distance,?,62500,live\n"));
}

TEST(Program, SaysWhyItCannotRun)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("bad.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\n\"parameters\": [\n{\"tag\": 5}]}");
    file.close();
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
    const QString port = QString::number(taken.serverPort());
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
        {{"--device", "127.0.0.1:1", "--run-for", "1"}, 1, "the device did not answer in"},
        {{"--device", "rtu:/dev/there-is-none", "--run-for", "1"}, 1, "the device did not answer in"},
        {{"--parameters", file.fileName()}, 2, file.fileName() + ":3: a text is expected here"},
        {{"--parameters", folder.filePath("none.json")}, 2, "none.json: "},
        {{"--form", file.fileName()}, 2, "bad.json:1: "},
        {{"--log", folder.filePath("no/log.csv")}, 1, "no/log.csv: "},
        {{"--screenshot", folder.filePath("no/a.png"), "--run-for", "1"}, 2, "cannot write"},
        {{"--serve", port}, 2, "port " + port + ": "},
    };
    for (const Row& row : rows) {
        const Ended bad = run(row.arguments);
        EXPECT_EQ(bad.status, row.status) << row.arguments.join(' ').toStdString();
        EXPECT_TRUE((bad.error + bad.out).contains(row.error))
            << row.arguments.join(' ').toStdString() << ": " << bad.error.toStdString();
    }
    EXPECT_EQ(run({"--help"}).status, 0);
}

} // namespace
} // namespace zor::monitor
