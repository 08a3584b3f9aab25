// The window around the devices: large ones, several, what is remembered, transfers that do not end well.

#include <zor/monitor/device/site_file.h>
#include <zor/monitor/ui/group_tree.h>
#include <zor/monitor/ui/open_dialog.h>
#include <zor/tests/monitor/files.h>
#include <zor/tests/monitor/window_fixture.h>
#include <zor/units/unit_catalogue.h>

#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QProgressDialog>
#include <QStatusBar>
#include <QTableWidget>

namespace zor::tests {
namespace {

/// More groups than fit beside each other as tabs; each begins with a length that is writable.
struct Large : Demo {
    static constexpr int kGroups = 12;
    static constexpr int kRows = 20;

    Large() : Demo(nullptr, parameters()) {}
    static ParameterFile parameters()
    {
        std::string rows;
        for (int i = 0; i < kGroups * kRows; ++i) {
            const std::string number = std::to_string(i);
            rows += R"({"tag": "P)" + number +
                    R"(", "bank": "holding", "type": "uint16", "access": "write", "address": )" + number +
                    R"(, "unit": "LgthU_MM", "caption": "Caption )" + number + R"(", "group": "Group )" +
                    std::to_string(i / kRows) + R"(", "simulation": {"value": )" + std::to_string(1000 + i) +
                    "}},";
        }
        rows.pop_back();
        return readParameterFile(R"({"parameters": [)" + rows + "]}", "large.json");
    }
    /// Types into the search field and takes the first that is found.
    void find(const QString& text)
    {
        auto* search = window->findChild<SearchField*>();
        search->setFocus();
        search->selectAll();
        QTest::keyClicks(search, text);
        QTest::keyClick(search, Qt::Key_Return);
    }
    bool isIn(const char* tag)
    {
        const auto made = window->session().bindings(*window->session().indexOf(tag));
        return !made.empty() &&
               platform::qt::widgetOf(made.front()->control().surface()).isAncestorOf(window->focusWidget());
    }
};

TEST_F(Large, MakesAPageWhenItIsFirstOpenedAndThenAsAllOthersAre)
{
    EXPECT_EQ(window->form().controls().size(), kRows);
    window->setUnits(UnitSystem::Us);
    window->session().readEverything();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window->session().report().find("P239  48.78 in  live") != std::string::npos; }, kPatience))
        << window->session().report();
    window->session().readEverything(false);
    auto* tree = window->findChild<GroupTree*>();
    ASSERT_NE(tree, nullptr);
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    EXPECT_TRUE(untilLive());
    EXPECT_EQ(field("P20").text(), "40.2") << "not in the unit that was chosen before";
    EXPECT_EQ(window->form().controls().size(), 2 * kRows);
    type("P20", "50");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tree->topLevelItem(1)->icon(0).isNull(); }, kPatience)) << "no mark";
    device().stop();
    EXPECT_TRUE(QTest::qWaitFor([&] { return binding("P21").control().CFail(); }, kPatience));
    window->form().tabs()->setCurrentIndex(2);
    EXPECT_TRUE(binding("P40").control().CFail()) << "a page made now looks well";
    EXPECT_EQ(window->session().pending().size(), 1U);
}

TEST_F(Large, FindsATagACaptionAndAValueAndGoesThere)
{
    find("p150");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isIn("P150"); }, kPatience));
    find("tion 33");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isIn("P33"); }, kPatience));
    EXPECT_TRUE(untilLive());
    find("1034");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isIn("P34"); }, kPatience)) << "not by the value that was read";
    find("nowhere");
    EXPECT_TRUE(window->statusBar()->currentMessage().startsWith("No parameter has"));
}

// --- Units and languages

TEST_F(Demo, NeitherUnitsNorLanguagesMakeAnEdit)
{
    for (int tab = 0; tab < window->form().tabs()->count(); ++tab)
        open(tab);
    const auto untouched = [&](const std::string& what) {
        QApplication::processEvents();
        for (const Change& change : window->session().pending())
            ADD_FAILURE() << what << ": " << change.tag << " is to become " << change.newText;
    };
    for (const UNIT_TYPE type : window->session().unitTypes()) {
        const auto* row = units::rowOf(type);
        for (std::int32_t unit = row->first; row->first > 0 && unit <= row->last; ++unit) {
            window->front().setUnit(type, MEAS_TYPE{unit});
            untouched("unit " + std::to_string(unit));
        }
    }
    for (const UnitSystem system : {UnitSystem::Us, UnitSystem::Metric, UnitSystem::Device, UnitSystem::Form}) {
        for (const LanguageRow& language : monitor::kLanguages) {
            window->setUnits(system);
            window->setLanguage(language.code);
            untouched(language.code);
        }
    }
    EXPECT_EQ(window->session().link().writes().requests, 0U);
}

