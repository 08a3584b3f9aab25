#pragma once

/// What all widgets of the Qt platform share: the settings behind the interface.

#include <zor/platform/qt/reports.h>
#include <zor/platform/temporarily.h>

#include <string>
#include <vector>

namespace zor::platform::qt {

/// Shows a new widget. On a surface that is not on screen yet it will be seen with it.
inline void showNow(QWidget& widget)
{
    if (widget.isHidden())
        widget.setVisible(true);
}

/// The QWidget under a surface.
class SurfaceWidget : public QWidget {
public:
    using QWidget::QWidget;

    /// What the surface hears of its widget.
    class Listener {
    public:
        /// It has another size.
        virtual void resized(QSize size) = 0;
        /// The menu key, on any widget of the surface that has no menu of its own.
        virtual void menuKey(QPoint at) = 0;

    protected:
        ~Listener() = default;
    };
    /// nullptr once the surface has ended.
    Listener* listener = nullptr;
    /// Parts that hear when it is about to be seen for the first time.
    std::vector<QtWidget*> waiting;

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

/// Whether a part has its Qt widget from the beginning, or from when there is first something to see of it: an
/// icon or a unit that most controls never show is as much work as half the field beside it.
enum class Made : std::uint8_t { Now, WhenShown };

/// The interface's settings over a Qt widget of type Q.
template <class Interface, class Q>
class QtBase : public Interface, public QtWidget {
public:
    QtBase(const Context& context, int number, Colour backColour, Made made = Made::Now)
        : QtWidget(context, number), m_backColour(backColour), m_isShown(made == Made::Now)
    {
        if (made == Made::Now)
            make();
        else if (!isSurfaceSeen())
            surfaceWidget().waiting.push_back(this);
    }
    ~QtBase() override
    {
        if (!isMade()) {
            std::erase(surfaceWidget().waiting, this);
            return;
        }
        m_widget->owner = nullptr;
        // Our own connections only: Qt's accessibility must still hear that the widget ends.
        QObject::disconnect(m_widget, nullptr, m_widget, nullptr);
        this->context().container->discard(*m_widget);
    }
    QtBase(const QtBase&) = delete;
    QtBase& operator=(const QtBase&) = delete;

    [[nodiscard]] Rect geometry() const override { return m_geometry; }
    void setGeometry(const Rect& geometry) override
    {
        if (m_geometry == geometry)
            return;
        m_geometry = geometry;
        QtBase::placeAnew();
    }
    void placeAnew() override
    {
        if (isMade())
            m_widget->setGeometry(scale().pixels(m_geometry));
    }
    [[nodiscard]] bool isVisible() const override { return isMade() ? !m_widget->isHidden() : m_isShown; }
    void setVisible(bool visible) override
    {
        if (isVisible() == visible)
            return;
        if (!isMade()) {
            m_isShown = visible;
            return makeIfSeen();
        }
        keepsFocus = true;
        widget().setVisible(visible);
        keepsFocus = false;
    }
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }
    void setEnabled(bool enabled) override
    {
        if (std::exchange(m_enabled, enabled) == enabled || !isMade())
            return;
        keepsFocus = true;
        m_widget->setEnabled(enabled);
        keepsFocus = false;
    }
    [[nodiscard]] Colour backColour() const override { return m_backColour; }
    void setBackColour(Colour colour) override
    {
        if (std::exchange(m_backColour, colour) == colour || !isMade())
            return;
        paintColours();
        announce();
    }
    [[nodiscard]] std::string toolTip() const override { return m_toolTip; }
    void setToolTip(std::string_view text) override
    {
        if (m_toolTip == text)
            return;
        m_toolTip = text;
        if (!isMade())
            return;
        m_widget->setToolTip(plainToolTip(m_toolTip));
        announce();
    }
    [[nodiscard]] QWidget& qwidget() const override { return widget(); }
    void themeChanged() override { paintColours(); }

protected:
    [[nodiscard]] bool isMade() const noexcept { return m_widget != nullptr; }
    [[nodiscard]] Reporting<Q>& widget() const
    {
        if (!isMade())
            const_cast<QtBase&>(*this).makeLate();
        return *m_widget;
    }
    virtual void paintColours()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, toQColor(m_backColour));
        setColours(palette);
        m_widget->setAutoFillBackground((m_backColour & kSystemColourBit) == 0);
    }

    void setColours(const QPalette& palette)
    {
        if (isSeenAs(*m_widget, palette))
            return;
        const Temporarily colouring(isColouring, true);
        m_widget->setPalette(palette);
    }

    /// Gives a widget that is made later what its kind is given at the beginning.
    virtual void prepare() {}
    /// Whether there is anything to see of it.
    [[nodiscard]] virtual bool hasFace() const { return true; }
    /// On a surface that nobody has seen yet it is made with the first look: what the control shows while it gets
    /// its properties one by one, nobody sees.
    void makeIfSeen()
    {
        if (!isMade() && m_isShown && hasFace() && isSurfaceSeen())
            makeLate();
    }
    void aboutToBeSeen() override { makeIfSeen(); }

    Rect m_geometry;

