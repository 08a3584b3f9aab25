// The window against the simulated device, over real TCP: what an operator sees and does.

#include <zor/monitor/ui/frames_dock.h>
#include <zor/monitor/ui/scan_dialog.h>
#include <zor/tests/monitor/window_fixture.h>

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QScrollArea>
#include <QStatusBar>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>

#include <set>

namespace zor::tests {
namespace {

TEST_F(Demo, ShowsParametersInTheUnitsAndTheLanguageOfTheOperator)
{
    open(1);
    EXPECT_EQ(field("TankHeight").text(), "12.500");
    EXPECT_EQ(field("TagName").text(), "TK-101 North");
    window->setUnits(UnitSystem::Us);
    EXPECT_EQ(field("TankHeight").text(), "41.010");
    window->setUnits(UnitSystem::Device);
    EXPECT_EQ(field("TankHeight").text(), "125000.00");
    window->setUnits(UnitSystem::Form);
    type("TankHeight", "13.25");
    window->setLanguage("de");
    EXPECT_EQ(field("TankHeight").text(), "13,250") << "an edit goes along with the separators";
    EXPECT_TRUE(binding("TankHeight").isModified());
    EXPECT_EQ(field("HighAlarm").text(), "85,0");
    EXPECT_EQ(window->form().tabs()->tabText(1), "Einstellungen");
    EXPECT_EQ(binding("TankHeight").control().MsgCfail(), "Keine Verbindung zum Ger\u00E4t!");
    window->setLanguage("fr");
    EXPECT_EQ(binding("TankHeight").control().MsgCfail(), "Pas de communication avec l'appareil !");
    window->setLanguage("en");
    EXPECT_EQ(binding("TankHeight").control().MsgCfail(), "Communication Failure !");
    EXPECT_EQ(field("TankHeight").text(), "13.250");
    EXPECT_EQ(window->session().pending().size(), 1U);
}

TEST_F(Demo, WritesWhatHasBeenReviewed)
{
    open(1);
    type("HighAlarm", "91.26");
    const auto dotted = [&](int tab) { return !window->form().tabs()->tabIcon(tab).isNull(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return dotted(1) && !dotted(0) && says("connected"); }, kPatience));
    window->front().review();
    ASSERT_NE(window->front().openReview(), nullptr);
    auto* table = window->front().openReview()->findChild<QTableWidget*>();
    QTest::keyClick(window->front().openReview()->focusWidget(), Qt::Key_Return,
                    Qt::ControlModifier); // struck twice
    QString row;
    for (int column = 0; column < table->columnCount(); ++column)
        row += table->item(0, column)->text() + '|';
    EXPECT_EQ(row, "High temperature alarm|HighAlarm|85.0 \u00B0C|91.3 \u00B0C||")
        << "what is shown is what the registers will hold";
    EXPECT_EQ(device().registers(Bank::Holding, 2, 1), (Registers{850})) << "written before the review has ended";
    device().setRegisters(Bank::Holding, 2, {870}); // another master
    EXPECT_TRUE(QTest::qWaitFor([&] { return table->item(0, 2)->text() == "87.0 \u00B0C"; }, kPatience));
    EXPECT_FALSE(button(*window->front().openReview(), "&Write")->isEnabled()) << "not without another yes";
    window->front().openReview()->findChild<QCheckBox*>()->click();
    button(*window->front().openReview(), "&Write")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->session().hasEdits(); }, kPatience));
    EXPECT_EQ(device().registers(Bank::Holding, 2, 1), (Registers{913}));
    EXPECT_EQ(field("HighAlarm").text(), "91.3");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dotted(1); }, kPatience));
    window->front().review();
    EXPECT_EQ(window->front().openReview(), nullptr) << "nothing to write";
    EXPECT_EQ(window->statusBar()->currentMessage(), "Nothing to write");
    EXPECT_FALSE(says("connected")) << "the message has no room";
}

