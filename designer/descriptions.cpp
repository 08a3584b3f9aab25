#include <zor/designer/descriptions.h>

#include <algorithm>
#include <array>

namespace zor::designer {
namespace {

using std::string_view;

constexpr std::array kDescriptions{
    Description{
        "ctx_ZorTextBox", "Text Box", "A device parameter as a number in a unit, or as text",
        "Shows a value in the unit of OutputUnit, takes the operator's entry, checks it against MinValue and "
        "MaxValue and hands it back in the device's unit as OutputValue."},
    Description{"ctx_ZorUpDown", "Up-Down", "A device parameter as a whole number with spin buttons",
                "Like the text box, for whole numbers that the operator types or steps."},
    Description{"ctx_ZorSlider", "Slider", "A device parameter on a track",
                "Shows a number on a track with ticks and range labels; ScaleFactor says how fine it is."},
    Description{"ctx_ZorComboBox", "Combo Box", "A device parameter that is one of several named values",
                "A drop-down list. The program fills it with AddEnumEntry: a name and a value each."},
    Description{"ctx_ZorListBox", "List Box", "A device parameter whose bits have names",
                "A list with a check mark for each named bit of the value. The program fills it."},
    Description{"ctx_ZorCheckBox", "Check Box", "One bit of a device parameter",
                "Shows and sets the bit whose number is BitFieldEntryIndex."},
    Description{"ctx_ZorOptionButton", "Option Button", "One of the values of a device parameter",
                "Several of them, each with its EnumEntryValue, offer a choice."},
    Description{"ctx_ZorLabel", "Label", "A device parameter as text that nobody edits",
                "Shows the value as it comes, with the state icon of every control."},
    Description{"ctx_ZorImage", "Status Image", "A status word of the device as a picture",
                "One picture when all is well and another when a bit is set; a click lists the bits that are."},
};
constexpr Description kAnyControl{"", "Control", "A control bound to a device parameter",
                                  "Shows one parameter of a device."};

/// In the order of core::Topic.
constexpr std::array<string_view, 7> kHeadings{"Appearance", "Parameter", "Value",   "Units",
                                               "Range",      "State",     "Messages"};

} // namespace

const Description& descriptionOf(string_view controlClass) noexcept
{
    const auto own = std::ranges::find(kDescriptions, controlClass, &Description::controlClass);
    return own == kDescriptions.end() ? kAnyControl : *own;
}

string_view headingOf(const core::PropertyRow& row) noexcept
{
    return kHeadings[static_cast<std::size_t>(row.topic)];
}

} // namespace zor::designer
