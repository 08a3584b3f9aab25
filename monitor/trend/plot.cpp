#include <zor/monitor/language/words.h>
#include <zor/monitor/trend/plot.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zor::monitor {
namespace {

constexpr int kGap = 6;  ///< between the parts of the picture
constexpr int kTick = 4; ///< length of a mark
constexpr int kAxesOfPane = 2;
constexpr int kSmooth = 6000; ///< points; of more than that, smooth lines take more time than anybody sees

QColor mixed(const QPalette& palette, float text)
{
    const QColor front = palette.color(QPalette::Text);
    const QColor back = palette.color(QPalette::Base);
    const auto mix = [&](float one, float other) { return text * one + (1 - text) * other; };
    return QColor::fromRgbF(mix(front.redF(), back.redF()), mix(front.greenF(), back.greenF()),
                            mix(front.blueF(), back.blueF()));
}

class Drawing {
public:
    Drawing(QPainter& painter, const QRect& area, const Trend& trend, const PlotView& view,
            const QPalette& palette)
        : m_painter(painter), m_area(area), m_trend(trend), m_view(view), m_palette(palette)
    {}

    PlotLayout draw()
    {
        m_painter.fillRect(m_area, m_palette.color(QPalette::Base));
        collect();
        if (m_axes.empty()) {
            m_painter.setPen(m_palette.color(QPalette::Text));
            m_painter.drawText(m_area, Qt::AlignCenter | Qt::TextWordWrap,
                               QCoreApplication::translate("TrendDock", "No parameter is plotted."));
            return m_layout;
        }
        arrange();
        drawTimes();
        for (std::size_t i = 0; i < m_axes.size(); ++i)
            drawAxis(i);
        drawWrites();
        drawCurves();
        drawCursor();
        m_painter.setPen(mixed(m_palette, kFrame));
        for (const PlotLayout::Pane& pane : m_layout.panes)
            m_painter.drawRect(pane.area);
        return m_layout;
    }

private:
    static constexpr float kFrame = 0.5F;
    static constexpr float kGrid = 0.15F;

    struct Stroke {
        const Curve* curve;
        std::size_t axis;
        std::vector<Sample> points; ///< in the unit of the axis
    };
    struct Scale {
        MEAS_TYPE unit;
        Span span;
        bool isEmpty;
        double step;
        std::vector<QString> labels; ///< of the marks, from the lowest
        double lowest;               ///< mark
        int width;                   ///< of the labels
    };

    [[nodiscard]] QFontMetrics metrics() const { return m_painter.fontMetrics(); }

    // --- What there is to draw

    void collect()
    {
        for (const Curve& curve : m_trend.curves()) {
            if (!curve.shown)
                continue;
            const MEAS_TYPE unit = m_trend.unitOf(curve);
            const auto axis = std::ranges::find(m_axes, unit, &Scale::unit);
            const auto index = static_cast<std::size_t>(axis - m_axes.begin());
            if (axis == m_axes.end())
                m_axes.push_back({unit, {}, true, 1, {}, 0, 0});
            m_strokes.push_back({&curve, index, curve.history.outline(m_view.from, m_view.to, m_area.width())});
            for (Sample& point : m_strokes.back().points)
                point.value = m_trend.shownValue(curve, point.value);
        }
        for (std::size_t i = 0; i < m_axes.size(); ++i)
            fit(i);
    }