private:
    void make()
    {
        m_widget = new Reporting<Q>(context().surface);
        m_widget->owner = this;
    }
    /// What a part that is made when shown lies on.
    [[nodiscard]] SurfaceWidget& surfaceWidget() const { return static_cast<SurfaceWidget&>(*context().surface); }
    [[nodiscard]] bool isSurfaceSeen() const { return context().surface->testAttribute(Qt::WA_WState_Polished); }
    void makeLate()
    {
        std::erase(surfaceWidget().waiting, this);
        make();
        if (m_isShown)
            showNow(*m_widget);
        else
            m_widget->setVisible(false);
        placeAnew();
        m_widget->setEnabled(m_enabled);
        if (!m_toolTip.empty())
            m_widget->setToolTip(plainToolTip(m_toolTip));
        prepare();
    }

    Reporting<Q>* m_widget = nullptr;
    std::string m_toolTip;
    Colour m_backColour;
    bool m_enabled = true;
    bool m_isShown; ///< until there is a widget that knows
};

/// The same for a widget that writes text.
template <class Interface, class Q>
class QtFontBase : public QtBase<Interface, Q> {
public:
    using QtBase<Interface, Q>::QtBase;

    [[nodiscard]] Colour foreColour() const override { return m_foreColour; }
    void setForeColour(Colour colour) override
    {
        if (std::exchange(m_foreColour, colour) == colour || !this->isMade())
            return;
        this->paintColours();
        this->announce();
    }
    [[nodiscard]] bool isBold() const override { return dressed().font().bold(); }
    void setBold(bool bold) override
    {
        if (isBold() != bold)
            changeFont([bold](QFont& font) { font.setBold(bold); });
    }
    [[nodiscard]] bool isItalic() const override { return dressed().font().italic(); }
    void setItalic(bool italic) override
    {
        if (isItalic() != italic)
            changeFont([italic](QFont& font) { font.setItalic(italic); });
    }

protected:
    /// Whose font it has.
    [[nodiscard]] const QWidget& dressed() const
    {
        return this->isMade() ? this->widget() : *this->context().surface;
    }
    void paintColours() override
    {
        this->setColours(paletteOf(this->backColour(), m_foreColour));
        this->widget().setAutoFillBackground((this->backColour() & kSystemColourBit) == 0);
        holdAgainstStyleSheet(this->widget(), this->backColour(), m_foreColour);
    }

private:
    template <class Change>
    void changeFont(Change&& change)
    {
        QFont font = this->widget().font();
        change(font);
        this->widget().setFont(font);
    }

    Colour m_foreColour = ButtonText;
};

} // namespace zor::platform::qt
