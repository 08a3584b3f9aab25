#include <zor/controls/registration.h>
#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/error.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/looks.h>
#include <zor/platform/qt/qt_regional.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/zor_control.h>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

#include <algorithm>

namespace zor {
namespace {

const core::ClassInfo& classNamed(std::string_view name)
{
    static const core::ClassRegistry registry = [] {
        core::ClassRegistry all;
        registerControls(all);
        return all;
    }();
    const core::ClassInfo* info = registry.find(name);
    if (info == nullptr)
        raiseError(ErrorNumber::ObjectRequired);
    return *info;
}

void takeRegionalSettings()
{
    static const bool taken = [] {
        platform::setRegionalSettings(platform::qt::localeRegionalSettings());
        return true;
    }();
    static_cast<void>(taken);
}

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

// --- The control, and where it reports to

struct ZorControl::Inner final : QObject, core::EventSink {
    explicit Inner(ZorControl& widget) : owner(&widget), container(widget, core::pictureData)
    {
        container.setUserMode(true);
        container.onPropertyChanged = [this](platform::Component&, std::string_view name) {
            const QPointer<ZorControl> alive = owner;
            if (alive.isNull())
                return;
            const Telling telling(*this);
            emit alive->propertyChanged(toQString(name));
            if (!alive.isNull() && name == "DeviceValue" && info->property("OutputValue") == nullptr)
                emit alive->valueChanged();
        };
    }
    using QObject::event;
    void event(core::Control&, const core::EventRow& row, platform::EventArgs args) override
    {
        const QPointer<ZorControl> alive = owner;
        if (alive.isNull())
            return;
        const Telling telling(*this);
        alive->emitEvent(static_cast<std::size_t>(&row - &info->events[0]), args);
        if (!alive.isNull() && row.name == "OutputValueChange")
            emit alive->valueChanged();
    }

    /// While slots are being called, any of which may delete the widget.
    class Telling {
    public:
        explicit Telling(Inner& inner) noexcept : m_inner(inner) { ++m_inner.tellings; }
        ~Telling() { --m_inner.tellings; }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;

    private:
        Inner& m_inner;
    };

    [[nodiscard]] QWidget& surface() const { return platform::qt::widgetOf(control->surface()); }