TEST_F(Demo, ADeadDeviceFailsEveryControlWithinTwoPeriodsAndARevivedOneRecovers)
{
    open(1);
    type("TankHeight", "13");
    device().stop();
    const int rounds = window->session().poller().rounds();
    EXPECT_TRUE(QTest::qWaitFor([&] { return all([](core::Control& c) { return c.CFail(); }); }, kPatience));
    EXPECT_LE(window->session().poller().rounds() - rounds, 2);
    EXPECT_TRUE(binding("Distance").control().CFail()) << "on the other tabs as well";
    // Losing the connection may be heard of first.
    EXPECT_TRUE(QTest::qWaitFor([&] { return says("No answer: the connection was refused"); }, kPatience));
    ASSERT_TRUE(device().start());
    EXPECT_TRUE(untilLive());
    EXPECT_EQ(field("TankHeight").text(), "13") << "the edit was lost";
    open(0);
    EXPECT_EQ(binding("Density").control().DataNotAvailable(), true);
}

TEST_F(Demo, AParameterThatTheFirmwareLacksIsHidden)
{
    open(3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return binding("SelfTest").control().DeviceVerNotSupported(); }, kPatience));
    EXPECT_FALSE(binding("Supply").control().DeviceVerNotSupported());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !says("Self-test interval"); }, kPatience));
    EXPECT_FALSE(isInSight(binding("SelfTest").control())) << "a hole in its place";
    EXPECT_TRUE(says("Supply"));
}

TEST_F(Demo, ClosingWithEditsAsksAndClosingWithAReplyPendingIsSafe)
{
    open(1);
    type("TankHeight", "13");
    QString question;
    QTimer::singleShot(100, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        question = box != nullptr ? box->text() : "no question";
        if (box != nullptr)
            box->button(QMessageBox::Cancel)->click();
    });
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(question.startsWith("There are edits")) << question.toStdString();
    EXPECT_TRUE(window->isVisible());
    window->session().poller().pollNow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->session().link().pending() > 0; }, kPatience));
    window.reset();
    QTest::qWait(kPeriod);
}

TEST_F(Demo, LoadsFromASettingsFileWhatIsTickedThroughTheReview)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("settings.json");
    window->front().transfer().save(file);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }, kPatience));
    const auto settings = loadSettingsFile(file.toStdString()).settings;
    EXPECT_EQ(settings.size(), 11U);
    const auto held = [&](const Setting& setting) {
        const Location& location = this->file.parameters[*window->session().indexOf(setting.tag)].location;
        return device().registers(Bank::Holding, location.address, location.registers);
    };
    for (const Setting& setting : settings) {
        const Location& location = this->file.parameters[*window->session().indexOf(setting.tag)].location;
        Registers other = held(setting);
        other.back() ^= static_cast<std::uint16_t>(1U << location.bit);
        device().setRegisters(Bank::Holding, location.address, other);
    }
    window->front().transfer().load(file);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->front().transfer().openDialog() != nullptr; }, kPatience));
    SettingsDialog* dialog = window->front().transfer().openDialog();
    EXPECT_EQ(dialog->ticked().size(), settings.size());
    auto* table = dialog->findChild<QTableWidget*>();
    QTest::keyClicks(dialog->findChild<QLineEdit*>(), "damp\r");
    EXPECT_TRUE(says("11 ticked, 10 of them not shown")) << "or Return has taken them";
    EXPECT_FALSE(table->isRowHidden(table->currentRow())) << "Space ticks what nobody sees";
    for (int row = 0; row < table->rowCount(); ++row)
        EXPECT_EQ(table->isRowHidden(row), table->item(row, 1)->text() != "Damping");
    button(*dialog, "Tick &none shown")->click();
    dialog->accept();
    EXPECT_EQ(window->session().pending().size(), settings.size() - 1);
    ASSERT_NE(window->front().openReview(), nullptr);
    button(*window->front().openReview(), "&Write")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->session().hasEdits(); }, 2 * kPatience));
    for (const Setting& setting : settings)
        EXPECT_EQ(held(setting) == setting.registers, setting.tag != "Damping") << setting.tag;
}