// --- Several devices

struct Several : Demo {
    Several()
    {
        EXPECT_TRUE(window->open({.name = "Second", .address = kSimulated, .period = kPeriod}));
        EXPECT_TRUE(window->open({.name = "Dead", .address = "tcp://127.0.0.1:1", .period = kPeriod}));
    }
    DevicePanel& panel(std::size_t index) { return *window->panels()[index]; }
    QString state(int row)
    {
        return window->findChild<QDockWidget*>("devices")->findChild<QTreeWidget*>()->topLevelItem(row)->text(1);
    }
};

TEST_F(Several, EachHasItsOwnSessionAndADeadOneSlowsNobody)
{
    EXPECT_EQ(&window->front(), &panel(2));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return state(0) == "answers" && state(1) == "answers" && state(2) == "no answer"; }, kPatience));
    EXPECT_TRUE(says("No answer")) << "the status bar speaks of another device";
    const int rounds = panel(0).session().poller().rounds();
    QTest::qWait(5 * kPeriod);
    EXPECT_GE(panel(0).session().poller().rounds() - rounds, 3) << "held up by the one that is dead";
    window->bringToFront(panel(1));
    EXPECT_TRUE(untilLive());
    open(1);
    type("TankHeight", "13");
    EXPECT_TRUE(QTest::qWaitFor([&] { return state(1) == "answers, edited"; }, kPatience));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_FALSE(panel(0).session().hasEdits());
    window->remove(panel(1));
    EXPECT_EQ(window->front().name(), "Dead");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->isWindowModified(); }, kPatience));
}

TEST_F(Several, TwoAreComparedAndOneThatIsDeadIsNamed)
{
    panel(1).device().simulator()->setRegisters(Bank::Holding, 2, {870});
    panel(0).compareWith(panel(1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel(0).transfer().openDialog() != nullptr; }, kPatience));
    const auto* table = panel(0).transfer().openDialog()->findChild<QTableWidget*>();
    int shown = 0;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->isRowHidden(row))
            continue;
        ++shown;
        EXPECT_EQ(table->item(row, 1)->text() + '|' + table->item(row, 2)->text() + '|' +
                      table->item(row, 3)->text(),
                  "HighAlarm|85.0 \u00B0C|87.0 \u00B0C");
    }
    EXPECT_EQ(shown, 1);
    panel(0).transfer().openDialog()->reject();
    panel(0).compareWith(panel(2));
    QMessageBox* box = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (box = panel(2).findChild<QMessageBox*>()) != nullptr; }, kPatience));
    EXPECT_TRUE(box != nullptr && box->text().startsWith("The device did not answer"));
}

TEST_F(Several, AreSavedAsASiteAndOpenedFromIt)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("site.json");
    window->saveSite(file);
    SiteFile site = loadSiteFile(file);
    ASSERT_EQ(site.devices.size(), 3U);
    EXPECT_EQ(site.devices[1].name, "Second");
    EXPECT_TRUE(site.devices[1].isSimulated());
    EXPECT_EQ(site.devices[2].address, "tcp://127.0.0.1:1");
    EXPECT_EQ(site.devices[2].period, kPeriod);
    window->take(file); // as if it had been dropped
    EXPECT_EQ(window->panels().size(), 6U);
    // As the command line may name it.
    site.devices[0].form = "near.ui";
    writeFile(file, textOf(site, folder.path()));
    EXPECT_EQ(loadSiteFile(file).devices[0].form, QFileInfo("near.ui").absoluteFilePath());
}

