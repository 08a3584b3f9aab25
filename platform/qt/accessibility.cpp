#include <zor/platform/qt/accessibility.h>
#include <zor/platform/qt/accessible_parts.h>

#include <QGroupBox>

#include <algorithm>
#include <cmath>

namespace zor::platform::qt {
namespace {

constexpr int kLimit = 500;

QString said(const char* text) { return QCoreApplication::translate("zor::Accessibility", text); }

/// The widget around a part's surface that hands its focus on to the surface, if there is one: what a program
/// calls that widget, it means the part.
QWidget* hostOf(const QtWidget& part)
{
    const QWidget* surface = part.context().surface;
    QWidget* host = surface->parentWidget();
    const bool speaks =
        host != nullptr && host->focusProxy() != nullptr && surface->isAncestorOf(host->focusProxy());
    return speaks ? host : nullptr;
}

/// The text of the label whose buddy the widget is.
QString labelOf(const QWidget* widget)
{
    if (widget == nullptr || widget->parentWidget() == nullptr)
        return {};
    for (const QObject* sibling : widget->parentWidget()->children()) {
        const auto* label = qobject_cast<const QLabel*>(sibling);
        if (label != nullptr && label->buddy() == widget)
            return label->text();
    }
    return {};
}

/// Without the marks of the keys.
QString plain(QString text)
{
    text.replace("&&", QString(QChar(u'\0'))).remove('&');
    return text.replace(QChar(u'\0'), '&');
}

template <class Interface>
QAccessibleInterface* make(QtWidget& part)
{
    return new Interface(part);
}

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object)
{
    const auto* reports = dynamic_cast<const Reports*>(object);
    if (reports == nullptr || reports->owner == nullptr)
        return nullptr;
    QtWidget& part = *reports->owner;
    if (qobject_cast<QLineEdit*>(object) != nullptr)
        return make<AccessibleField>(part);
    if (qobject_cast<QSlider*>(object) != nullptr)
        return make<AccessibleTrack>(part);
    if (qobject_cast<QComboBox*>(object) != nullptr)
        return make<AccessibleDropDown>(part);
    if (qobject_cast<QListView*>(object) != nullptr)
        return make<AccessibleList>(part);
    if (qobject_cast<QAbstractButton*>(object) != nullptr)
        return make<AccessibleToggle>(part);
    if (dynamic_cast<PictureWidget*>(object) != nullptr)
        return make<AccessiblePicture>(part);
    // The first part of a control is its value; any other label is a text like Qt's own.
    if (qobject_cast<QLabel*>(object) != nullptr && part.number() == 1)
        return make<AccessibleText>(part);
    return nullptr;
}

} // namespace

void installAccessibility() { QAccessible::installFactory(interfaceFor); }

// --- Any part

AccessiblePart::AccessiblePart(QtWidget& part, QAccessible::Role role) : QAccessibleWidget(&part.qwidget(), role)
{}

const QtWidget* AccessiblePart::part() const { return dynamic_cast<const Reports&>(*widget()).owner; }

Spoken AccessiblePart::spoken() const
{
    const QtWidget* part = this->part();
    return part == nullptr ? Spoken() : part->context().listener->spoken(part->number());
}

QString AccessiblePart::name() const
{
    const QtWidget* part = this->part();
    if (part == nullptr)
        return {};
    const QWidget* host = hostOf(*part);
    const QString own = host == nullptr ? QString() : host->accessibleName();
    for (const QString& name : {widget()->accessibleName(), own, plain(labelOf(widget())), plain(labelOf(host)),
                                caption(), shownText(spoken().name, kLimit)}) {
        if (!name.isEmpty())
            return name;
    }
    return value();
}

QString AccessiblePart::description() const
{
    const Spoken spoken = this->spoken();
    QStringList words;
    if (!spoken.unit.empty())
        words << shownText(spoken.unit, kLimit);
    if (spoken.limits)
        words << said("%1 to %2")
                     .arg(shownText(spoken.limits->first, kLimit), shownText(spoken.limits->second, kLimit));
    if (!spoken.state.empty())
        words << shownText(spoken.state, kLimit);
    if (spoken.isEdited)
        words << said("changed, not yet saved");
    if (spoken.isReadOnly)
        words << said("read-only");
    return words.join(", ");
}

QString AccessiblePart::text(QAccessible::Text text) const
{
    switch (text) {
    case QAccessible::Name: return name();
    case QAccessible::Description: return description();
    case QAccessible::Value: return value();
    default: return QAccessibleWidget::text(text);
    }
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const Spoken spoken = this->spoken();
    state.readOnly = spoken.isReadOnly || spoken.isLocked;
    state.busy = spoken.isBusy;
    return state;
}

// --- Buttons

QStringList AccessiblePicture::actionNames() const
{
    return widget()->isEnabled() ? QStringList{pressAction(), setFocusAction()} : QStringList();
}

void AccessiblePicture::doAction(const QString& action)
{
    if (action != pressAction())
        return AccessiblePart::doAction(action);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(widget(), &press);
}

AccessibleToggle::AccessibleToggle(QtWidget& part)
    : AccessiblePart(part, qobject_cast<QRadioButton*>(&part.qwidget()) != nullptr ? QAccessible::RadioButton
                                                                                   : QAccessible::CheckBox)
{}

QString AccessibleToggle::caption() const { return plain(button().text()); }

QAccessible::State AccessibleToggle::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.checkable = true;
    state.checked = button().isChecked();
    return state;
}

QStringList AccessibleToggle::actionNames() const
{
    return widget()->isEnabled() ? QStringList{toggleAction(), setFocusAction()} : QStringList();
}

void AccessibleToggle::doAction(const QString& action)
{
    if (action == toggleAction())
        button().click();
    else
        AccessiblePart::doAction(action);
}

// --- A number on a track

double AccessibleTrack::number(double position) const
{
    const auto [lower, upper] =
        spoken().ends.value_or(std::pair<double, double>(track().minimum(), track().maximum()));
    const double length = track().maximum() - track().minimum();
    return length <= 0 ? lower : lower + (position - track().minimum()) / length * (upper - lower);
}

QString AccessibleTrack::value() const { return shownText(spoken().value, kLimit); }

void AccessibleTrack::setCurrentValue(const QVariant& value)
{
    const double lower = number(track().minimum());
    const double upper = number(track().maximum());
    const double length = track().maximum() - track().minimum();
    const double part = (value.toDouble() - lower) / (upper - lower);
    if (upper > lower && std::isfinite(part) && !state().readOnly)
        track().setValue(track().minimum() + static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * length)));
}

void* AccessibleTrack::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : AccessiblePart::interface_cast(type);
}

// --- A list that drops down

QAccessible::State AccessibleDropDown::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = list().isOpen();
    state.collapsed = !state.expanded;
    return state;
}

QStringList AccessibleDropDown::actionNames() const
{
    return widget()->isEnabled() ? QStringList{showMenuAction(), setFocusAction()} : QStringList();
}

void AccessibleDropDown::doAction(const QString& action)
{
    if (action != showMenuAction())
        AccessiblePart::doAction(action);
    else if (list().isOpen())
        list().hidePopup();
    else
        list().showPopup();
}

} // namespace zor::platform::qt
