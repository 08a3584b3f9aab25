#include <zor/designer/descriptions.h>

#include <algorithm>
#include <array>

namespace zor::designer {
namespace {

using std::string_view;

constexpr std::array kDescriptions{
    Description{"ctx_ZorTextBox", "Text Box", "A device parameter as a number in a unit, or as text"},
    Description{"ctx_ZorUpDown", "Up-Down", "A device parameter as a whole number with spin buttons"},
    Description{"ctx_ZorSlider", "Slider", "A device parameter on a track"},
    Description{"ctx_ZorComboBox", "Combo Box", "A device parameter that is one of several named values"},
    Description{"ctx_ZorListBox", "List Box", "A device parameter whose bits have names"},
    Description{"ctx_ZorCheckBox", "Check Box", "One bit of a device parameter"},
    Description{"ctx_ZorOptionButton", "Option Button", "One of the values of a device parameter"},
    Description{"ctx_ZorLabel", "Label", "A device parameter as text that nobody edits"},
    Description{"ctx_ZorImage", "Status Image", "A status word of the device as a picture"},
};
constexpr Description kAnyControl{"", "Control", "A control bound to a device parameter"};

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
