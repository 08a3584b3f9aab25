#pragma once

/// What all widgets of the Qt platform report: Qt's events as reports of the platform.

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
#include <utility>

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
        : m_sweep{*context.container}, m_level(context.container->events), m_hold(*context.listener)
    {}
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

private:
    struct Sweep {
        QtContainer& container;
        ~Sweep() { container.sweep(); }
    };

    // In this order: the control ends while its event still counts, and its widgets go when it no longer does.
    Sweep m_sweep;
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
    /// The key that a handler made of one that is still down; 0 for none.
    int heldAs = 0;
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

/// Sends a widget's events through `QtWidget`: reports them, and lets handlers change or swallow keys. What is
/// reported once the widget has handled an event is settled in before(), and reported by after().
class EventReports {
public:
    EventReports(QtWidget& widget, QEvent& event) : m_widget(widget), m_event(event) {}

    /// Before the widget handles the event. True: it is swallowed.
    [[nodiscard]] bool before();
    /// After the widget has handled it.
    void after();
    /// What the widget sees in the event's place, where a handler made another key or character of it; else
    /// nullptr.
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
        case QEvent::Wheel:
        case QEvent::FontChange:
        case QEvent::StyleChange:
        case QEvent::PaletteChange: return true;
        default: return false;
        }
    }
};

} // namespace zor::platform::qt
