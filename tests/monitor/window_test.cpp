// The window against the simulated device, over real TCP: what an operator sees and does.

#include <zor/controls/registration.h>
#include <zor/monitor/ui/frames_dock.h>
#include <zor/monitor/ui/group_tree.h>
#include <zor/monitor/ui/scan_dialog.h>
#include <zor/monitor/ui/search_field.h>
#include <zor/monitor/ui/settings_dialog.h>
#include <zor/monitor/ui/window.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace zor::monitor {
namespace {

constexpr int kPeriod = 200;
constexpr int kPatience = 5000;

ParameterFile demoFile()
{
    QFile file(":/monitor/demo.json");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return readParameterFile(file.readAll().toStdString(), "demo.json");
}

struct Demo : testing::Test {
    /// With the form of a file, or else a generated one.
    explicit Demo(const char* drawn = nullptr, ParameterFile parameters = demoFile()) : file(std::move(parameters))
    {
        registerControls(classes);
        languages.use("en");
        DeviceEntry entry;
        entry.period = kPeriod;
        auto own = std::make_unique<Device>(entry, file);
        std::unique_ptr<Form> form;
        if (drawn != nullptr)
            form = std::make_unique<UiForm>(drawn, classes);
        else
            form = std::make_unique<GeneratedForm>(own->session().file(), classes);
        window =
            std::make_unique<Window>(std::make_unique<DevicePanel>(std::move(own), std::move(form)), languages);
        window->show();
        window->front().device().start();
        EXPECT_TRUE(untilLive());
    }
    ~Demo() override
    {
        window.reset();
        languages.use("en");
    }

    Simulator& device() { return *window->front().device().simulator(); }
    Binding& binding(std::string_view tag)
    {
        const auto all = window->session().bindings();
        return **std::ranges::find_if(all, [&](const auto& bound) { return bound->control().DeviceTag() == tag; });
    }
    /// Every control that the operator sees.
    template <class Condition>
    bool all(Condition condition)
    {
        return std::ranges::all_of(window->session().bindings(), [&](const auto& bound) {
            return !isInSight(bound->control()) || condition(bound->control());
        });
    }
    bool untilLive()
    {
        return QTest::qWaitFor(
            [&] { return all([](core::Control& c) { return !c.CFail() && !c.WaitingForData(); }); }, kPatience);
    }
    void open(int tab)
    {
        window->form().tabs()->setCurrentIndex(tab);
        EXPECT_TRUE(untilLive());
    }
    platform::TextField& field(std::string_view tag)
    {
        return dynamic_cast<platform::TextField&>(*binding(tag).control().widget(1));
    }
    void type(std::string_view tag, const QString& text)
    {
        QWidget& edit = platform::qt::widgetOf(field(tag));
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&edit, text);
    }
    /// Whether a label that can be seen has the text in it.
    bool says(const QString& text)
    {
        const auto labels = window->findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](QLabel* l) { return l->isVisible() && l->text().contains(text); });
    }
    QAbstractButton* button(QWidget& dialog, const QString& text)
    {
        const auto buttons = dialog.findChildren<QAbstractButton*>();
        const auto found = std::ranges::find_if(buttons, [&](auto* one) { return one->text() == text; });
        return found == buttons.end() ? nullptr : *found;
    }

    core::ClassRegistry classes;
    Languages languages;
    const ParameterFile file;
    std::unique_ptr<Window> window;
};

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
    EXPECT_TRUE(says("No answer: the connection was refused"));
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
    dialog->findChild<QLineEdit*>()->setText("damp");
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
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return says("Last failure: the connection was refused. The host is"); }, kPatience));
    button(dock, "&Pause")->click();
    const int rows = table.model()->rowCount();
    ASSERT_TRUE(device().start());
    EXPECT_TRUE(untilLive());
    EXPECT_EQ(table.model()->rowCount(), rows);
    QTemporaryDir folder;
    dock.save(folder.filePath("frames.txt"));
    QFile saved(folder.filePath("frames.txt"));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll().count(" <- unit 1  "), rows);
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
}

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

struct Drawn : Demo {
    Drawn() : Demo(ZOR_TEST_DATA "/../../monitor/device/demo.ui") {}
};

TEST_F(Drawn, ShowsAllNineClassesAndWritesThroughThem)
{
    std::set<std::string_view> seen;
    for (core::Control* control : window->form().controls())
        seen.insert(control->info().name);
    EXPECT_EQ(seen.size(), 9U);
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
    QFile file(folder.filePath("plain.ui"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"(<ui version="4.0"><class>F</class><widget class="QWidget" name="F"><property name="geometry">
        <rect><x>0</x><y>0</y><width>500</width><height>400</height></rect></property>
        <widget class="zor::ZorTextBox" name="box"><property name="geometry">
        <rect><x>20</x><y>340</y><width>301</width><height>21</height></rect></property></widget>
        <widget class="zor::ZorSlider" name="track"><property name="geometry">
        <rect><x>20</x><y>20</y><width>301</width><height>60</height></rect></property></widget></widget></ui>)");
    file.close();
    core::ClassRegistry classes;
    registerControls(classes);
    Languages languages;
    DeviceEntry entry;
    entry.address = "tcp://127.0.0.1:1";
    Window window(std::make_unique<DevicePanel>(std::make_unique<Device>(entry, demoFile()),
                                                std::make_unique<UiForm>(file.fileName(), classes)),
                  languages);
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
    Tutorial() : Demo(ZOR_TEST_DATA "/forms/flow.ui", parameters()) {}
    static ParameterFile parameters()
    {
        QFile manual(ZOR_TEST_DATA "/../../docs/monitor.md");
        EXPECT_TRUE(manual.open(QIODevice::ReadOnly));
        const QString text = manual.readAll();
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
} // namespace zor::monitor
