// A host program on a platform of its own: the form is printed, the operator types commands.
//   NAME ENTRY   types into a field, chooses or marks an entry, moves a slider; + and - step
//   NAME         presses a box or a button
//   NAME ?       clicks the state icon; NAME undo, NAME fails: the device does not answer

#include "platform.h"
#include <zor/controls.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using zor::core::Control;
using zor::platform::Refusal;

/// A parameter of the device, the control that shows it, and what is written into it, in this order.
struct Parameter {
    std::string name;
    std::string_view control;
    std::vector<std::string> entries;
    std::vector<std::pair<std::string_view, zor::Variant>> settings;
};

std::vector<Parameter> parameters()
{
    const auto metre = static_cast<std::int32_t>(zor::LgthU_Mtr);
    const auto none = static_cast<std::int32_t>(zor::NoneU);
    return {
        {"level",
         "ctx_ZorTextBox",
         {},
         {{"OutputUnit", metre}, {"DefaultUnit", metre}, {"MaxValue", 20}, {"DeviceValue", 12345}}},
        {"damping", "ctx_ZorUpDown", {}, {{"UnitEnable", false}, {"MaxValue", 60}, {"DeviceValue", 20}}},
        {"opening",
         "ctx_ZorSlider",
         {},
         {{"DeviceUnit", none},
          {"OutputUnit", none},
          {"DefaultUnit", none},
          {"UnitEnable", false},
          {"MaxValue", 100},
          {"DeviceValue", 80}}},
        {"mode", "ctx_ZorComboBox", {"Manual", "Automatic"}, {{"DeviceValue", 1}}},
        {"alarms", "ctx_ZorListBox", {"High", "Low"}, {{"DeviceValue", 1}}},
        {"heater", "ctx_ZorCheckBox", {}, {{"CheckBoxCaption", "On"}, {"DeviceValue", 0}}},
        {"sphere",
         "ctx_ZorOptionButton",
         {},
         {{"OptionButtonCaption", "Sphere"}, {"EnumEntryValue", 2}, {"DeviceValue", 1}}},
        {"tag", "ctx_ZorLabel", {}, {{"DeviceValue", "TK-101"}}},
        {"status", "ctx_ZorImage", {}, {{"DeviceValue", 0}}},
    };
}

/// Hears of every control what is to be written to the device.
class Device final : public zor::core::EventSink {
public:
    void event(Control& control, const zor::core::EventRow& row, zor::platform::EventArgs /*args*/) override
    {
        if (row.name != "OutputValueChange")
            return;
        if (const auto value = m_commits.try_emplace(&control, control).first->second.take())
            std::cout << "  write " << control.DeviceTag() << ' ' << value->toText() << '\n';
    }
    void ended(Control& control) noexcept override { m_commits.erase(&control); }

private:
    std::map<const Control*, zor::core::CommitFilter> m_commits;
};

zor::core::ControlPtr<> made(const Parameter& parameter, const zor::core::ClassInfo& info, text::Form& form)
{
    zor::core::ControlPtr<> control = info.create(form);
    control->initialiseProperties();
    control->DeviceTag(parameter.name);
    for (std::size_t i = 0; i < parameter.entries.size(); ++i) {
        const std::array<zor::Variant, 2> entry{parameter.entries[i], static_cast<std::int32_t>(i)};
        control->call(info.method("AddEnumEntry") != nullptr ? "AddEnumEntry" : "AddBitFieldEntry", entry);
    }
    for (const auto& [property, value] : parameter.settings)
        control->setProperty(property, value);
    return control;
}

/// The words go to what the control has for them.
Refusal enter(text::Form& form, Control& control, const std::string& words)
{
    using namespace zor::platform;
    for (const zor::core::WidgetRow& row : control.info().widgets) {
        Widget* widget = control.widget(row.widget);
        if (auto* button = dynamic_cast<SpinButton*>(widget); button != nullptr && (words == "+" || words == "-"))
            return form.step(*button, words == "+");
        if (auto* field = dynamic_cast<TextField*>(widget); field != nullptr && words != "+" && words != "-")
            return form.type(*field, words);
        if (auto* track = dynamic_cast<Track*>(widget))
            return form.moveTo(*track, zor::Variant(words).toInt32());
        if (auto* box = dynamic_cast<ComboBox*>(widget))
            return form.choose(*box, words);
        if (auto* list = dynamic_cast<ListBox*>(widget))
            return form.mark(*list, words);
        if (auto* button = dynamic_cast<ToggleButton*>(widget))
            return form.press(*button);
    }
    return Refusal::Locked;
}

Refusal obey(text::Form& form, Control& control, const std::string& words)
{
    using namespace zor::platform;
    if (words == "fails")
        return control.CFail(true), Refusal::None;
    if (words == "undo" && control.menu() != nullptr)
        return form.undo(control.surface(), *control.menu());
    if (words != "?")
        return enter(form, control, words);
    for (const zor::core::WidgetRow& row : control.info().widgets) {
        if (auto* picture = dynamic_cast<Image*>(control.widget(row.widget)))
            return form.click(*picture);
    }
    return Refusal::Hidden;
}

void print(const Control& control)
{
    std::cout << control.DeviceTag() << ": " << text::lineOf(control.surface()) << '\n';
}

} // namespace

int main()
{
    zor::core::ClassRegistry classes;
    zor::registerControls(classes);
    text::Form form(std::cout);
    Device device;
    std::vector<zor::core::ControlPtr<>> controls;
    for (const Parameter& parameter : parameters()) {
        controls.push_back(made(parameter, *classes.find(parameter.control), form));
        controls.back()->subscribe(device);
        print(*controls.back());
    }
    for (std::string line; std::getline(std::cin, line);) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const auto at =
            std::ranges::find(controls, line.substr(0, blank), [](const auto& one) { return one->DeviceTag(); });
        if (at == controls.end()) {
            std::cout << "no " << line.substr(0, blank) << " here\n";
            continue;
        }
        try {
            if (obey(form, **at, line.substr(std::min(blank + 1, line.size()))) != Refusal::None)
                std::cout << "  cannot be done\n";
            form.leave(); // Enter hands over what was typed
        } catch (const zor::RunTimeError& error) {
            std::cout << "  " << error.what() << '\n';
        }
        print(**at);
    }
    for (const auto& control : controls)
        control->unsubscribe(device);
    return 0;
}