    void fit(std::size_t index)
    {
        Scale& axis = m_axes[index];
        Span values{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
        for (const Stroke& stroke : m_strokes) {
            if (stroke.axis != index)
                continue;
            for (const Sample& point : stroke.points) {
                if (point.isGap() || point.time < m_view.from || point.time > m_view.to)
                    continue;
                values.low = std::min(values.low, point.value);
                values.high = std::max(values.high, point.value);
            }
        }
        axis.isEmpty = values.low > values.high;
        const auto zoomed = m_view.zoomed.find(axis.unit);
        if (zoomed != m_view.zoomed.end())
            axis.span = zoomed->second;
        else if (!axis.isEmpty)
            axis.span = withRoom(values);
    }

    // --- Where

    void arrange()
    {
        const int panes = (static_cast<int>(m_axes.size()) + kAxesOfPane - 1) / kAxesOfPane;
        const int line = metrics().height();
        const int head = line + kGap;
        const int height = (m_area.height() - line - 2 * kGap) / panes;
        std::array<int, kAxesOfPane> widths{kGap, kGap};
        for (std::size_t i = 0; i < m_axes.size(); ++i) {
            mark(m_axes[i], std::max(line, height - head));
            widths[i % kAxesOfPane] = std::max(widths[i % kAxesOfPane], m_axes[i].width + kTick + 2 * kGap);
        }
        m_layout.area = m_area.adjusted(widths[0], 0, -widths[1], -line - 2 * kGap);
        for (int pane = 0; pane < panes; ++pane) {
            const QRect area(m_layout.area.left(), m_area.top() + pane * height + head, m_layout.area.width(),
                             std::max(1, height - head));
            m_layout.panes.push_back({area, {}});
        }
        for (std::size_t i = 0; i < m_axes.size(); ++i)
            m_layout.panes[i / kAxesOfPane].axes.push_back({m_axes[i].unit, m_axes[i].span, m_axes[i].isEmpty});
    }

    void mark(Scale& axis, int height) const
    {
        constexpr int kLines = 2; ///< of text from mark to mark
        constexpr double kLargest = 1e7;
        if (axis.isEmpty)
            return;
        // One number says nothing about the others.
        constexpr int kLeast = 2;
        constexpr int kMost = 20;
        int most = std::max(kLeast, height / (kLines * metrics().height()));
        do {
            axis.step = roundStep(axis.span.size(), most);
            axis.lowest = std::ceil(axis.span.low / axis.step) * axis.step;
            ++most;
        } while (axis.lowest + axis.step * (kLeast - 1) > axis.span.high && most < kMost);
        const bool large = std::max(std::fabs(axis.span.low), std::fabs(axis.span.high)) >= kLargest;
        const int decimals = decimalsFor(axis.step);
        for (double at = axis.lowest; at <= axis.span.high;
             at = axis.lowest + axis.step * static_cast<double>(axis.labels.size())) {
            const double clean = std::fabs(at) < axis.step / 2 ? 0 : at;
            axis.labels.push_back(large ? QLocale().toString(clean, 'g', 6)
                                        : QLocale().toString(clean, 'f', decimals));
            axis.width = std::max(axis.width, metrics().horizontalAdvance(axis.labels.back()));
        }
    }

    [[nodiscard]] double x(std::int64_t time) const { return m_layout.xOf(m_view, time); }
    [[nodiscard]] double y(std::size_t axis, double value) const
    {
        const QRect& pane = m_layout.panes[axis / kAxesOfPane].area;
        const Span& span = m_axes[axis].span;
        return pane.bottom() - (value - span.low) / span.size() * pane.height();
    }

    // --- What stands at the axes

    void drawTimes()
    {
        constexpr std::int64_t kMinute = 60000;
        constexpr std::int64_t kDay = 1440 * kMinute;
        const int wide = metrics().horizontalAdvance("00:00:00") + 3 * kGap;
        const std::int64_t step = timeStep(m_view.to - m_view.from, m_layout.area.width() / wide);
        const std::int64_t offset =
            QDateTime::fromMSecsSinceEpoch(m_view.from).offsetFromUtc() * std::int64_t{1000};
        const int below = m_layout.panes.back().area.bottom() + kGap;
        for (std::int64_t at = (m_view.from + offset) / step * step; at <= m_view.to + offset; at += step) {
            if (at - offset < m_view.from)
                continue;
            const auto left = static_cast<int>(x(at - offset));
            m_painter.setPen(mixed(m_palette, kGrid));
            for (const PlotLayout::Pane& pane : m_layout.panes)
                m_painter.drawLine(left, pane.area.top(), left, pane.area.bottom());
            const QDateTime time = QDateTime::fromMSecsSinceEpoch(at - offset);
            const QString text = at % kDay == 0   ? QLocale().toString(time.date(), QLocale::ShortFormat)
                                 : step < 1000    ? time.toString("HH:mm:ss.z")
                                 : step < kMinute ? time.toString("HH:mm:ss")
                                                  : time.toString("HH:mm");
            m_painter.setPen(m_palette.color(QPalette::Text));
            // The newest is under the edge.
            const int half = metrics().horizontalAdvance(text) / 2 + 1;
            const int middle = std::min(left, m_area.right() - half);
            m_painter.drawText(QRect(middle - wide, below, 2 * wide, metrics().height()), Qt::AlignHCenter, text);
        }
    }

    void drawAxis(std::size_t index)
    {
        const Scale& axis = m_axes[index];
        const QRect& pane = m_layout.panes[index / kAxesOfPane].area;
        const bool left = index % kAxesOfPane == 0;
        const int edge = left ? pane.left() : pane.right();
        const int line = metrics().height();
        for (std::size_t i = 0; i < axis.labels.size(); ++i) {
            const auto at = static_cast<int>(y(index, axis.lowest + axis.step * static_cast<double>(i)));
            if (left) {
                m_painter.setPen(mixed(m_palette, kGrid));
                m_painter.drawLine(pane.left(), at, pane.right(), at);
            }
            m_painter.setPen(mixed(m_palette, kFrame));
            m_painter.drawLine(edge, at, edge + (left ? -kTick : kTick), at);
            if (at - line / 2 < pane.top() - kGap / 2)
                continue; // there stands the unit
            m_painter.setPen(m_palette.color(QPalette::Text));
            const int start = left ? edge - kTick - kGap - axis.width : edge + kTick + kGap;
            m_painter.drawText(QRect(start, at - line / 2, axis.width, line),
                               static_cast<int>(Qt::AlignVCenter | (left ? Qt::AlignRight : Qt::AlignLeft)),
                               axis.labels[i]);
        }
        QString unit = Words::unit(axis.unit);
        if (unit.isEmpty())
            unit = QCoreApplication::translate("TrendDock", "without a unit");
        const QRect head(m_area.left() + kGap, pane.top() - line - kGap / 2, m_area.width() - 2 * kGap, line);
        m_painter.setPen(m_palette.color(QPalette::Text));
        m_painter.drawText(head, left ? Qt::AlignLeft : Qt::AlignRight, unit);
    }

    // --- The curves

    void drawCurves()
    {
        std::size_t points = 0;
        for (const Stroke& stroke : m_strokes)
            points += stroke.points.size();
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing, points <= kSmooth);
        const auto isEmphasized = [this](const Stroke& s) { return m_view.emphasized == s.curve->parameter; };
        std::stable_partition(m_strokes.begin(), m_strokes.end(),
                              [&](const Stroke& stroke) { return !isEmphasized(stroke); });
        for (const Stroke& stroke : m_strokes) {
            m_painter.setClipRect(m_layout.panes[stroke.axis / kAxesOfPane].area);
            // A line of one pixel is drawn many times as fast as a broader one.
            const double width = isEmphasized(stroke) ? 3 : points <= kSmooth ? 1.5 : 1;
            drawStroke(stroke, width);
        }
        m_painter.restore();
    }

