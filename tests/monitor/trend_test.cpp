// Curves: what is kept of them, what is drawn, and what an operator can do with them.

#include <zor/monitor/trend/axis.h>
#include <zor/monitor/trend/plot_widget.h>
#include <zor/monitor/trend/trend_export.h>
#include <zor/tests/monitor/session_fixture.h>
#include <zor/tests/random.h>

#include <QPainter>

#include <cmath>

namespace zor::tests {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(History, StaysSmallAndLosesNoPeakNoGapAndNoTime)
{
    constexpr std::int64_t kStep = 100;
    constexpr std::int64_t kCount = 400000; // eleven hours at ten a second
    const auto valueAt = [](std::int64_t time) {
        const std::int64_t i = time / kStep;
        return i == 123456 ? 99.0 : i == 7890 ? -99.0 : std::sin(static_cast<double>(i) / 5000);
    };
    const auto isGap = [](std::int64_t i) { return i >= 200000 && i < 200300; };
    History history;
    for (std::int64_t i = 0; i < kCount; ++i)
        history.add(i * kStep, isGap(i) ? kNaN : valueAt(i * kStep));
    EXPECT_LE(history.size(), History::kLevels * History::kPerLevel);
    const std::vector<Sample> kept = history.samples();
    EXPECT_EQ(kept.front().time, 0) << "all the eleven hours";
    EXPECT_EQ(kept.back().time, (kCount - 1) * kStep);
    const auto gap = std::ranges::find_if(kept, &Sample::isGap);
    ASSERT_NE(gap, kept.end());
    EXPECT_EQ(std::ranges::count_if(kept, &Sample::isGap), 1);
    EXPECT_EQ(gap->time, 200000 * kStep);
    EXPECT_GE((gap + 1)->time, 200300 * kStep) << "nothing is moved into it";
    for (std::size_t i = 0; i < kept.size(); ++i) {
        ASSERT_TRUE(kept[i].isGap() || kept[i].value == valueAt(kept[i].time)) << "measured at its own time";
        ASSERT_TRUE(i == 0 || kept[i - 1].time < kept[i].time);
    }
    for (const double peak : {99.0, -99.0})
        EXPECT_EQ(std::ranges::count(kept, peak, &Sample::value), 1);
    EXPECT_EQ(history.at(kCount * 2 * kStep)->value, valueAt((kCount - 1) * kStep));
    EXPECT_FALSE(history.at(-1)) << "nothing before the first";
    EXPECT_TRUE(history.at(200001 * kStep)->isGap());

    constexpr int kColumns = 500;
    const std::vector<Sample> drawn = history.outline(12000000, 13000000, kColumns);
    EXPECT_LE(drawn.size(), 4U * kColumns + 8);
    EXPECT_EQ(std::ranges::count(drawn, 99.0, &Sample::value), 1) << "the peak is in the picture";
    EXPECT_LT(drawn.front().time, 12000000) << "the curve comes from somewhere";
    EXPECT_GT(drawn.back().time, 13000000);

    History flaky;
    for (std::int64_t i = 0; i < 100000; ++i)
        flaky.add(i, i % 2 == 0 ? 1 : kNaN);
    EXPECT_LE(flaky.size(), History::kLevels * History::kPerLevel) << "gaps do not make it grow";
    for (const double no : {kNaN, std::numeric_limits<double>::infinity()}) {
        History never;
        never.add(1, no);
        EXPECT_TRUE(never.isEmpty());
    }
}

TEST(History, OutlineHoldsTheExtremesOfRandomTimes)
{
    Random random;
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    History history;
    std::vector<Sample> all;
    for (std::int64_t time = 0; all.size() < 3000; time += 1 + below(40)) {
        all.push_back({time, below(50) == 0 ? kNaN : 1.0 * below(1000)});
        history.add(time, all.back().value);
    }
    for (int round = 0; round < 200; ++round) {
        const std::int64_t from = below(50000);
        const std::int64_t to = from + 1 + below(20000);
        const auto drawn = history.outline(from, to, 1 + below(300));
        const auto extremes = [&](const std::vector<Sample>& samples) {
            std::pair<double, double> result{1e9, -1e9};
            for (const Sample& sample : samples) {
                if (sample.isGap() || sample.time < from || sample.time > to)
                    continue;
                result = {std::min(result.first, sample.value), std::max(result.second, sample.value)};
            }
            return result;
        };
        ASSERT_EQ(extremes(drawn), extremes(all)) << from << " to " << to;
        ASSERT_TRUE(std::ranges::is_sorted(drawn, {}, &Sample::time));
    }
}

TEST(Axis, MarksStandAtRoundNumbers)
{
    for (const auto& [size, most, step, decimals] : {std::tuple{10.0, 5, 2.0, 0},
                                                     {1.0, 4, 0.5, 1},
                                                     {0.037, 10, 0.005, 3},
                                                     {1e6, 3, 5e5, 0},
                                                     {9.9, 0, 10.0, 0}}) {
        EXPECT_DOUBLE_EQ(roundStep(size, most), step) << size;
        EXPECT_EQ(decimalsFor(step), decimals) << step;
    }
    constexpr std::int64_t kHour = 3600000;
    for (const auto& [time, step] : {std::pair<std::int64_t, std::int64_t>{120000, 15000},
                                     {kHour, 600000},
                                     {24 * kHour, 3 * kHour},
                                     {90 * 24 * kHour, 10 * 24 * kHour}})
        EXPECT_EQ(timeStep(time, 9), step) << time;
    EXPECT_DOUBLE_EQ(withRoom({5, 5}).size(), 0.5) << "a value that never moves is drawn as a line, not as noise";
}

/// Pixels of a curve's color in a column of a picture, or in all of it.
int pixels(const QImage& image, const QColor& color, int column = -1)
{
    int count = 0;
    for (int x = column < 0 ? 0 : column; x < (column < 0 ? image.width() : column + 1); ++x) {
        for (int y = 0; y < image.height(); ++y)
            count += image.pixelColor(x, y).rgb() == color.rgb() ? 1 : 0;
    }
    return count;
}

struct Plotted : testing::Test {
    Plotted() { trend.add(level); }
    QImage draw()
    {
        QImage image(600, 300, QImage::Format_RGB32);
        QPainter painter(&image);
        view.to = trend.now();
        view.from = view.to - 10000;
        layout = drawPlot(painter, image.rect(), trend, view, palette);
        return image;
    }
    const Curve& curve() { return trend.curves().front(); }

