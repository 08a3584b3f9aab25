#pragma once

/// What all widgets of the Qt platform share: the settings behind the interface, and the reports.

#include <zor/platform/qt/container.h>
#include <zor/platform/qt/looks.h>
#include <zor/platform/widgets.h>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zor::platform::qt {

/// Where a widget reports to.
struct Context {
    QtContainer* container;
    WidgetListener* listener;
    QWidget* surface;
};

/// A scope inside one of Qt's events. The control may be destroyed by a handler: it ends with the scope at the
/// earliest, and its Qt widgets, still in use further up, are deleted later.
class EventScope {
public:
    explicit EventScope(const Context& context) noexcept
        : m_level(context.container->events), m_hold(*context.listener)
    {}
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

private:
    // In this order: the control ends while its event still counts.
    Depth::Level m_level;
    Hold<WidgetListener> m_hold;
};

/// What the platform needs of a widget without knowing its interface.
class QtWidget {
public:
    QtWidget(const Context& context, int number) : m_context(context), m_number(number) {}
    virtual ~QtWidget() = default;
    QtWidget(const QtWidget&) = delete;
    QtWidget& operator=(const QtWidget&) = delete;

    [[nodiscard]] virtual QWidget& qwidget() const = 0;
    [[nodiscard]] const Context& context() const noexcept { return m_context; }
    [[nodiscard]] int number() const noexcept { return m_number; }
    [[nodiscard]] const Scale& scale() const noexcept { return m_context.container->scale(); }
    /// Takes the pixels that its twips are now.
    virtual void placeAnew() = 0;
    /// The surface is about to be seen for the first time.
    virtual void aboutToBeSeen() {}
    /// Tells a screen reader, if one listens, that there is something new to say.
    void announce() const;
    /// Reports; what a handler throws goes to the container, never through Qt's event loop.
    void report(Notice notice, EventArgs args = {}) const;
    /// Whether a release of the mouse (`second`: after a double click) is a Click. A widget that reports its
    /// changes as clicks says no.
    [[nodiscard]] virtual bool isClick(const QMouseEvent& release, bool second)
    {
        // A label without a text is no wider than a line, and still the operator's to click.
        const QRect area = qwidget().rect().united(QRect(0, 0, 1, 1));
        return release.button() == Qt::LeftButton && !second && area.contains(release.position().toPoint());
    }
    /// A widget that changes on the release hears of the mouse first: MouseUp comes before the Click.
    [[nodiscard]] virtual bool changesOnRelease() const { return false; }
    /// Whether the focus is in a window of the widget's own: it has not left.
    [[nodiscard]] virtual bool isFocusNear() const { return false; }
    /// Whether the operator could act on it.
    [[nodiscard]] bool isReachable() const { return qwidget().isEnabled() && !qwidget().isHidden(); }
    /// The theme changed: colours that follow it are set anew.
    virtual void themeChanged() = 0;
    /// The widget writes in another font, for whatever reason.
    virtual void fontChanged() {}
    /// The form enables, disables, shows or hides the widget, or takes its focus.
    void formChanges(const QEvent& event);

    /// Whether the listener believes that the widget has the focus.
    bool focusReported = false;
    /// The release after a double click is no click of its own.
    bool doubleClicked = false;
    /// True while the control disables or hides the widget: it keeps the focus then.
    bool keepsFocus = false;
    /// True while the listener is asked whether the focus may go.
    bool validating = false;
    /// True while the control gives the widget colours: that the palette changes by this is no change of theme.
    bool isColouring = false;

private:
    Context m_context;
    int m_number;
};

/// Sends a widget's events through `QtWidget`: reports them, and lets handlers change or swallow keys.
/// Returns true when the widget must not see the event; `after` is set to what is reported once it has.
class EventReports {
public:
    EventReports(QtWidget& widget, QEvent& event) : m_widget(widget), m_event(event) {}

    /// Before the widget handles the event. True: it is swallowed.
    [[nodiscard]] bool before();
    /// After the widget has handled it.
    void after();
    /// A key that a handler replaced by another character.
    [[nodiscard]] QEvent* replacement() noexcept { return m_replacement.get(); }

private:
    [[nodiscard]] bool keyPressed(QKeyEvent& key);
    void focusLost(const QFocusEvent& focus);
    void mouse(Notice notice) const;

    QtWidget& m_widget;
    QEvent& m_event;
    std::unique_ptr<QKeyEvent> m_replacement;
};

/// Handles an event and reports it. `owner` is cleared when the interface object ends first.
template <class Handle>
bool reported(QtWidget* const& owner, QEvent* event, Handle&& handle)
{
    if (owner == nullptr)
        return handle(event);
    // The focus may rest on a widget that is frozen or hidden; keys (Tab, say) and clicks go on to the form.
    // A click may hide what it acknowledges: the second of two is still the operator's.
    const bool isMouse = dynamic_cast<QMouseEvent*>(event) != nullptr;
    const bool isKey = dynamic_cast<QKeyEvent*>(event) != nullptr;
    const auto isLost = [&] {
        return (isMouse && !owner->qwidget().isEnabled()) || (isKey && !owner->isReachable());
    };
    if (isLost()) {
        event->ignore();
        return false;
    }
    const EventScope scope(owner->context());
    EventReports reports(*owner, *event);
    if (reports.before() || owner == nullptr || isLost())
        return true;
    const bool handled = handle(reports.replacement() != nullptr ? reports.replacement() : event);
    if (owner != nullptr)
        reports.after();
    // A press that nobody takes would go to the widget beneath, and its release with it.
    if (isMouse)
        event->accept();
    return handled || isMouse;
}

/// A Qt widget of this platform, whatever else it is; `owner` is nullptr once the interface object has ended.
struct Reports {
    QtWidget* owner = nullptr;

protected:
    Reports() = default;
    virtual ~Reports() = default;
};

/// A Qt widget whose events are reported.
template <class Base>
class Reporting : public Base, public Reports {
public:
    using Base::Base;

    bool event(QEvent* event) override
    {
        if (owner != nullptr && isOfForm(event->type()))
            owner->formChanges(*event);
        if (!isOfInterest(event->type()))
            return Base::event(event);
        return reported(owner, event, [this](QEvent* shown) { return Base::event(shown); });
    }

protected:
    /// Qt hands the focus of a widget that is disabled or hidden to its neighbour. The operator has left neither:
    /// a half-typed entry must not be taken over because the host froze the field while it reads the device.
    bool focusNextPrevChild(bool next) override
    {
        return (owner != nullptr && owner->keepsFocus) || Base::focusNextPrevChild(next);
    }

private:
    static bool isOfForm(QEvent::Type type)
    {
        return type == QEvent::EnabledChange || type == QEvent::ShowToParent || type == QEvent::HideToParent ||
               type == QEvent::FocusOut;
    }
    static bool isOfInterest(QEvent::Type type)
    {
        switch (type) {
        case QEvent::FocusIn:
        case QEvent::FocusOut:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::FontChange:
        case QEvent::StyleChange:
        case QEvent::PaletteChange: return true;
        default: return false;
        }
    }
};

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
        const bool before = std::exchange(isColouring, true);
        m_widget->setPalette(palette);
        isColouring = before;
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
