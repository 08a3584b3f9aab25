// Where a widget's control reports to.

#include <zor/platform/error.h>
#include <zor/widgets/zor_control_inner.h>

#include <QAbstractSlider>
#include <QCoreApplication>
#include <QFocusEvent>

#include <utility>

namespace zor {

void ZorControl::Inner::written(std::string_view name)
{
    const QPointer<ZorControl> alive = owner;
    if (alive.isNull())
        return;
    // The other button's value is the device's, too.
    if (name == "DeviceValue" || name == "EnumValue") {
        isValueNew = true;
        commits->forget();
        dragged.reset();
    }
    const Telling telling(tellings);
    emit alive->propertyChanged(widgets::toQString(name));
}

void ZorControl::Inner::formChanges(const QWidget& part, const QEvent& event)
{
    if (owner == nullptr || (&part != face && &part != owner->focusProxy()))
        return;
    if (event.type() != QEvent::FocusOut)
        return owner->followFace();
    if (&part != owner->focusProxy())
        return;
    // Who watches this widget for its focus (a data mapper) would see nothing of the part that has it.
    const auto reason = static_cast<const QFocusEvent&>(event).reason();
    QMetaObject::invokeMethod(
        owner,
        [widget = owner, reason] {
            QFocusEvent left(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(widget, &left);
        },
        Qt::QueuedConnection);
}

std::optional<Variant> ZorControl::Inner::committed()
{
    isValueNew = false;
    std::optional<Variant> value = commits->take();
    const auto* track = qobject_cast<const QAbstractSlider*>(face);
    if (value && track != nullptr && track->isSliderDown())
        dragged = std::exchange(value, std::nullopt);
    return value;
}

void ZorControl::Inner::released()
{
    const QPointer<ZorControl> alive = owner;
    const Telling telling(tellings);
    if (const auto value = std::exchange(dragged, std::nullopt); value && !alive.isNull())
        emit alive->valueCommitted(widgets::toQVariant(*value));
}

Variant ZorControl::Inner::readable(const core::PropertyRow& row) const
{
    try {
        return control->get(row);
    } catch (const RunTimeError&) {
        return {};
    }
}

void ZorControl::Inner::settled() noexcept
{
    const QPointer<ZorControl> alive = owner;
    if (alive.isNull() || (!isValueNew && watches.empty()))
        return;
    const platform::Hold hold(*control);
    const Telling telling(tellings);
    if (std::exchange(isValueNew, false))
        emit alive->valueChanged();
    for (std::size_t i = 0; i < watches.size() && !alive.isNull(); ++i) {
        Variant now = readable(*watches[i].row);
        if (now == watches[i].last)
            continue;
        watches[i].last = std::move(now);
        watches[i].notifier.invoke(owner, Qt::DirectConnection);
    }
}

} // namespace zor
