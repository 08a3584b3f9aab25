#pragma once

/// Label, image, check box and option button.

#include <zor/platform/qt/qt_widget.h>

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionFocusRect>

#include <cmath>
#include <optional>

namespace zor::platform::qt {

/// A label whose text can be marked with the mouse and copied from a menu. It never takes the focus, and the menu
/// opens when the button is released: a menu that opens on the press would keep the release from the control.
/// The text document that marking needs is made when somebody begins to mark.
class SelectableLabel : public QLabel {
public:
    using QLabel::QLabel;

    void setSelectable(bool selectable)
    {
        m_selectable = selectable;
        unmark();
        if (selectable)
            setCursor(Qt::IBeamCursor);
        else
            unsetCursor();
    }
    void unmark()
    {
        if (textInteractionFlags() != Qt::NoTextInteraction)
            setTextInteractionFlags(Qt::NoTextInteraction);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (m_selectable && event->button() == Qt::LeftButton) {
            setTextInteractionFlags(Qt::TextSelectableByMouse);
            setFocusPolicy(Qt::NoFocus);
            // A press on marked text would begin to drag it away, and the release would never come.
            if (event->type() == QEvent::MouseButtonPress && hasSelectedText())
                setSelection(0, 0);
        }
        QLabel::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QLabel::mouseReleaseEvent(event);
        if (event->button() != Qt::RightButton || !hasSelectedText())
            return;
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        connect(menu->addAction(QCoreApplication::translate("QWidgetTextControl", "&Copy")), &QAction::triggered,
                this, [text = selectedText()] { QGuiApplication::clipboard()->setText(text); });
        menu->popup(event->globalPosition().toPoint());
    }
    void contextMenuEvent(QContextMenuEvent* event) override { event->ignore(); }

private:
    bool m_selectable = false;
};

class QtLabel final : public QtFontBase<Label, SelectableLabel> {
public:
    QtLabel(const Context& context, int number) : QtFontBase(context, number, ButtonFace, Made::WhenShown)
    {
        QtLabel::setVisible(true);
        fit();
    }

    void setGeometry(const Rect& geometry) override
    {
        Rect fitted = geometry;
        fitted.width = m_geometry.width;
        place(fitted);
    }
    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override
    {
        if (m_caption == caption)
            return;
        m_caption = caption;
        if (isMade())
            showCaption();
        makeIfSeen();
        fit();
        report(Notice::Change);
    }
    void setSelectable(bool selectable) override { widget().setSelectable(selectable); }
    void placeAnew() override
    {
        QtFontBase::placeAnew();
        fit();
    }

private:
    void prepare() override
    {
        widget().setTextFormat(Qt::PlainText);
        showCaption();
        if (backColour() != ButtonFace || foreColour() != ButtonText)
            paintColours();
    }
    [[nodiscard]] bool hasFace() const override { return !m_caption.empty(); }
    void fontChanged() override { fit(); }
    [[nodiscard]] QString shown() const
    {
        constexpr int kLimit = 4096;
        return shownText(m_caption, kLimit);
    }
    void showCaption()
    {
        widget().unmark();
        widget().setText(shown());
    }
    void fit()
    {
        const QSize size = textSize(shown(), dressed());
        Rect fitted = m_geometry;
        fitted.width = scale().twips(size.width());
        m_lines = size.height();
        // One line is as high as designed, also where the font needs a pixel more: it hangs below.
        fitted.height = scale().twips(m_lines);
        if (std::abs(fitted.height - kLineHeight) <= scale().twips(1))
            fitted.height = kLineHeight;
        place(fitted);
    }
    void place(const Rect& geometry)
    {
        QtFontBase::setGeometry(geometry);
        if (isMade() && widget().height() < m_lines)
            widget().resize(widget().width(), m_lines);
    }

    static constexpr Twips kLineHeight = 195;
    std::string m_caption;
    int m_lines = 0; ///< what the lines of the caption need, in pixels
};

/// Paints one SVG picture in the size and sharpness of the screen; a frame shows the keyboard focus.
class PictureWidget : public QWidget {
public:
    explicit PictureWidget(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::TabFocus); }
    /// The text must outlive the widget.
    void setPicture(std::string_view svg)
    {
        m_svg = svg;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        if (!m_svg.empty()) {
            painter.setOpacity(isEnabled() ? 1.0 : 0.4);
            painter.drawPixmap(0, 0, shownPicture(m_svg, size(), devicePixelRatioF()));
            painter.setOpacity(1.0);
        }
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            // A picture gets the focus from the keyboard or from the host, never from a click: it always shows.
            option.state |= QStyle::State_KeyboardFocusChange;
            option.backgroundColor = palette().color(QPalette::Window);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }

private:
    std::string_view m_svg;
};

class QtImage final : public QtBase<Image, PictureWidget> {
public:
    QtImage(const Context& context, int number) : QtBase(context, number, ButtonFace, Made::WhenShown)
    {
        setGeometry({0, 0, 285, 285});
    }

    [[nodiscard]] int picture() const override { return m_picture; }
    void setPicture(int index) override
    {
        if (std::exchange(m_picture, index) != index && isMade())
            showPicture();
    }

private:
    void prepare() override
    {
        // What the mouse can do, the keyboard can: Space and Enter click.
        widget().installEventFilter(&m_keys.emplace(*this));
        showPicture();
        if (backColour() != ButtonFace)
            paintColours();
        // Made late, it still comes behind the parts that were there before and not behind those of other
        // controls.
        for (QObject* before : context().surface->children()) {
            if (auto* part = qobject_cast<QWidget*>(before); part != nullptr && part != &widget())
                QWidget::setTabOrder(part, &widget());
        }
    }
    void showPicture() { widget().setPicture(context().container->picture(m_picture)); }

    class Keys : public QObject {
    public:
        explicit Keys(QtImage& image) : m_image(image) {}
        bool eventFilter(QObject* object, QEvent* event) override
        {
            // One that is frozen keeps the focus, and is clicked by nobody.
            if (event->type() != QEvent::KeyPress || !m_image.isReachable())
                return QObject::eventFilter(object, event);
            const auto& press = *static_cast<QKeyEvent*>(event);
            const int key = press.key();
            if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
                return false;
            // A key that is held down is one click.
            if (press.isAutoRepeat())
                return true;
            const EventScope scope(m_image.context());
            m_image.report(Notice::Click);
            return true;
        }

    private:
        QtImage& m_image;
    };

    std::optional<Keys> m_keys;
    int m_picture = 0;
};

template <class Interface, class Button, bool ReportsOff>
class QtToggle final : public QtFontBase<Interface, Button> {
public:
    QtToggle(const Context& context, int number) : QtFontBase<Interface, Button>(context, number, ButtonFace)
    {
        this->widget().setAutoExclusive(false);
        QtToggle::paintColours();
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
    [[nodiscard]] bool isClick(const QMouseEvent& /*release*/, bool /*second*/) override { return false; }
    [[nodiscard]] bool changesOnRelease() const override { return true; }

private:
    /// The caption has the colours, the mark stands on the theme's field.
    void paintColours() override
    {
        QtFontBase<Interface, Button>::paintColours();
        QPalette palette = paletteOf(this->backColour(), this->foreColour());
        const QColor field = toQColor(WindowBackground);
        const QColor mark = readableOn(this->foreColour(), field);
        palette.setColor(QPalette::Base, field);
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::Text, mark);
        if ((this->backColour() & kSystemColourBit) != 0)
            palette.setColor(QPalette::Window, frameSource(readableOn(ButtonText, field), field));
        this->setColours(palette);
    }

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