    ZorControl* owner;
    platform::qt::QtContainer container;
    const core::ClassInfo* info = nullptr;
    core::ControlPtr<> control;
    QSize designed;
    Qt::FocusPolicy focusPolicy = Qt::NoFocus; ///< of the focus proxy, while it can be reached
    bool isAbsent = false;                     ///< hidden because the device does not offer the parameter
    bool isShown = true;                       ///< whether it is to be seen where the device does
    bool keepsFocus = false;                   ///< while the control itself hides its widget
    int tellings = 0;
};

ZorControl::ZorControl(std::string_view className, QWidget* parent)
    : ZorWidget(parent), m_inner(std::make_unique<Inner>(*this))
{
    takeRegionalSettings();
    Inner& inner = *m_inner;
    inner.info = &classNamed(className);
    inner.control = inner.info->create(inner.container);
    inner.control->initialiseProperties();
    inner.control->subscribe(inner);
    inner.designed = platform::qt::toPixels(inner.control->surface().geometry()).size();
    takeFocusProxy();
    setSizePolicy(QSizePolicy::Preferred, hasList() ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    resize(inner.designed);
}

ZorControl::~ZorControl()
{
    Inner& inner = *m_inner;
    inner.owner = nullptr;
    inner.control->unsubscribe(inner);
    if (inner.container.eventDepth == 0 && inner.tellings == 0) {
        inner.control.reset();
        return;
    }
    // Deleted by a slot of one of its own signals: the control and its widgets, which are still busy, go when the
    // event has returned, and what they report to goes after them.
    inner.surface().hide();
    inner.surface().setParent(nullptr);
    inner.control.reset();
    m_inner.release()->deleteLater();
}

core::Control& ZorControl::control() const noexcept { return *m_inner->control; }
const core::ClassInfo& ZorControl::info() const noexcept { return *m_inner->info; }
bool ZorControl::isUserMode() const noexcept { return m_inner->container.userMode(); }
void ZorControl::setUserMode(bool userMode)
{
    m_inner->container.setUserMode(userMode);
    followFace();
}

// --- Properties and methods

template <class Action>
void ZorControl::guarded(std::string_view member, Action&& action) const
{
    // A slot of the write's own signals may delete the widget.
    const QPointer<ZorControl> alive = const_cast<ZorControl*>(this);
    int number = 0;
    QString text;
    try {
        return action();
    } catch (const RunTimeError& error) {
        number = static_cast<int>(error.number());
        text = error.what();
    } catch (const std::exception& error) {
        number = static_cast<int>(ErrorNumber::InvalidCall);
        text = error.what();
    }
    if (!alive.isNull())
        emit alive->refused(toQString(member), number, text);
}

Variant ZorControl::readProperty(std::size_t row) const
{
    const core::PropertyRow& property = *info().properties[row];
    Variant value;
    guarded(property.name, [&] { value = control().get(property); });
    return value;
}

void ZorControl::writeProperty(std::size_t row, const Variant& value)
{
    const core::PropertyRow& property = *info().properties[row];
    guarded(property.name, [&] { control().put(property, value); });
}

Variant ZorControl::callMethod(std::size_t row, std::initializer_list<Variant> arguments)
{
    const core::MethodRow& method = info().methods[row];
    Variant answer;
    guarded(method.name, [&] {
        const core::MethodResult result =
            control().call(method.name, std::span(arguments.begin(), arguments.size()));
        if (const auto* value = std::get_if<Variant>(&result))
            answer = *value;
    });
    return answer;
}

QVariantList ZorControl::callForArray(std::size_t row, std::initializer_list<Variant> arguments)
{
    const core::MethodRow& method = info().methods[row];
    QVariantList answer;
    guarded(method.name, [&] {
        const core::MethodResult result =
            control().call(method.name, std::span(arguments.begin(), arguments.size()));
        if (const auto* values = std::get_if<std::vector<Variant>>(&result))
            std::ranges::transform(*values, std::back_inserter(answer), widgets::toQVariant);
    });
    return answer;
}

QVariant ZorControl::value() const
{
    const bool edits = info().property("OutputValue") != nullptr;
    QVariant value;
    guarded("value",
            [&] { value = widgets::toQVariant(control().property(edits ? "OutputValue" : "DeviceValue")); });
    return value;
}

void ZorControl::setValue(const QVariant& value)
{
    guarded("value", [&] { control().setProperty("DeviceValue", widgets::fromQVariant(value)); });
}

// --- The widget

QSize ZorControl::sizeHint() const { return m_inner->designed; }

void ZorControl::layOut()
{
    guarded("size", [this] {
        const platform::Hold hold(control());
        control().surface().setGeometry(
            {0, 0, width() * platform::qt::kTwipsPerPixel, height() * platform::qt::kTwipsPerPixel});
        control().resized();
    });
}

void ZorControl::takeFocusProxy()
{
    for (const core::WidgetRow& row : info().widgets) {
        const platform::Widget* part = control().widget(row.widget);
        if (part == nullptr || row.widget == platform::kSurfaceWidget)
            continue;
        QWidget& widget = platform::qt::widgetOf(*part);
        if ((widget.focusPolicy() & Qt::TabFocus) == 0)
            continue;
        setFocusProxy(&widget);
        m_inner->focusPolicy = widget.focusPolicy();
        setFocusPolicy(widget.focusPolicy());
        widget.installEventFilter(this);
        break;
    }
    if (&face() != focusProxy())
        face().installEventFilter(this);
    followFace();
}

/// The part that a control shows where the device offers its parameter, and never else.
QWidget& ZorControl::face() const { return platform::qt::widgetOf(*control().widget(1)); }

void ZorControl::followFace()
{
    // Qt hands the focus on to a proxy without asking whether it can be reached, and Tab would lead no further.
    if (QWidget* proxy = focusProxy()) {
        const bool isReachable = proxy->isEnabled() && !proxy->isHidden();
        proxy->setFocusPolicy(isReachable ? m_inner->focusPolicy : Qt::NoFocus);
    }
    const bool isAbsent = isUserMode() && face().isHidden();
    if (std::exchange(m_inner->isAbsent, isAbsent) == isAbsent)
        return;
    if (isAbsent)
        m_inner->isShown = !(isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide));
    // A window of its own that nobody has shown yet stays where it is.
    m_inner->keepsFocus = true;
    if (isAbsent || (m_inner->isShown && parentWidget() != nullptr))
        ZorWidget::setVisible(!isAbsent);
    m_inner->keepsFocus = false;
}

void ZorControl::setVisible(bool visible)
{
    if (m_inner->isAbsent)
        m_inner->isShown = visible;
    else
        ZorWidget::setVisible(visible);
}

bool ZorControl::focusNextPrevChild(bool next)
{
    // The operator has not left a field because the device does not have it any more.
    return m_inner->keepsFocus || ZorWidget::focusNextPrevChild(next);
}

bool ZorControl::hasList() const
{
    return std::ranges::any_of(info().widgets, [this](const core::WidgetRow& row) {
        return dynamic_cast<const platform::ListBox*>(control().widget(row.widget)) != nullptr;
    });
}

bool ZorControl::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent: followFace(); break;
    default: break;
    }
    // Who watches this widget for its focus (a data mapper) would see nothing of the part that has it.
    if (watched == focusProxy() && event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        QMetaObject::invokeMethod(
            this,
            [this, reason] {
                QFocusEvent left(QEvent::FocusOut, reason);
                QCoreApplication::sendEvent(this, &left);
            },
            Qt::QueuedConnection);
    }
    return ZorWidget::eventFilter(watched, event);
}

void ZorControl::changeEvent(QEvent* event)
{
    ZorWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOut();
}

void ZorControl::paintEvent(QPaintEvent*)
{
    // What a style sheet says about this class: background and border.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void ZorControl::resizeEvent(QResizeEvent* event)
{
    ZorWidget::resizeEvent(event);
    layOut();
}

} // namespace zor