TEST_F(Demo, FramesShowWhatGoesOverTheLineAndWhyItFails)
{
    FramesDock& dock = FramesDock::addTo(*window);
    EXPECT_FALSE(dock.isVisible());
    dock.toggleViewAction()->trigger();
    auto& table = *dock.findChild<QTableView*>();
    auto& fields = *dock.findChild<QTreeWidget*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() > 2; }, kPatience));
    const auto cell = [&](int column) { return table.model()->index(0, column).data().toString(); };
    EXPECT_EQ(cell(1) + ", " + cell(2), "request, 1");
    dock.findChild<QComboBox*>()->setCurrentIndex(1);
    dock.findChild<QLineEdit*>()->setText("exception 2");
    ASSERT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() > 0; }, kPatience));
    table.selectRow(0);
    EXPECT_EQ(fields.topLevelItem(fields.topLevelItemCount() - 1)->text(1),
              "2 (the device does not have this address)");
    EXPECT_TRUE(says("Check bank and address in the parameter file"));
    window->setLanguage("de");
    EXPECT_TRUE(QTest::qWaitFor([&] { return fields.topLevelItem(3)->text(0) == "Ger\u00E4t"; }, kPatience));
    window->setLanguage("en");
    device().stop();
    EXPECT_TRUE(QTest::qWaitFor([&] { return says(": the connection was refused. The host is"); }, kPatience));
    button(dock, "&Pause")->click();
    const int rows = table.model()->rowCount();
    ASSERT_TRUE(device().start());
    EXPECT_TRUE(untilLive());
    EXPECT_EQ(table.model()->rowCount(), rows);
    QTemporaryDir folder;
    dock.save(folder.filePath("frames.txt"));
    EXPECT_EQ(textIn(folder.filePath("frames.txt")).count(" <- unit 1  "), rows);
}

TEST_F(Demo, ConnectsToADeviceThatWasLookedFor)
{
    Simulator other(file);
    ASSERT_TRUE(other.start());
    other.setRegisters(Bank::Holding, 2, {777});
    open(1);
    ScanDialog& dialog = ScanDialog::openFor(window->front());
    auto& table = *dialog.findChild<QTableWidget*>();
    const QString address = QString("tcp://127.0.0.1:%1?unit=1").arg(other.port());
    dialog.setAddresses("127.0.0.1:1\n" + address + "\n");
    button(dialog, "&Scan")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.isRunning() && table.rowCount() == 2; }, kPatience));
    const int row = table.item(0, 0)->text() == address ? 0 : 1;
    EXPECT_EQ(table.item(1 - row, 0)->text(), "127.0.0.1:1");
    EXPECT_TRUE(table.item(1 - row, 4)->text().startsWith("the connection was refused. The host"));
    table.setCurrentCell(1 - row, 0);
    EXPECT_FALSE(button(dialog, "Co&nnect")->isEnabled());
    EXPECT_EQ(table.item(row, 3)->text(), "ZorSmartControls ZT100 2.3");
    table.setCurrentCell(row, 0);
    button(dialog, "Co&nnect")->click();
    const unsigned before = window->session().device();
    EXPECT_TRUE(QTest::qWaitFor([&] { return field("HighAlarm").text() == "77.7"; }, kPatience));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->session().device() != before; }, kPatience));
    EXPECT_FALSE(window->windowTitle().contains("simulated")) << window->windowTitle().toStdString();
    const auto actions = window->findChildren<QAction*>();
    EXPECT_TRUE(std::ranges::none_of(actions, [](auto* one) { return one->text() == "&Simulated device runs"; }));
}

struct Drawn : Demo {
    Drawn() : Demo(ZOR_TEST_DATA "/../../monitor/device/demo.ui") {}
};

