// The monitor against the embedded device, over real TCP: what an operator would see.

#include "monitor/device.h"
#include "monitor/window.h"

#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace zor::monitor {
namespace {

constexpr int kPeriod = 200;
constexpr int kPatience = 5000;

std::size_t indexOf(std::string_view tag)
{
    const auto row = std::ranges::find(kParameters, tag, &Parameter::tag);
    return static_cast<std::size_t>(row - kParameters.begin());
}

struct Demo : testing::Test {
    Demo()
    {
        EXPECT_TRUE(device.start()) << device.error().toStdString();
        window = std::make_unique<Window>("127.0.0.1", device.port(), kPeriod);
        window->show();
    }

    template <class Condition>
    bool all(Condition condition)
    {
        for (std::size_t i = 0; i < kParameters.size(); ++i) {
            if (!condition(window->box(i)))
                return false;
        }
        return true;
    }

    bool live()
    {
        return QTest::qWaitFor(
            [&] { return all([](const ctx_ZorTextBox& box) { return !box.CFail() && !box.WaitingForData(); }); },
            kPatience);
    }

    platform::TextField& field(std::size_t parameter)
    {
        return dynamic_cast<platform::TextField&>(*window->box(parameter).widget(1));
    }

    void type(std::size_t parameter, const QString& text)
    {
        QWidget& edit = platform::qt::widgetOf(field(parameter));
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&edit, text);
    }

    QList<quint16> holding(int address, quint16 count)
    {
        QModbusDataUnit unit(QModbusDataUnit::HoldingRegisters, address, count);
        EXPECT_TRUE(device.server().data(&unit));
        return unit.values();
    }

    Device device;
    std::unique_ptr<Window> window;
};

TEST_F(Demo, ShowsEveryParameterInItsUnit)
{
    ASSERT_TRUE(live());
    EXPECT_TRUE(window->isHealthy());
    EXPECT_EQ(field(indexOf("TankHeight")).text(), "12.500");
    EXPECT_EQ(field(indexOf("TagName")).text(), "TK-101 North");
    ctx_ZorTextBox& box = window->box(indexOf("HighAlarm"));
    EXPECT_EQ(field(indexOf("HighAlarm")).text(), "85.0");
    box.OutputUnit(TempU_DegF);
    EXPECT_EQ(field(indexOf("HighAlarm")).text(), "185.0");
}

TEST_F(Demo, WritesAnEditAndEndsItByTheReadBack)
{
    ASSERT_TRUE(live());
    const std::size_t damping = indexOf("Damping");
    type(damping, "45");
    EXPECT_TRUE(window->box(damping).DataModified());
    QTest::qWait(3 * kPeriod);
    EXPECT_EQ(field(damping).text(), "45") << "polling overwrote the edit";
    EXPECT_EQ(holding(3, 1), (QList<quint16>{20})) << "written before the operator said so";
    window->writeEdits();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->box(damping).DataModified(); }, kPatience));
    EXPECT_EQ(holding(3, 1), (QList<quint16>{45}));
    EXPECT_EQ(field(damping).text(), "45");
}

TEST_F(Demo, AnInvalidEntryIsNotWritten)
{
    ASSERT_TRUE(live());
    const std::size_t damping = indexOf("Damping");
    type(damping, "601");
    window->writeEdits();
    QTest::qWait(3 * kPeriod);
    EXPECT_EQ(holding(3, 1), (QList<quint16>{20}));
    EXPECT_EQ(field(damping).text(), "601");
    EXPECT_TRUE(window->box(damping).InvalidEntry());
}

TEST_F(Demo, AKilledDeviceFailsEveryControlAndARestartedOneRecovers)
{
    ASSERT_TRUE(live());
    const std::size_t damping = indexOf("Damping");
    type(damping, "45");
    device.stop();
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return all([](const ctx_ZorTextBox& box) { return box.CFail(); }); }, kPatience));
    EXPECT_LE(clock.elapsed(), 2 * kPeriod + Link::kDeadline) << "two poll periods, and one for the deadline";
    EXPECT_FALSE(window->isHealthy());
    ASSERT_TRUE(device.start());
    EXPECT_TRUE(live());
    EXPECT_EQ(field(damping).text(), "45") << "the edit was lost";
}

} // namespace
} // namespace zor::monitor
