#include <zor/platform/qt/range_widgets.h>

#include <QStylePainter>

namespace zor::platform::qt {
namespace {

/// Ticks closer than this are not told apart, in pixels.
constexpr int kClosest = 3;
constexpr int kTickLength = 4;
constexpr int kTickGap = 2;

} // namespace

void QuietSlider::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (isSliderDown() || underMouse())
        option.activeSubControls = QStyle::SC_SliderHandle;
    if (isSliderDown())
        option.state |= QStyle::State_Sunken;
    QStylePainter painter(this);
    if (tickPosition() != NoTicks)
        drawTicks(painter, option);
    painter.drawComplexControl(QStyle::CC_Slider, option);
}

void QuietSlider::drawTicks(QPainter& painter, const QStyleOptionSlider& option) const
{
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int travel = width() - handle.width();
    // Where they are too many, an equal number is left out between any two.
    const std::int64_t count = platform::tickCount({value(), minimum(), maximum()}, tickInterval());
    const std::int64_t room = std::max(travel / kClosest, 1);
    const std::int64_t interval = (count + room - 1) / room * tickInterval();
    QColor colour = palette().color(QPalette::WindowText);
    constexpr float kFaint = 0.6F;
    colour.setAlphaF(kFaint);
    painter.setPen(colour);
    const auto draw = [&](int position) {
        const int x = handle.width() / 2 + QStyle::sliderPositionFromValue(minimum(), maximum(), position, travel);
        if (tickPosition() != TicksBelow)
            painter.drawLine(x, handle.top() - kTickGap - kTickLength, x, handle.top() - kTickGap);
        if (tickPosition() != TicksAbove)
            painter.drawLine(x, handle.bottom() + kTickGap, x, handle.bottom() + kTickGap + kTickLength);
    };
    for (std::int64_t position = minimum(); position < maximum(); position += interval)
        draw(static_cast<int>(position));
    draw(maximum());
}

} // namespace zor::platform::qt