    void drawStroke(const Stroke& stroke, double width)
    {
        const QColor color = curveColor(stroke.curve->color, m_palette);
        QPolygonF line;
        const auto flush = [&] {
            m_painter.setPen(QPen(color, width));
            if (line.size() > 1)
                m_painter.drawPolyline(line);
            else if (line.size() == 1)
                drawDot(line.front(), color);
            line.clear();
        };
        for (const Sample& point : stroke.points) {
            if (point.isGap())
                flush();
            else
                line.append({x(point.time), y(stroke.axis, point.value)});
        }
        flush();
    }

    void drawDot(QPointF at, const QColor& color)
    {
        constexpr double kRadius = 2.5;
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawEllipse(at, kRadius, kRadius);
        m_painter.setBrush(Qt::NoBrush);
    }

    void drawWrites()
    {
        constexpr float kMark = 0.7F;
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        for (const WriteRecord& write : m_trend.session().writes()) {
            const std::int64_t time = write.time.toMSecsSinceEpoch();
            if (time < m_view.from || time > m_view.to)
                continue;
            const double at = x(time);
            for (const PlotLayout::Pane& pane : m_layout.panes) {
                const double top = pane.area.top();
                m_painter.setPen(QPen(mixed(m_palette, kMark), 1, Qt::DashLine));
                m_painter.drawLine(QPointF(at, top), QPointF(at, pane.area.bottom()));
                m_painter.setPen(Qt::NoPen);
                m_painter.setBrush(mixed(m_palette, kMark));
                m_painter.drawPolygon(QPolygonF({{at - kTick, top}, {at + kTick, top}, {at, top + 2 * kTick}}));
            }
        }
        m_painter.restore();
    }

    void drawCursor()
    {
        if (!m_view.cursor || *m_view.cursor < m_view.from || *m_view.cursor > m_view.to)
            return;
        const double at = x(*m_view.cursor);
        m_painter.save();
        m_painter.setPen(m_palette.color(QPalette::Text));
        m_painter.drawLine(QPointF(at, m_layout.panes.front().area.top()),
                           QPointF(at, m_layout.panes.back().area.bottom()));
        m_painter.setRenderHint(QPainter::Antialiasing);
        for (const Stroke& stroke : m_strokes) {
            const std::optional<Sample> sample = stroke.curve->history.at(*m_view.cursor);
            if (!sample || sample->isGap() || sample->time < m_view.from || sample->time > m_view.to)
                continue;
            m_painter.setClipRect(m_layout.panes[stroke.axis / kAxesOfPane].area);
            drawDot({x(sample->time), y(stroke.axis, m_trend.shownValue(*stroke.curve, sample->value))},
                    curveColor(stroke.curve->color, m_palette));
        }
        m_painter.restore();
    }

    QPainter& m_painter;
    const QRect m_area;
    const Trend& m_trend;
    const PlotView& m_view;
    const QPalette& m_palette;
    PlotLayout m_layout;
    std::vector<Scale> m_axes;
    std::vector<Stroke> m_strokes;
};

} // namespace

std::int64_t PlotLayout::timeAt(const PlotView& view, double x) const
{
    const double share = (x - area.left()) / std::max(1, area.width());
    return view.from + std::llround(share * static_cast<double>(view.to - view.from));
}

double PlotLayout::xOf(const PlotView& view, std::int64_t time) const
{
    const auto span = static_cast<double>(std::max<std::int64_t>(1, view.to - view.from));
    return area.left() + static_cast<double>(time - view.from) / span * area.width();
}

PlotLayout drawPlot(QPainter& painter, const QRect& area, const Trend& trend, const PlotView& view,
                    const QPalette& palette)
{
    return Drawing(painter, area, trend, view, palette).draw();
}

} // namespace zor::monitor
