#include <zor/monitor/trend/plot_widget.h>

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace zor::monitor {
namespace {

constexpr std::int64_t kUsualTime = std::int64_t{2} * 60 * 1000; ///< milliseconds in sight
constexpr std::int64_t kLeastTime = 1000;
constexpr std::int64_t kMostTime = std::int64_t{7} * 24 * 3600 * 1000;
constexpr double kZoom = 1.25; ///< of a step of the wheel or a key
constexpr double kNotch = 120; ///< of a wheel, as Qt counts

} // namespace

PlotWidget::PlotWidget(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    m_view.to = m_view.from + kUsualTime;
}

void PlotWidget::show(const Trend* trend)
{
    m_trend = trend;
    m_view.cursor.reset();
    m_view.emphasized.reset();
    m_view.zoomed.clear();
    m_paused = false;
    refresh();
    changed();
}

void PlotWidget::pass()
{
    // No more than a tenth of the time, and not for less than a pixel.
    constexpr std::int64_t kShare = 10;
    constexpr std::int64_t kSoonest = 100;
    if (m_trend == nullptr || m_paused || !isVisible() || m_trend->curves().empty())
        return;
    const std::int64_t pixel = (m_view.to - m_view.from) / std::max(1, m_layout.area.width());
    const std::int64_t wait = std::max({kSoonest, pixel, m_cost * kShare / 1000});
    if (m_trend->now() - m_painted >= wait)
        refresh();
}

void PlotWidget::refresh()
{
    if (m_trend != nullptr && !m_paused) {
        const std::int64_t span = m_view.to - m_view.from;
        m_view.to = m_painted = m_trend->now();
        m_view.from = m_view.to - span;
    }
    update();
}

void PlotWidget::paintEvent(QPaintEvent* /*event*/)
{
    QElapsedTimer clock;
    clock.start();
    QPainter painter(this);
    if (m_trend != nullptr)
        m_layout = drawPlot(painter, rect(), *m_trend, m_view, palette());
    m_cost = clock.nsecsElapsed() / 1000;
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void PlotWidget::changed()
{
    update();
    if (onView)
        onView();
}

// --- What is in sight

PlotView PlotWidget::lastingView() const
{
    PlotView view = m_view;
    view.cursor.reset();
    view.emphasized.reset();
    if (m_trend == nullptr || m_paused)
        return view;
    view.to = m_trend->now();
    view.from = std::clamp(m_trend->begin(), view.to - (m_view.to - m_view.from), view.to - kLeastTime);
    return view;
}

void PlotWidget::pause(bool paused)
{
    m_paused = paused;
    refresh();
    changed();
}

void PlotWidget::zoom(double factor)
{
    const bool marked = m_view.cursor && *m_view.cursor >= m_view.from && *m_view.cursor <= m_view.to;
    zoomAbout(m_paused && marked ? *m_view.cursor : m_view.to, factor);
}

void PlotWidget::zoomAbout(std::int64_t time, double factor)
{
    const std::int64_t old = m_view.to - m_view.from;
    const auto span = std::clamp(std::llround(static_cast<double>(old) * factor),
                                 static_cast<long long>(kLeastTime), static_cast<long long>(kMostTime));
    const double share = static_cast<double>(time - m_view.from) / static_cast<double>(old);
    m_view.from = time - std::llround(share * static_cast<double>(span));
    m_view.to = m_view.from + span;
    refresh();
    changed();
}

void PlotWidget::zoomPane(const PlotLayout::Pane& pane, double share, double factor)
{
    for (const PlotLayout::Axis& axis : pane.axes) {
        if (axis.isEmpty)
            continue;
        const double fixed = axis.span.low + share * axis.span.size();
        m_view.zoomed[axis.unit] = {fixed - (fixed - axis.span.low) * factor,
                                    fixed + (axis.span.high - fixed) * factor};
    }
}

void PlotWidget::zoomValues(double factor)
{
    constexpr double kMiddle = 0.5;
    for (const PlotLayout::Pane& pane : m_layout.panes)
        zoomPane(pane, kMiddle, factor);
    changed();
}

void PlotWidget::fitValues()
{
    m_view.zoomed.clear();
    changed();
}

void PlotWidget::showAll()
{
    if (m_trend == nullptr)
        return;
    const std::int64_t now = m_trend->now();
    m_view.from = std::min(m_trend->begin(), now - kLeastTime);
    m_view.to = now;
    fitValues();
}

void PlotWidget::move(std::int64_t milliseconds)
{
    m_paused = true;
    m_view.from += milliseconds;
    m_view.to += milliseconds;
    changed();
}

void PlotWidget::emphasize(std::optional<std::size_t> parameter)
{
    m_view.emphasized = parameter;
    update();
}

// --- The cursor

void PlotWidget::setCursorAt(std::optional<std::int64_t> time)
{
    m_view.cursor = time;
    changed();
}

void PlotWidget::moveCursor(int pixels)
{
    if (m_layout.panes.empty())
        return;
    m_cursorByKey = true;
    const double x = m_view.cursor ? m_layout.xOf(m_view, *m_view.cursor) + pixels : m_layout.area.right();
    setCursorAt(m_layout.timeAt(m_view, std::clamp<double>(x, m_layout.area.left(), m_layout.area.right())));
}

const WriteRecord* PlotWidget::writeAtCursor() const
{
    constexpr double kNear = 5; ///< pixels
    if (m_trend == nullptr || !m_view.cursor || m_layout.panes.empty())
        return nullptr;
    const double cursor = m_layout.xOf(m_view, *m_view.cursor);
    const auto distance = [&](const WriteRecord& write) {
        return std::fabs(m_layout.xOf(m_view, write.time.toMSecsSinceEpoch()) - cursor);
    };
    const std::vector<WriteRecord>& writes = m_trend->session().writes();
    const auto nearest = std::ranges::min_element(writes, {}, distance);
    return nearest != writes.end() && distance(*nearest) <= kNear ? &*nearest : nullptr;
}

// --- Mouse and keys

void PlotWidget::wheelEvent(QWheelEvent* event)
{
    const double factor = std::pow(kZoom, -event->angleDelta().y() / kNotch);
    const QPointF at = event->position();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        for (const PlotLayout::Pane& pane : m_layout.panes) {
            if (pane.area.top() <= at.y() && at.y() <= pane.area.bottom())
                zoomPane(pane, (pane.area.bottom() - at.y()) / pane.area.height(), factor);
        }
        changed();
    } else {
        // The present stays where it is until the operator looks back.
        zoomAbout(m_paused ? m_layout.timeAt(m_view, at.x()) : m_view.to, factor);
    }
    event->accept();
}

void PlotWidget::mousePressEvent(QMouseEvent* event) { m_dragged = event->position(); }

void PlotWidget::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    if (event->buttons().testFlag(Qt::LeftButton)) {
        const std::int64_t by = m_layout.timeAt(m_view, m_dragged.x()) - m_layout.timeAt(m_view, at.x());
        m_dragged = at;
        if (by != 0)
            move(by);
    }
    m_cursorByKey = false;
    const bool inside = m_layout.area.left() <= at.x() && at.x() <= m_layout.area.right();
    setCursorAt(inside ? std::optional(m_layout.timeAt(m_view, at.x())) : std::nullopt);
}

