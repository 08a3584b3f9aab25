#pragma once

/// Spin button and track.

#include <zor/platform/qt/qt_widget.h>
#include <zor/platform/qt/text_field.h>
#include <zor/platform/temporarily.h>
#include <zor/platform/whole_range.h>

#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace zor::platform::qt {

/// A pair of buttons that repeat while they are held.
class SpinPair : public QWidget {
public:
    explicit SpinPair(QWidget* parent) : QWidget(parent), up(new QToolButton(this)), down(new QToolButton(this))
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        const auto add = [&](QToolButton& button, Qt::ArrowType arrow, const char* name) {
            button.setArrowType(arrow);
            button.setAutoRepeat(true);
            button.setFocusPolicy(Qt::NoFocus);
            button.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            button.setMinimumSize(1, 1);
            button.setAccessibleName(QString::fromLatin1(name));
            layout->addWidget(&button);
        };
        add(*up, Qt::UpArrow, "+");
        add(*down, Qt::DownArrow, "-");
    }

    QToolButton* up;
    QToolButton* down;
};

class QtSpinButton final : public Ranged<QtBase<SpinButton, SpinPair>> {
public:
    QtSpinButton(const Context& context, int number) : Ranged(context, number, ButtonFace)
    {
        setGeometry({0, 0, 240, 315});
        QObject::connect(widget().up, &QToolButton::clicked, &widget(), [this] { step(true); });
        QObject::connect(widget().down, &QToolButton::clicked, &widget(), [this] { step(false); });
    }

    void setBuddy(TextField& field) override
    {
        dynamic_cast<QtTextField&>(field).onStep([this](bool up) { step(up); });
    }
    [[nodiscard]] QWidget& button(bool up) const { return up ? *widget().up : *widget().down; }

private:
    void step(bool up)
    {
        const EventScope scope(context());
        if (m_range.step(up))
            report(Notice::Change);
        report(up ? Notice::SpinUp : Notice::SpinDown);
    }
};

/// A slider that the wheel moves only where it has the focus, and that draws its ticks itself: a style draws them
/// one by one, however many thousand million there are, and in a dark theme hardly visible.
class QuietSlider : public QSlider {
public:
    explicit QuietSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

protected:
    void changeEvent(QEvent* event) override
    {
        // What is frozen while it is dragged stays where it is: Qt would let go of it where the hand is.
        if (event->type() == QEvent::EnabledChange && !isEnabled()) {
            const QSignalBlocker quiet(this);
            setSliderPosition(value());
        }
        QSlider::changeEvent(event);
    }
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus())
            QSlider::wheelEvent(event);
        else
            event->ignore();
    }
    void paintEvent(QPaintEvent* event) override;

private:
    void drawTicks(QPainter& painter, const QStyleOptionSlider& option) const;
};

class QtTrack final : public QtBase<Track, QuietSlider> {
public:
    QtTrack(const Context& context, int number) : QtBase(context, number, ButtonFace)
    {
        widget().setFocusPolicy(Qt::StrongFocus);
        widget().setTickPosition(QSlider::TicksBelow);
        widget().setTickInterval(1);
        applyEnds();
        setGeometry({0, 0, 285, 510});
        QObject::connect(&widget(), &QSlider::sliderMoved, &widget(), [this](int position) {
            if (!m_setting)
                dragged(position);
        });
        // Qt says so of a handle that comes back to its value, too.
        QObject::connect(&widget(), &QSlider::valueChanged, &widget(), [this](int value) {
            if (std::exchange(m_value, value) != value)
                report(Notice::Change);
        });
    }

    [[nodiscard]] std::int32_t value() const override { return widget().value(); }
    void setValue(std::int32_t value) override
    {
        set([&] { widget().setValue(value); });
    }
    [[nodiscard]] std::int32_t minimum() const override { return m_ends.minimum; }
    [[nodiscard]] std::int32_t maximum() const override { return m_ends.maximum; }
    void setMinimum(std::int32_t minimum) override
    {
        m_ends.minimum = minimum;
        applyEnds();
    }
    void setMaximum(std::int32_t maximum) override
    {
        m_ends.maximum = maximum;
        applyEnds();
    }
    [[nodiscard]] std::int16_t tickStyle() const override { return m_tickStyle; }
    void setTickStyle(std::int16_t style) override
    {
        m_tickStyle = style;
        constexpr std::array kPositions{QSlider::TicksBelow, QSlider::TicksAbove, QSlider::TicksBothSides,
                                        QSlider::NoTicks};
        if (style >= 0 && style < static_cast<std::int16_t>(kPositions.size()))
            widget().setTickPosition(kPositions[static_cast<std::size_t>(style)]);
    }
    [[nodiscard]] std::int32_t tickFrequency() const override { return widget().tickInterval(); }
    void setTickFrequency(std::int32_t frequency) override { widget().setTickInterval(std::max(frequency, 1)); }
    [[nodiscard]] std::int32_t tickCount() const override { return platform::tickCount(m_ends, tickFrequency()); }
    [[nodiscard]] bool hasFocus() const override { return focusReported; }

private:
    /// While the operator drags, Qt calls every way the handle moves his own, also where a handler sets value or
    /// ends.
    template <class Action>
    void set(Action&& action)
    {
        const Temporarily setting(m_setting, true);
        action();
    }
    /// Who hears of it may show another value, or freeze the track: then the hand has lost the handle. Where he
    /// moves an end, Qt has forgotten where the hand is.
    void dragged(int position)
    {
        const EventScope scope(context());
        const std::int32_t before = value();
        report(Notice::Scroll);
        const bool goesOn = value() == before && isReachable();
        set([&] { widget().setSliderPosition(goesOn ? position : value()); });
    }
    void applyEnds()
    {
        // Qt would move the upper end along with the lower one.
        set([&] { widget().setRange(m_ends.minimum, std::max(m_ends.minimum, m_ends.maximum)); });
        widget().setSingleStep(1);
        widget().setPageStep(pageStep(m_ends));
    }

    WholeRange m_ends;
    std::int32_t m_value = 0; ///< reported last
    std::int16_t m_tickStyle = 0;
    bool m_setting = false;
};

} // namespace zor::platform::qt