    Peer peer;
    Host host{peer.serverPort()};
    Trend trend{*host.session};
    std::size_t level = *host.session->file().indexOf("Level");
    QPalette palette{Qt::black, Qt::white};
    PlotView view;
    PlotLayout layout;
    QColor color = curveColor(0, palette);
};

TEST_F(Plotted, IsReadThoughNobodySeesItAndHasGapsWhereTheDeviceIsSilent)
{
    EXPECT_EQ(pixels(draw(), color), 0) << "never read";
    EXPECT_TRUE(layout.panes.at(0).axes.at(0).isEmpty);
    host.run({"Limit"});
    host.rounds(3);
    ASSERT_GE(curve().history.size(), 3U);
    EXPECT_EQ(curve().history.last().value, 10);
    const quint16 port = peer.serverPort();
    peer.die();
    EXPECT_TRUE(host.until([&] { return curve().history.last().isGap(); }));
    const std::int64_t silent = trend.now();
    QTest::qWait(2 * kPeriod);
    peer.registers[10] = 60;
    peer.revive(port);
    EXPECT_TRUE(host.until([&] { return curve().history.last().value == 60; }));
    host.rounds(2);
    const QImage image = draw();
    EXPECT_GT(pixels(image, color), 5);
    EXPECT_EQ(pixels(image, color, static_cast<int>(layout.xOf(view, silent + kPeriod))), 0)
        << "the gap is not bridged";

    trend.remove(level);
    host.rounds(1);
    const qint64 read = host.session->readAt(level);
    host.rounds(2);
    EXPECT_EQ(host.session->readAt(level), read) << "and no longer when it is not plotted";
    for (const char* tag : {"Name", "Flags"}) {
        trend.add(*host.session->file().indexOf(tag));
        EXPECT_TRUE(trend.curves().empty()) << tag;
    }
}

TEST_F(Plotted, FollowsTheUnitAndMarksWrites)
{
    for (const char* tag : {"Damping", "Far"})
        trend.add(*host.session->file().indexOf(tag));
    host.run({"Limit", "Level"});
    host.type("Limit", "77");
    host.write();
    host.rounds(2);
    ASSERT_EQ(host.session->writes().size(), 1U);
    EXPECT_EQ(describeWrite(*host.session, host.session->writes().front(), "en"), "Limit: 20 → 77 mm");
    draw();
    ASSERT_EQ(layout.panes.size(), 2U) << "of three units the third has a pane of its own";
    EXPECT_TRUE(layout.panes[0].axes[0].span.low < 10 && layout.panes[0].axes[0].span.high > 10);
    const std::string csv = trendCsv(trend);
    EXPECT_TRUE(csv.starts_with("time,Level [mm],Damping [s],Far,write\n20")) << csv;
    EXPECT_NE(csv.find("Z,10,"), std::string::npos) << csv;
    EXPECT_NE(csv.find("Z,,,,Limit=77: written\n"), std::string::npos) << csv;

    EXPECT_TRUE(host.session->setUnit(UNIT_TYPE::Length, LgthU_CM));
    draw();
    EXPECT_TRUE(layout.panes[0].axes[0].unit == LgthU_CM && layout.panes[0].axes[0].span.high < 2);
    EXPECT_NE(trendCsv(trend).find("Level [cm]"), std::string::npos);
    EXPECT_EQ(trend.valueText(curve(), 10, "en"), "1.0");
    EXPECT_NEAR(trend.shownValue(trend.curves()[1], 6), 6, 1e-9);

    PlotWidget plot(nullptr);
    plot.resize(600, 300);
    plot.show(&trend);
    plot.grab();
    const auto key = [&](int code, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(&plot, Qt::Key(code), with);
    };
    const auto span = [&] { return plot.view().to - plot.view().from; };
    const std::int64_t usual = span();
    key(Qt::Key_Plus);
    EXPECT_LT(span(), usual);
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(plot.view().zoomed.size(), 3U);
    key(Qt::Key_Home);
    EXPECT_TRUE(plot.view().zoomed.empty() && span() < kPatience * 4);
    key(Qt::Key_Space);
    EXPECT_TRUE(plot.isPaused());
    plot.grab();
    for (int i = 0; i < 200 && plot.writeAtCursor() == nullptr; ++i)
        key(Qt::Key_Left);
    EXPECT_NE(plot.writeAtCursor(), nullptr) << "the cursor finds the write";
    const std::int64_t from = plot.view().from;
    key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_LT(plot.view().from, from);
    key(Qt::Key_End);
    EXPECT_FALSE(plot.isPaused());
}

} // namespace
} // namespace zor::tests
