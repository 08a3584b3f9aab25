#include <zor/platform/key_codes.h>
#include <zor/platform/operator.h>
#include <zor/platform/qt/keys.h>
#include <zor/platform/qt/qt_widget.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QResizeEvent>

namespace zor::platform::qt {

void QtWidget::report(Notice notice, EventArgs args) const
{
    QtContainer& container = *m_context.container;
    const EventScope scope(m_context);
    try {
        m_context.listener->notice(m_number, notice, args);
    } catch (...) {
        container.failed(std::current_exception());
    }
}

void QtWidget::announce() const
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent changed(&qwidget(), QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

void QtWidget::formChanges(const QEvent& event)
{
    // Only what is painted in the theme's own colours looks otherwise where it is disabled.
    if (event.type() == QEvent::EnabledChange && !qwidget().testAttribute(Qt::WA_SetPalette))
        themeChanged();
    if (m_context.container->onFormChanges)
        m_context.container->onFormChanges(qwidget(), event);
}

bool SurfaceWidget::event(QEvent* event)
{
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::Polish) {
        for (QtWidget* part : std::exchange(waiting, {}))
            part->aboutToBeSeen();
    }
    return isHandled;
}

void SurfaceWidget::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse has been heard of already, by its release.
    const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
    event->setAccepted(isKey);
    if (isKey && listener != nullptr)
        listener->menuKey(event->pos());
}

void SurfaceWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (listener != nullptr)
        listener->resized(event->size());
}

static std::unique_ptr<QKeyEvent> keyEvent(QEvent::Type type, Qt::Key key, std::int16_t character,
                                           Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QString text = character == 0 ? QString() : QString(QChar(static_cast<char16_t>(character)));
    return std::make_unique<QKeyEvent>(type, key, modifiers, text);
}

bool EventReports::before()
{
    if (m_event.type() == QEvent::KeyPress)
        return keyPressed(static_cast<QKeyEvent&>(m_event));
    // What went down as another key comes up as that one.
    if (m_event.type() == QEvent::KeyRelease && m_widget.heldAs != 0)
        m_replacement = keyEvent(QEvent::KeyRelease, static_cast<Qt::Key>(std::exchange(m_widget.heldAs, 0)), 0);
    if (m_event.type() == QEvent::MouseButtonRelease && m_widget.changesOnRelease())
        mouse(Notice::MouseUp);
    return false;
}

bool EventReports::keyPressed(QKeyEvent& key)
{
    // Tab moves the focus; it is no key of the widget's.
    if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab)
        return false;
    const Stroke struck{codeOf(key), characterOf(key)};
    Stroke stroke = struck;
    const auto report = [&](Notice notice, EventArgs args) { m_widget.report(notice, args); };
    if (!isHeard(stroke, shiftOf(key.modifiers()), report, [&] { return m_widget.isReachable(); }))
        return true;
    m_widget.heldAs = 0;
    if (stroke != struck) {
        const Qt::Key instead = keyOf(stroke.code);
        m_widget.heldAs = instead;
        m_replacement = keyEvent(QEvent::KeyPress, instead, stroke.character,
                                 stroke.character == 0 ? key.modifiers() : Qt::NoModifier);
    }
    return false;
}

void EventReports::after()
{
    switch (m_event.type()) {
    case QEvent::FocusIn:
        if (!std::exchange(m_widget.focusReported, true))
            m_widget.report(Notice::GotFocus);
        break;
    case QEvent::FocusOut: focusLost(static_cast<QFocusEvent&>(m_event)); break;
    case QEvent::KeyRelease: {
        // What the key itself has frozen or hidden hears no more of it.
        if (!m_widget.isReachable())
            break;
        auto& key = static_cast<QKeyEvent&>(m_event);
        std::int16_t code = codeOf(key);
        std::int16_t shift = shiftOf(key.modifiers());
        m_widget.report(Notice::KeyUp, std::array<ArgRef, 2>{&code, &shift});
        break;
    }
    case QEvent::MouseButtonPress:
        // Of a double click whose handler froze the widget the end is never heard.
        m_widget.doubleClicked = false;
        mouse(Notice::MouseDown);
        break;
    case QEvent::MouseMove: mouse(Notice::MouseMove); break;
    case QEvent::MouseButtonDblClick:
        m_widget.doubleClicked = true;
        m_widget.report(Notice::DblClick);
        break;
    case QEvent::MouseButtonRelease: {
        const auto& release = static_cast<QMouseEvent&>(m_event);
        const bool second = release.button() == Qt::LeftButton && std::exchange(m_widget.doubleClicked, false);
        // Before a handler of MouseUp makes the widget narrower than where it was clicked.
        const bool isClick = m_widget.isClick(release, second);
        if (!m_widget.changesOnRelease())
            mouse(Notice::MouseUp);
        if (m_widget.qwidget().isEnabled() && isClick)
            m_widget.report(Notice::Click);
        break;
    }
    case QEvent::FontChange: m_widget.fontChanged(); break;
    case QEvent::StyleChange: m_widget.themeChanged(); break;
    // Of a change of theme windows alone are told; what they hold hears of it by the colours that it inherits.
    case QEvent::PaletteChange:
        if (!m_widget.isColouring)
            m_widget.themeChanged();
        break;
    default: break;
    }
}

/// Also to what is disabled, which Qt would not.
static void giveFocusBack(QWidget& widget)
{
    const bool isDisabled = widget.testAttribute(Qt::WA_Disabled);
    widget.setAttribute(Qt::WA_Disabled, false);
    widget.setFocus(Qt::OtherFocusReason);
    widget.setAttribute(Qt::WA_Disabled, isDisabled);
}

void EventReports::focusLost(const QFocusEvent& focus)
{
    // A menu or another program over the window does not end the operator's work in the field.
    const Qt::FocusReason reason = focus.reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || m_widget.isFocusNear() ||
        !m_widget.focusReported || m_widget.validating)
        return;
    bool cancel = false;
    const QPointer<QWidget> widget = &m_widget.qwidget();
    m_widget.validating = true;
    m_widget.report(Notice::Validate, std::array<ArgRef, 1>{&cancel});
    if (!widget)
        return;
    m_widget.validating = false;
    // Nobody can go on working in what is hidden: that is left, whatever the host says.
    if (cancel && !widget->isHidden())
        return giveFocusBack(*widget);
    m_widget.focusReported = false;
    m_widget.report(Notice::LostFocus);
}

void EventReports::mouse(Notice notice) const
{
    const auto& event = static_cast<QMouseEvent&>(m_event);
    std::int16_t button = notice == Notice::MouseMove ? buttonsOf(event.buttons()) : buttonsOf(event.button());
    std::int16_t shift = shiftOf(event.modifiers());
    const Scale& scale = m_widget.scale();
    auto x = static_cast<float>(scale.twips(event.position().x()));
    auto y = static_cast<float>(scale.twips(event.position().y()));
    m_widget.report(notice, std::array<ArgRef, 4>{&button, &shift, &x, &y});
}

void placeAnew(Widget& widget) { dynamic_cast<QtWidget&>(widget).placeAnew(); }

QWidget& widgetOf(const Widget& widget) { return dynamic_cast<const QtWidget&>(widget).qwidget(); }

} // namespace zor::platform::qt
