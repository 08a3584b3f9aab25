// The session with every class of controls: it goes by the names of their properties and methods.

#include <zor/tests/monitor/session_fixture.h>

namespace zor::monitor {
namespace {

using tests::Host;
using tests::Peer;

/// The constituent widget of a kind.
template <class Widget>
Widget& widgetOf(core::Control& control)
{
    for (int number = 0; number < 16; ++number) {
        if (auto* widget = dynamic_cast<Widget*>(control.widget(number)))
            return *widget;
    }
    throw std::logic_error("no such widget");
}

Variant get(core::Control& control, const char* property) { return control.property(property); }

/// A device and a host without a window.
struct Classes : testing::Test {
    Peer peer;
    Host host{peer.serverPort()};
};

TEST_F(Classes, BitsThatShareARegisterAreWrittenTogetherAndNoOtherIsTouched)
{
    // register 50 holds 50: bits 1, 4 and 5
    core::Control& list = *host.add("ctx_ZorListBox", "Flags");
    core::Control& four = *host.add("ctx_ZorCheckBox", "Flags");
    core::Control& horn = *host.add("ctx_ZorCheckBox", "Horn");
    four.setProperty("BitFieldEntryIndex", 4);
    horn.setProperty("BitFieldEntryIndex", 2); // which makes no sense of a single bit
    host.start();
    EXPECT_EQ(list.property("SelCount"), Variant(2));
    EXPECT_EQ(get(four, "CheckBoxValue"), Variant(true));
    EXPECT_EQ(get(horn, "CheckBoxValue"), Variant(false));
    host.hands.toggle(widgetOf<platform::ListBox>(list), 2);
    host.hands.press(widgetOf<platform::ToggleButton>(four));
    host.hands.press(widgetOf<platform::ToggleButton>(horn));
    const std::vector<Change> changes = host.session->pending();
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[0].tag + ' ' + changes[0].oldText + " -> " + changes[0].newText,
              "Flags Four=1, Six=0 -> Four=0, Six=1");
    EXPECT_EQ(changes[1].oldText + changes[1].newText, "01");
    peer.functions.clear();
    peer.registers[50] = static_cast<std::uint16_t>(peer.registers[50] | 0x8000U); // the device itself, just now
    for (const Written& written : host.write())
        EXPECT_EQ(written.result.outcome, WriteOutcome::Written);
    EXPECT_EQ(peer.registers[50], 0x8000 + 2 + 32 + 64 + 1);
    EXPECT_EQ(std::ranges::count(peer.functions, 6), 1) << "not in one write";
    EXPECT_FALSE(host.session->hasEdits());
    EXPECT_EQ(get(four, "CheckBoxValue"), Variant(false));
}

TEST_F(Classes, TwoControlsThatDisagreeAboutABitAreNamed)
{
    core::Control& one = *host.add("ctx_ZorTextBox", "Limit");
    core::Control& two = *host.add("ctx_ZorTextBox", "Limit");
    one.setProperty("InvalidEntryEnable", false);
    two.setProperty("InvalidEntryEnable", false);
    host.start();
    for (core::Control* box : {&one, &two}) {
        host.hands.type(widgetOf<platform::TextField>(*box), box == &one ? "5" : "6");
        host.hands.blur(widgetOf<platform::TextField>(*box));
    }
    EXPECT_EQ(host.session->pending().at(0).problem, Problem::Conflict);
    EXPECT_TRUE(host.write().empty());
    EXPECT_EQ(peer.registers[20], 20);
}

TEST_F(Classes, OptionButtonsAreOneChoice)
{
    std::vector<core::Control*> buttons;
    for (const int value : {39, 40, 41}) {
        buttons.push_back(host.add("ctx_ZorOptionButton", "Mode"));
        buttons.back()->setProperty("EnumEntryValue", value);
    }
    host.start();
    const auto chosen = [&] {
        std::string text;
        for (core::Control* button : buttons)
            text += get(*button, "OptionButtonValue").toBoolean() ? 'x' : '-';
        return text;
    };
    EXPECT_EQ(chosen(), "-x-");
    host.hands.press(widgetOf<platform::ToggleButton>(*buttons[2]));
    EXPECT_EQ(chosen(), "--x");
    peer.registers[40] = 39;
    host.rounds();
    EXPECT_EQ(chosen(), "--x") << "somebody else's value within our choice";
    EXPECT_TRUE(get(*buttons[2], "DataChanged").toBoolean());
    ASSERT_EQ(host.session->pending().size(), 1U);
    EXPECT_EQ(host.write().at(0).result.outcome, WriteOutcome::Written);
    EXPECT_EQ(peer.registers[40], 41);
    EXPECT_EQ(chosen(), "--x");
    EXPECT_FALSE(host.session->hasEdits());
    host.hands.press(widgetOf<platform::ToggleButton>(*buttons[0]));
    host.hands.press(widgetOf<platform::ToggleButton>(*buttons[1]));
    EXPECT_EQ(chosen(), "-x-");
    host.session->undoAll();
    EXPECT_EQ(chosen(), "--x");
}

TEST_F(Classes, AnotherLanguageKeepsTheChoiceThatIsBeingEdited)
{
    core::Control& combo = *host.add("ctx_ZorComboBox", "Mode");
    core::Control& still = *host.add("ctx_ZorComboBox", "Mode");
    core::Control& steps = *host.add("ctx_ZorUpDown", "Gone");
    core::Control& button = *host.add("ctx_ZorOptionButton", "Gone");
    host.start();
    auto& box = widgetOf<platform::ComboBox>(combo);
    EXPECT_EQ(box.selectedText(), "Forty");
    EXPECT_EQ(widgetOf<platform::TextField>(steps).text(), "") << "never read";
    EXPECT_FALSE(widgetOf<platform::ToggleButton>(button).isOn()) << "stands for 0, which nobody has read";
    EXPECT_EQ(get(steps, "MaxValue"), Variant(65535.0));
    host.hands.choose(box, 1);
    host.session->setLanguage("de");
    EXPECT_EQ(box.selectedText(), "Mehr");
    EXPECT_TRUE(get(combo, "DataModified").toBoolean());
    EXPECT_FALSE(get(still, "DataModified").toBoolean());
    EXPECT_EQ(host.session->pending().at(0).newText, "Mehr");
    EXPECT_EQ(host.write().at(0).result.outcome, WriteOutcome::Written);
    EXPECT_EQ(peer.registers[40], 41);
    peer.registers[40] = 7;
    host.rounds();
    EXPECT_TRUE(get(combo, "InvalidValue").toBoolean()) << "no entry has the value 7";
    EXPECT_EQ(box.selectedText(), "7");
    peer.registers[40] = 40;
    host.rounds();
    EXPECT_EQ(box.selectedText() + std::to_string(box.count()), "Forty2");
}

TEST_F(Classes, DisplayControlsShowAnyParameter)
{
    core::Control& level = *host.add("ctx_ZorLabel", "Level");
    core::Control& mode = *host.add("ctx_ZorLabel", "Mode");
    core::Control& image = *host.add("ctx_ZorImage", "Flags");
    host.start();
    EXPECT_EQ(get(level, "LabelCaption"), Variant("10 mm"));
    host.session->setUnits(UnitSystem::Us);
    EXPECT_EQ(get(level, "LabelCaption"), Variant("0.4 in"));
    EXPECT_EQ(get(mode, "LabelCaption"), Variant("Forty"));
    EXPECT_EQ(get(image, "DeviceValue"), Variant(50));
    std::string said;
    host.container.onMessage = [&](platform::Component&, const platform::MessageBox& box) {
        said = std::string(box.title).append(box.text);
    };
    host.hands.pointer(widgetOf<platform::Image>(image), platform::Pointer::Click);
    EXPECT_EQ(said,
              "Status - FlagsDetailed information about Flags:\r\n\r\n- One\r\n- Four\r\n- Unnamed (bit 5)\r\n");
}

TEST(EachClass, TheOthersValueIsHandedToTheControlThatShowsIt)
{
    struct Row {
        const char* className;
        const char* tag;
        int address;
        std::uint16_t other;
        Variant told;
        const char* said;
        void (*edit)(Host&, core::Control&);
    };
    const std::vector<Row> rows{
        {"ctx_ZorUpDown", "Limit", 20, 33, 33, "33 mm",
         [](Host& host, core::Control& c) { host.hands.spin(widgetOf<platform::SpinButton>(c), true); }},
        {"ctx_ZorSlider", "Limit", 20, 33, 33, "33 mm",
         [](Host& host, core::Control& c) { host.hands.moveTo(widgetOf<platform::Track>(c), 44); }},
        {"ctx_ZorComboBox", "Mode", 40, 7, 7, "7",
         [](Host& host, core::Control& c) { host.hands.choose(widgetOf<platform::ComboBox>(c), 1); }},
        {"ctx_ZorListBox", "Flags", 50, 3, 3, "0, One",
         [](Host& host, core::Control& c) { host.hands.toggle(widgetOf<platform::ListBox>(c), 2); }},
        {"ctx_ZorCheckBox", "Flags", 50, 3, true, "0=1",
         [](Host& host, core::Control& c) { host.hands.press(widgetOf<platform::ToggleButton>(c)); }},
        {"ctx_ZorOptionButton", "Mode", 40, 7, 7, "7",
         [](Host& host, core::Control& c) { host.hands.press(widgetOf<platform::ToggleButton>(c)); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.className);
        Peer peer;
        Host host(peer.serverPort());
        core::Control& control = *host.add(row.className, row.tag);
        for (const auto& [name, value] : {std::pair("MinValue", 0.0), std::pair("MaxValue", 1000.0)}) {
            if (control.info().property(name) != nullptr)
                control.setProperty(name, value);
        }
        if (control.info().property("DeviceUnit") != nullptr)
            control.setProperty("DeviceUnit", static_cast<std::int32_t>(LgthU_MM));
        if (control.info().property("EnumEntryValue") != nullptr)
            control.setProperty("EnumEntryValue", 41);
        host.start();
        row.edit(host, control);
        ASSERT_TRUE(get(control, "DataModified").toBoolean());
        peer.registers[static_cast<std::size_t>(row.address)] = row.other;
        EXPECT_TRUE(host.until([&] { return get(control, "DataChanged").toBoolean(); }));
        EXPECT_EQ(get(control, "OtherUserValue"), row.told);
        EXPECT_EQ(get(control, "MsgDataChanged").toText(),
                  std::string("Data Changed by other user to ") + row.said);
        EXPECT_TRUE(get(control, "DataModified").toBoolean()) << "the edit was lost";
    }
}

} // namespace
} // namespace zor::monitor
