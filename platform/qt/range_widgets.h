#pragma once

/// Spin button and track.

#include "platform/qt/qt_widget.h"

#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

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

class QtSpinButton final : public QtBase<SpinButton, SpinPair> {
public:
    QtSpinButton(const Context& context, int number) : QtBase(context, number, ButtonFace)
    {
        setGeometry({0, 0, 240, 315});
        QObject::connect(widget().up, &QToolButton::clicked, &widget(), [this] { step(true); });
        QObject::connect(widget().down, &QToolButton::clicked, &widget(), [this] { step(false); });
    }

    [[nodiscard]] std::int32_t value() const override { return m_value; }
    void setValue(std::int32_t value) override
    {
        const std::int32_t cut = std::max(std::min(value, m_maximum), m_minimum);
        if (std::exchange(m_value, cut) != cut)
            report(Notice::Change);
    }
    [[nodiscard]] std::int32_t minimum() const override { return m_minimum; }
    [[nodiscard]] std::int32_t maximum() const override { return m_maximum; }
    void setMinimum(std::int32_t minimum) override
    {
        m_minimum = minimum;
        setValue(m_value);
    }
    void setMaximum(std::int32_t maximum) override
    {
        m_maximum = maximum;
        setValue(m_value);
    }
    [[nodiscard]] QWidget& button(bool up) const { return up ? *widget().up : *widget().down; }

private:
    void step(bool up)
    {
        const EventScope scope(context());
        const std::int64_t next = std::int64_t{m_value} + (up ? 1 : -1);
        if (next >= m_minimum && next <= m_maximum)
            setValue(static_cast<std::int32_t>(next));
        report(up ? Notice::SpinUp : Notice::SpinDown);
    }

    std::int32_t m_value = 0;
    std::int32_t m_minimum = 0;
    std::int32_t m_maximum = 10;
};

/// A slider that the wheel moves only where it has the focus.
class QuietSlider : public QSlider {
public:
    explicit QuietSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus())
            QSlider::wheelEvent(event);
        else
            event->ignore();
    }
};

class QtTrack final : public QtBase<Track, QuietSlider> {
public:
    QtTrack(const Context& context, int number) : QtBase(context, number, ButtonFace)
    {
        setGeometry({0, 0, 285, 510});
        widget().setFocusPolicy(Qt::StrongFocus);
        widget().setRange(0, 10);
        widget().setTickPosition(QSlider::TicksBelow);
        widget().setTickInterval(1);
        QObject::connect(&widget(), &QSlider::sliderMoved, &widget(), [this] { report(Notice::Scroll); });
        QObject::connect(&widget(), &QSlider::valueChanged, &widget(), [this] { report(Notice::Change); });
    }

    [[nodiscard]] std::int32_t value() const override { return widget().value(); }
    void setValue(std::int32_t value) override { widget().setValue(value); }
    [[nodiscard]] std::int32_t minimum() const override { return widget().minimum(); }
    [[nodiscard]] std::int32_t maximum() const override { return widget().maximum(); }
    void setMinimum(std::int32_t minimum) override { widget().setMinimum(minimum); }
    void setMaximum(std::int32_t maximum) override { widget().setMaximum(std::max(maximum, minimum())); }
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
    [[nodiscard]] std::int32_t tickCount() const override
    {
        const std::int64_t length = std::int64_t{maximum()} - minimum();
        const std::int64_t count = length <= 0 ? 1 : (length + tickFrequency() - 1) / tickFrequency() + 1;
        return static_cast<std::int32_t>(std::min<std::int64_t>(count, std::numeric_limits<std::int32_t>::max()));
    }
    [[nodiscard]] bool hasFocus() const override { return focusReported; }

private:
    std::int16_t m_tickStyle = 0;
};

} // namespace zor::platform::qt