TEST_F(Drawn, ShowsAllNineClassesAndWritesThroughThem)
{
    std::set<std::string_view> seen;
    for (core::Control* control : window->form().controls())
        seen.insert(control->info().name);
    EXPECT_EQ(seen.size(), 9U);
    for (const char* form : {"flow/flow.ui", "overview/overview.ui", "tank/tank.ui"})
        EXPECT_NO_THROW(UiForm(QString(ZOR_TEST_DATA "/../../examples/") + form, classes)) << form;
    const auto control = [&](std::string_view tag) -> core::Control& { return binding(tag).control(); };
    open(0);
    EXPECT_EQ(control("Serial").property("LabelCaption"), Variant("Z-0047110"));
    EXPECT_TRUE(control("Unheard").DeviceTagNotFound());
    EXPECT_EQ(control("DeviceStatus").property("DeviceValue"), Variant(8));
    open(1);
    EXPECT_EQ(control("Echo").property("DeviceValue"), Variant(1));
    control("Damping").setProperty("ModifiedValue", 42);
    window->front().review();
    ASSERT_NE(window->front().openReview(), nullptr);
    window->front().openReview()->accept();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->session().hasEdits(); }, kPatience));
    EXPECT_EQ(device().registers(Bank::Holding, 3, 1), (Registers{42}));
}

// As Designer saves a form that nobody has laid out.
TEST(DrawnForm, KeepsTheSizeItWasDrawnInAndScrollsInLessRoom)
{
    QTemporaryDir folder;
    const QString file =
        writeFile(folder.filePath("plain.ui"),
                  R"(<ui version="4.0"><class>F</class><widget class="QWidget" name="F"><property name="geometry">
        <rect><x>0</x><y>0</y><width>500</width><height>400</height></rect></property>
        <widget class="zor::ZorTextBox" name="box"><property name="geometry">
        <rect><x>20</x><y>340</y><width>301</width><height>21</height></rect></property></widget>
        <widget class="zor::ZorSlider" name="track"><property name="geometry">
        <rect><x>20</x><y>20</y><width>301</width><height>60</height></rect></property></widget></widget></ui>)");
    core::ClassRegistry classes;
    registerControls(classes);
    Languages languages;
    DeviceEntry entry;
    entry.address = "tcp://127.0.0.1:1";
    Window window(std::make_unique<DevicePanel>(std::make_unique<Device>(entry, demoFile()),
                                                std::make_unique<UiForm>(file, classes)),
                  languages, classes);
    window.show();
    QWidget& box = platform::qt::widgetOf(window.form().controls().front()->surface());
    EXPECT_GE(window.form().widget().height(), 400);
    window.form().arrange();
    const auto veils = window.findChildren<QWidget*>("noValueVeil");
    ASSERT_EQ(veils.size(), 1) << "over the track, which was never read";
    EXPECT_EQ(veils.front()->size(), veils.front()->parentWidget()->size());
    EXPECT_EQ(box.visibleRegion().boundingRect().size(), QSize(301, 21));
    window.resize(200, 200);
    QApplication::processEvents();
    EXPECT_EQ(box.parentWidget()->parentWidget()->size(), QSize(500, 400));
    auto& area = dynamic_cast<QScrollArea&>(window.form().widget());
    area.ensureWidgetVisible(&box);
    EXPECT_FALSE(box.visibleRegion().isEmpty());
}

/// What the manual's tutorial makes.
struct Tutorial : Demo {
    Tutorial() : Demo(ZOR_TEST_DATA "/../../examples/flow/flow.ui", parameters()) {}
    static ParameterFile parameters()
    {
        const QString text = textIn(ZOR_TEST_DATA "/../../docs/monitor.md");
        return readParameterFile(text.section("```json flow.json", 1, 1).section("```", 0, 0).toStdString(),
                                 "monitor.md");
    }
};

TEST_F(Tutorial, CanBeFollowedToItsEnd)
{
    type("Damping", "4.5");
    window->front().review();
    ASSERT_NE(window->front().openReview(), nullptr);
    button(*window->front().openReview(), "&Write")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->session().hasEdits(); }, kPatience));
    EXPECT_EQ(device().registers(Bank::Holding, 100, 1), (Registers{45}));
    EXPECT_EQ(field("Damping").text(), "4.5");
}

} // namespace
} // namespace zor::tests