void PlotWidget::mouseDoubleClickEvent(QMouseEvent* /*event*/) { fitValues(); }

void PlotWidget::leaveEvent(QEvent* /*event*/)
{
    if (!m_cursorByKey)
        setCursorAt(std::nullopt);
}

void PlotWidget::keyPressEvent(QKeyEvent* event)
{
    constexpr int kPixels = 5;
    const bool values = event->modifiers().testFlag(Qt::ControlModifier);
    const bool time = event->modifiers().testFlag(Qt::ShiftModifier);
    const auto zoomBy = [&](double factor) { values ? zoomValues(factor) : zoom(factor); };
    const auto go = [&](int direction) {
        constexpr int kPart = 10;
        if (time)
            move(direction * (m_view.to - m_view.from) / kPart);
        else
            moveCursor(direction * kPixels);
    };
    switch (event->key()) {
    case Qt::Key_Plus: return zoomBy(1 / kZoom);
    case Qt::Key_Minus: return zoomBy(kZoom);
    case Qt::Key_0: return fitValues();
    case Qt::Key_Left: return go(-1);
    case Qt::Key_Right: return go(1);
    case Qt::Key_Home: return showAll();
    case Qt::Key_End: return pause(false);
    case Qt::Key_Space: return pause(!m_paused);
    case Qt::Key_Escape: return setCursorAt(std::nullopt);
    default: QWidget::keyPressEvent(event);
    }
}

} // namespace zor::monitor