TEST(SiteFiles, WhatIsWrongIsRefusedWithItsPlaceAndTheSchemaAgrees)
{
    const QByteArray good = "{\"format\": \"zor-site\", \"formatVersion\": 1, \"title\": \"T\", \"devices\": [\n"
                            "{\"name\": \"A\", \"address\": \"simulated\", \"log\": \"a.csv\"},\n"
                            "{\"address\": \"rtu:/dev/x?unit=2\", \"form\": \"b.ui\", \"period\": 100}]}";
    const std::vector<Damage> rows{
        {"", "", nullptr},
        {"zor-site", "zor-settings", "/plant/site.json:1: a site file has the format"},
        {"Version\": 1", "Version\": 2", "/plant/site.json:1: version 1 is expected here"},
        {"\"address\": \"simulated\", ", "", "/plant/site.json:2: \"address\" is missing"},
        {"simulated", "", "/plant/site.json:2: an empty text"},
        {"simulated", "tcp://", "/plant/site.json:2: tcp://: not a device", false},
        {"unit=2", "unit=x", "/plant/site.json:3: rtu:/dev/x?unit=x: ", false},
        {"100}", "99}", "/plant/site.json:3: a whole number from 100"},
        {"\"form\": \"b.ui\"", "\"log\": \"a.csv\"", "/plant/site.json:3: \"log\" is written by another device",
         false},
        {"b.ui", "a.csv", "/plant/site.json:2: \"log\" is a file that is read", false},
        {"\"form\"", "\"from\"", "/plant/site.json:3: \"from\" is not known here"},
        {good.mid(good.indexOf('[')), "[]}", "/plant/site.json:1: a site has 1 to 200 devices"},
    };
    expectRefusals(good, rows, "site-file.schema.json", [](const std::string& text) {
        const SiteFile site = readSiteFile(text, "/plant/site.json");
        EXPECT_EQ(site.devices[1].form, "/plant/b.ui");
        return site;
    });
}

// --- What is remembered

TEST_F(Demo, TheLastDevicesAndTheLanguageAreRememberedAndNothingIsWrittenByThat)
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    const Memory memory(&settings);
    for (int i = 0; i < 12; ++i)
        memory.addRecent({"", QString("tcp://127.0.0.1:%1").arg(i), "a.json"});
    memory.addRecent({"Again", "tcp://127.0.0.1:5", "a.json"});
    ASSERT_EQ(memory.recent().size(), 10);
    EXPECT_EQ(memory.recent().front().name, "Again");
    EXPECT_EQ(memory.recent().front().parameters, QDir::current().absoluteFilePath("a.json"));
    EXPECT_EQ(memory.recent().back().address, "tcp://127.0.0.1:2");
    window->remember(memory);
    window->setLanguage("fr");
    window->resize(911, 613);
    QDockWidget dock;
    dock.setObjectName("mine");
    window->addDock(dock, Qt::BottomDockWidgetArea);
    dock.show();
    EXPECT_TRUE(window->close());
    EXPECT_EQ(memory.language(), "fr");
    window->resize(800, 500);
    dock.hide();
    window->show();
    window->remember(memory);
    EXPECT_EQ(window->size(), QSize(911, 613));
    EXPECT_TRUE(dock.isVisible());
    EXPECT_EQ(window->session().link().writes().requests, 0U);
    window->removeDockWidget(&dock);
}

// --- Transfers that do not end well, and files against files

struct Transfers : Demo {
    QTemporaryDir folder;
    QString file = folder.filePath("settings.json");

    template <class Widget>
    Widget* shown()
    {
        Widget* found = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (found = window->findChild<Widget*>()) != nullptr; }, kPatience));
        return found;
    }
};

TEST_F(Transfers, CancelEndsTheReadingAndLeavesNoFile)
{
    window->front().transfer().save(file);
    auto* progress = shown<QProgressDialog>();
    button(*progress, "Cancel")->click();
    EXPECT_EQ(window->statusBar()->currentMessage(), "Cancelled; nothing has been written");
    QTest::qWait(3 * kPeriod);
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_FALSE(window->session().readsEverything());
    window->front().transfer().save(file);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }, kPatience)) << "not to be begun again";
}

TEST_F(Transfers, ADeviceThatDiesMeanwhileIsNamedAndTheFileStaysAsItWas)
{
    writeFile(file, "before");
    window->front().transfer().save(file);
    ASSERT_NE(shown<QProgressDialog>(), nullptr);
    device().stop();
    const auto* box = shown<QMessageBox>();
    EXPECT_TRUE(box->text().startsWith("The device did not answer for all parameters: the connection was"))
        << box->text().toStdString();
    EXPECT_EQ(textIn(file), "before");
    EXPECT_FALSE(window->session().hasEdits());
}

