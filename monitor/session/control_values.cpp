#include <zor/monitor/data/codec.h>
#include <zor/monitor/session/control_values.h>
#include <zor/platform/error.h>

#include <algorithm>

namespace zor::monitor {
namespace {

bool isUntouched(core::Control& control, const core::PropertyRow& row)
{
    return control.get(row) == core::toVariant(row.bagDefault);
}

} // namespace

void applyLimits(core::Control& control, const Parameter& parameter)
{
    const core::ClassInfo& info = control.info();
    const core::PropertyRow* minimum = info.property("MinValue");
    const core::PropertyRow* maximum = info.property("MaxValue");
    const auto& [lowest, highest] = rangeOf(parameter);
    if (minimum == nullptr || lowest == highest || !isUntouched(control, *minimum) ||
        !isUntouched(control, *maximum))
        return;
    const Appearance& limits = parameter.appearance;
    const bool open = control.get(*minimum) != control.get(*maximum);
    if (open && !limits.minimum && !limits.maximum)
        return;
    double lower = limits.minimum.value_or(lowest);
    double upper = limits.maximum.value_or(highest);
    if (info.property("DeviceValue")->field.kind == core::ValueKind::Int32) {
        lower = std::clamp<double>(lower, INT32_MIN, INT32_MAX);
        upper = std::clamp<double>(upper, INT32_MIN, INT32_MAX);
    }
    try {
        control.setProperty("DefaultUnit", static_cast<std::int32_t>(parameter.unit));
        // The upper limit first: a track takes no lower end beyond its upper one.
        control.put(*maximum, upper);
        control.put(*minimum, lower);
    } catch (const RunTimeError&) {
        // In the unit shown they are beyond what the control can count: its own limits stay.
    }
}

void renewLimits(core::Control& control)
{
    for (const std::string_view name : {"MaxValue", "MinValue"}) {
        if (const core::PropertyRow* row = control.info().property(name))
            control.put(*row, control.get(*row));
    }
}

void showNothing(core::Control& control)
{
    const core::ClassInfo& info = control.info();
    const core::PropertyRow& value = *info.property("DeviceValue");
    const bool takesText = value.field.kind == core::ValueKind::Any || value.field.kind == core::ValueKind::Text;
    control.put(value, takesText ? Variant("") : control.get(value));
    if (takesText)
        return;
    // An integer cannot be missing; what shows it can be empty.
    for (const core::WidgetRow& row : info.widgets) {
        platform::Widget* widget = control.widget(row.widget);
        if (auto* field = dynamic_cast<platform::TextField*>(widget))
            field->setText("");
        else if (auto* list = dynamic_cast<platform::ComboBox*>(widget))
            list->setCurrent(-1);
        else if (auto* button = dynamic_cast<platform::OptionButton*>(widget))
            button->setOn(false); // else the one that stands for 0 would be pressed
    }
}

} // namespace zor::monitor
