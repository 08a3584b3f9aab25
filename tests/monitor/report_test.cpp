// Reports: what stands in them, and that no device writes anything else into them.

#include <zor/monitor/report/report.h>
#include <zor/monitor/settings/comparison.h>
#include <zor/tests/monitor/files.h>
#include <zor/tests/monitor/session_fixture.h>

#include <QXmlStreamReader>

namespace zor::tests {
namespace {

/// The rows of all tables, and the elements that occur.
struct Read {
    QList<QStringList> rows;
    QSet<QString> elements;
    QString error;
    explicit Read(const QString& html)
    {
        QXmlStreamReader reader(html);
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            elements.insert(reader.name().toString());
            if (reader.name() == u"tr")
                rows.append(QStringList());
            else if (reader.name() == u"td" || reader.name() == u"th")
                rows.last().append(reader.readElementText());
        }
        error = reader.errorString();
    }
    [[nodiscard]] bool has(const QStringList& row) const
    {
        return std::ranges::any_of(rows, [&](const QStringList& one) { return one.mid(0, row.size()) == row; });
    }
};

TEST(Report, SaysWhatTheDeviceIsAndHoldsAndWasTold)
{
    Peer peer;
    const std::array<std::uint16_t, 4> evil{0x3C62, 0x3E26, 0x2207, 0x4122}; // <b>&"(bell)A"
    std::ranges::copy(evil, peer.registers.begin() + 30);
    peer.registers[100] = 0x3C69; // <i
    Host host(peer.serverPort());
    host.run({"Limit"});
    host.session->readEverything();
    host.type("Limit", "77");
    host.write();
    host.rounds(2);
    SettingsFile file = settingsOf(*host.session);
    file.name = "<saved>";
    file.settings[0].registers.clear();
    file.settings[0].value = 20.0;
    QImage picture(30, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString html = reportHtml(*host.session, {file, {picture}, "en"});
    const Read read(html);
    EXPECT_EQ(read.error, "") << html.toStdString();
    EXPECT_FALSE(read.elements.contains("b") || read.elements.contains("i") || read.elements.contains("saved"));
    for (const QStringList& row : QList<QStringList>{{"Device", "<i"},
                                                     {"Version", "2.3"},
                                                     {"Address", host.session->link().description()},
                                                     {"Level", "Level", "10", "mm", "live"},
                                                     {"Name", "Name", "<b>&\"\uFFFDA\"", "", "live"},
                                                     {"Mode", "Mode", "Forty", "", "live"},
                                                     {"Missing", "Missing", "", "", "not available"},
                                                     {"File", "<saved>"},
                                                     {"Limit", "Limit", "20 mm", "77 mm", "different"}})
        EXPECT_TRUE(read.has(row)) << row.join('|').toStdString() << html.toStdString();
    EXPECT_EQ(read.rows.last().mid(1), QStringList({operatorName(), "Limit", "20 mm", "77 mm", "written"}));
    EXPECT_TRUE(html.contains("src=\"data:image/png;base64,"));

    QTemporaryDir folder;
    const QString pdf = folder.filePath("a.pdf");
    EXPECT_EQ(saveReport(pdf, *host.session, {file, {picture}, "en"}), "");
    EXPECT_TRUE(tests::textIn(pdf).startsWith("%PDF-"));
    EXPECT_NE(saveReport(folder.filePath("no/a.html"), *host.session, {}), "");

    peer.die();
    EXPECT_TRUE(host.until([&] { return !host.session->isHealthy(); }));
    host.session->setUnits(UnitSystem::Us);
    EXPECT_TRUE(Read(reportHtml(*host.session, {})).has({"Level", "Level", "0.4", "in", "communication failed"}))
        << "the last value as the operator sees it, and that it is not the present one"
        << reportHtml(*host.session, {}).toStdString();
}

} // namespace
} // namespace zor::tests
