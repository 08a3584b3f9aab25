#pragma once

/// Label, image, check box and option button.

#include "platform/qt/qt_widget.h"

#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionFocusRect>
#include <QSvgRenderer>

#include <cmath>

namespace zor::platform::qt {

class QtLabel final : public QtFontBase<Label, QLabel> {
public:
    QtLabel(const Context& context, int number) : QtFontBase(context, number, ButtonFace)
    {
        widget().setTextFormat(Qt::PlainText);
        fit();
    }

    void setGeometry(const Rect& geometry) override
    {
        Rect fitted = geometry;
        fitted.width = m_geometry.width;
        QtFontBase::setGeometry(fitted);
    }
    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override
    {
        if (m_caption == caption)
            return;
        m_caption = caption;
        constexpr int kLimit = 4096;
        widget().setText(shownText(m_caption, kLimit));
        fit();
        report(Notice::Change);
    }

private:
    void fontChanged() override { fit(); }
    void fit()
    {
        const QSize size = widget().fontMetrics().size(0, widget().text());
        Rect fitted = m_geometry;
        fitted.width = size.width() * kTwipsPerPixel;
        fitted.height = std::max(size.height(), widget().fontMetrics().height()) * kTwipsPerPixel;
        QtFontBase::setGeometry(fitted);
    }

    std::string m_caption;
};

/// Paints one SVG picture in the size and sharpness of the screen; a frame shows the keyboard focus.
class PictureWidget : public QWidget {
public:
    explicit PictureWidget(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::TabFocus); }
    void setPicture(std::string_view svg)
    {
        m_renderer.load(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        if (m_renderer.isValid()) {
            painter.setOpacity(isEnabled() ? 1.0 : 0.4);
            m_renderer.render(&painter, QRectF(rect()));
            painter.setOpacity(1.0);
        }
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }

private:
    QSvgRenderer m_renderer;
};

class QtImage final : public QtBase<Image, PictureWidget> {
public:
    QtImage(const Context& context, int number) : QtBase(context, number, ButtonFace)
    {
        setGeometry({0, 0, 285, 285});
        // What the mouse can do, the keyboard can: Space and Enter click.
        widget().installEventFilter(&m_keys);
    }

    [[nodiscard]] int picture() const override { return m_picture; }
    void setPicture(int index) override
    {
        if (std::exchange(m_picture, index) != index)
            widget().setPicture(context().container->picture(index));
    }

private:
    class Keys : public QObject {
    public:
        explicit Keys(QtImage& image) : m_image(image) {}
        bool eventFilter(QObject* object, QEvent* event) override
        {
            if (event->type() != QEvent::KeyPress)
                return QObject::eventFilter(object, event);
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
                return false;
            const EventScope scope(m_image.context());
            m_image.report(Notice::Click);
            return true;
        }

    private:
        QtImage& m_image;
    };

    Keys m_keys{*this};
    int m_picture = 0;
};

template <class Interface, class Button, bool ReportsOff>
class QtToggle final : public QtFontBase<Interface, Button> {
public:
    QtToggle(const Context& context, int number) : QtFontBase<Interface, Button>(context, number, ButtonFace)
    {
        this->widget().setAutoExclusive(false);
        QObject::connect(&this->widget(), &QAbstractButton::toggled, &this->widget(), [this](bool on) {
            if (on || ReportsOff)
                this->report(Notice::Click);
        });
    }

    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override
    {
        m_caption = caption;
        constexpr int kLimit = 4096;
        this->widget().setText(shownText(m_caption, kLimit).replace('&', "&&"));
    }
    [[nodiscard]] bool isOn() const override { return this->widget().isChecked(); }
    void setOn(bool on) override { this->widget().setChecked(on); }
    [[nodiscard]] bool hasFocus() const override { return this->focusReported; }
    [[nodiscard]] bool reportsClicks() const override { return false; }

private:
    std::string m_caption;
};

/// A radio button that stays on when it is pressed again: it stands for a value, not for a switch.
class StayingRadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void nextCheckState() override { setChecked(true); }
};

using QtCheckBox = QtToggle<CheckBox, QCheckBox, true>;
using QtOptionButton = QtToggle<OptionButton, StayingRadioButton, false>;

} // namespace zor::platform::qt