TEST_F(Transfers, TheMenuOfAControlCopiesItsValueAndSetsItToThatOfAFile)
{
    open(1);
    window->front().transfer().save(file);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }, kPatience));
    device().setRegisters(Bank::Holding, 2, {870});
    EXPECT_TRUE(QTest::qWaitFor([&] { return field("HighAlarm").text() == "87.0"; }, kPatience));
    const std::size_t parameter = *window->session().indexOf("HighAlarm");
    window->front().transfer().setToOtherFile(parameter, file);
    EXPECT_EQ(field("HighAlarm").text(), "85.0");
    window->front().undoAll();
    QMenu menu;
    window->front().addTo(menu, binding("HighAlarm"));
    ASSERT_EQ(menu.actions().size(), 3);
    EXPECT_EQ(menu.actions()[1]->text(), "Set to &file value (settings.json: 85.0 \u00B0C)");
    menu.actions()[0]->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "87.0");
    menu.actions()[1]->trigger();
    ASSERT_EQ(window->session().pending().size(), 1U);
    EXPECT_EQ(window->session().pending().front().newText, "85.0");
    EXPECT_EQ(window->session().link().writes().requests, 0U);
}

TEST_F(Transfers, AFileThatIsDroppedIsOfferedForWhatItIs)
{
    const auto drop = [&](const QString& name) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(name)});
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        QDropEvent event(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted())
            QApplication::sendEvent(window.get(), &event);
        return enter.isAccepted();
    };
    const auto offered = [&](const QString& name) {
        DeviceEntry entry;
        QTimer::singleShot(200, [&] {
            if (auto* dialog = dynamic_cast<OpenDialog*>(QApplication::activeModalWidget())) {
                entry = dialog->entry();
                dialog->reject();
            }
        });
        EXPECT_TRUE(drop(name));
        QTest::qWait(300);
        return entry.parameters + '|' + entry.form;
    };
    EXPECT_FALSE(drop(folder.filePath("a.txt")));
    EXPECT_EQ(offered("/a/b.ui"), "|/a/b.ui");
    const QString parameters = writeFile(folder.filePath("device.json"), "");
    EXPECT_EQ(offered(parameters), parameters + '|');
    window->front().transfer().save(file);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }, kPatience));
    EXPECT_TRUE(drop(file));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->front().transfer().openDialog() != nullptr; }, kPatience));
    const QString site = folder.filePath("site.json");
    window->saveSite(site);
    EXPECT_TRUE(drop(site));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->panels().size() == 2; }, kPatience));
}

TEST_F(Transfers, AReportIsSavedWhileTheWindowGoesOn)
{
    const QString report = folder.filePath("a.pdf");
    window->report().make(window->front(), report, file, false);
    EXPECT_TRUE(shown<QMessageBox>()->text().startsWith("This is no settings file")) << "there is none";
    delete window->findChild<QMessageBox*>();
    window->report().make(window->front(), report, "", false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->statusBar()->currentMessage().startsWith("Report saved"); },
                                kPatience));
    EXPECT_TRUE(textIn(report).startsWith("%PDF-"));
    window->report().make(window->front(), folder.filePath("no/a.pdf"), "", false);
    EXPECT_TRUE(shown<QMessageBox>()->text().contains("no/a.pdf: "));
}

TEST_F(Transfers, TwoFilesAreComparedWithoutTheDevice)
{
    window->front().transfer().save(file);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }, kPatience));
    SettingsFile other = loadSettingsFile(file.toStdString());
    std::erase_if(other.settings, [](const Setting& setting) { return setting.tag == "Damping"; });
    const QString second = writeFile(folder.filePath("second.json"), textOf(other));
    device().stop();
    window->front().transfer().compareFiles(file, second);
    const SettingsDialog* dialog = window->front().transfer().openDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->comparison().count(Verdict::Same), other.settings.size());
    EXPECT_EQ(dialog->comparison().count(Verdict::MissingHere), 1U);
    EXPECT_EQ(dialog->findChild<QTableWidget*>()->horizontalHeaderItem(3)->text(), "Second file");
}

} // namespace
} // namespace zor::tests
