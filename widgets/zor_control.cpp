#include <zor/controls/registration.h>
#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/error.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/looks.h>
#include <zor/platform/qt/qt_regional.h>
#include <zor/platform/temporarily.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/zor_control_inner.h>

#include <QAbstractSlider>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

#include <algorithm>
#include <optional>
#include <vector>

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

bool isMember(core::ValueKind kind, int value)
{
    const QMetaObject& published = ZorWidget::staticMetaObject;
    const int at = published.indexOfEnumerator(std::string(core::kindName(kind)).c_str());
    return at < 0 || published.enumerator(at).valueToKey(value) != nullptr;
}

} // namespace

ZorControl::ZorControl(std::string_view className, QWidget* parent)
    : ZorWidget(parent), m_inner(std::make_unique<Inner>(*this, classNamed(className)))
{
    takeRegionalSettings();
    Inner& inner = *m_inner;
    inner.make();
    takeFocusProxy();
    if (const auto* track = qobject_cast<const QAbstractSlider*>(inner.face))
        connect(track, &QAbstractSlider::sliderReleased, this, [this] { m_inner->released(); });
    setSizePolicy(QSizePolicy::Preferred, hasList() ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    resize(sizeHint());
}

ZorControl::~ZorControl()
{
    Inner& inner = *m_inner;
    inner.owner = nullptr;
    inner.control->unsubscribe(inner);
    if (!inner.control->isHeld() && inner.container.events.isNone() && inner.tellings.isNone()) {
        inner.control.reset();
        return;
    }
    // Deleted by a slot of one of its own signals, or by a handler of what the program writes: the control and its
    // widgets, which are still busy, go when that has returned, and what they report to goes after them.
    const QPointer surface = &inner.surface();
    surface->hide();
    surface->setParent(nullptr);
    inner.control.reset();
    auto leaving = std::make_unique<Leaving>(std::move(m_inner));
    leaving.release()->after(surface);
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
    } catch (...) {
        number = static_cast<int>(ErrorNumber::InvalidCall);
        text = QString::fromStdString(failureText(std::current_exception()));
    }
    if (alive.isNull())
        return;
    // While a form is being loaded nobody can listen yet.
    if (!alive->isSignalConnected(QMetaMethod::fromSignal(&ZorControl::refused)))
        qWarning("%s", qUtf8Printable(text));
    emit alive->refused(widgets::toQString(member), number, text);
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
    guarded(property.name, [&] {
        // What a form says and no enumeration has comes as -1.
        const core::ValueKind kind = property.field.kind;
        if (core::isEnumeration(kind) && !isMember(kind, value.toInt32()))
            throw RunTimeError(ErrorNumber::InvalidCall, "no member of the enumeration")
                .of(info().name, property.name, value.toText());
        control().put(property, value);
    });
}

void ZorControl::writeProperty(std::size_t row, const QVariant& value)
{
    const core::PropertyRow& property = *info().properties[row];
    guarded(property.name, [&] {
        control().put(property, naming(info().name, property.name, [&] { return widgets::fromQVariant(value); }));
    });
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
    QVariant value;
    guarded("value", [&] {
        const std::optional<Variant> entry = control().entryUnderWay();
        const bool isEdited =
            info().property("OutputValue") != nullptr && control().property("DataModified").toBoolean();
        // A slider's DeviceValue is read times its ScaleFactor, which would grow with each round through a model.
        const bool isOutput = isEdited || info().property("ScaleFactor") != nullptr;
        value = widgets::toQVariant(entry ? *entry : control().property(isOutput ? "OutputValue" : "DeviceValue"));
    });
    return value;
}

void ZorControl::setValue(const QVariant& value)
{
    guarded("value", [&] {
        control().setProperty("DeviceValue",
                              naming(info().name, "value", [&] { return widgets::fromQVariant(value); }));
    });
}

void ZorControl::connectNotify(const QMetaMethod& signal)
{
    // Qt itself connects to the end of every widget that it shows.
    if (signal.methodIndex() < staticMetaObject.methodOffset())
        return;
    const QMetaObject& meta = *metaObject();
    for (const core::PropertyRow* row : info().properties) {
        const int index = meta.indexOfProperty(std::string(row->name).c_str());
        if (index < 0 || meta.property(index).notifySignal() != signal)
            continue;
        std::vector<Inner::Watch>& watches = m_inner->watches;
        if (std::ranges::find(watches, row, &Inner::Watch::row) == watches.end() &&
            signal.name() != "valueChanged")
            watches.push_back({row, signal, m_inner->readable(*row)});
        return;
    }
}

// --- The widget

QSize ZorControl::sizeHint() const { return m_inner->container.scale().pixels(m_inner->designed).size(); }

void ZorControl::followFont()
{
    const QSize before = sizeHint();
    if (m_inner->container.followFont()) {
        for (const core::WidgetRow& row : info().widgets) {
            if (platform::Widget* part = control().widget(row.widget))
                platform::qt::placeAnew(*part);
        }
        if (size() == before)
            resize(sizeHint());
        updateGeometry();
    }
    layOut();
}

void ZorControl::layOut()
{
    guarded("size", [this] {
        const platform::Hold hold(control());
        const platform::qt::Scale& scale = m_inner->container.scale();
        control().surface().setGeometry({0, 0, scale.twips(width()), scale.twips(height())});
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
        setFocusPolicy(widget.focusPolicy());
        break;
    }
    followFace();
}

void ZorControl::followFace()
{
    // Qt hands the focus on to a proxy without asking whether it can be reached, and Tab would lead no further.
    if (QWidget* proxy = focusProxy()) {
        const bool isReachable = proxy->isEnabled() && !proxy->isHidden();
        proxy->setFocusPolicy(isReachable ? focusPolicy() : Qt::NoFocus);
    }
    const bool isAbsent = isUserMode() && m_inner->face->isHidden();
    if (std::exchange(m_inner->isAbsent, isAbsent) == isAbsent)
        return;
    std::optional<bool>& isShown = m_inner->isShown;
    if (isAbsent)
        isShown = !isHidden()                                     ? std::optional(true)
                  : testAttribute(Qt::WA_WState_ExplicitShowHide) ? std::optional(false)
                                                                  : std::nullopt;
    const platform::Temporarily keeping(m_inner->keepsFocus, true);
    if (isAbsent)
        ZorWidget::setVisible(false);
    else if (isShown.value_or(parentWidget() != nullptr))
        ZorWidget::setVisible(true);
    else if (!isShown) // it has no place yet: as a new one it is shown with that
        setAttribute(Qt::WA_WState_ExplicitShowHide, false);
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

bool ZorControl::hasList() const { return dynamic_cast<const platform::ListBox*>(control().widget(1)) != nullptr; }

void ZorControl::changeEvent(QEvent* event)
{
    ZorWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        followFont();
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
