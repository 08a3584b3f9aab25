#include <zor/core/mistake.h>
#include <zor/pages/fields.h>
#include <zor/pages/registration.h>

#include <algorithm>
#include <array>

namespace zor {

using namespace pages;

namespace {

constexpr std::string_view kDevice = "Device";

constexpr std::array kTextBoxFields{&kDeviceTag,   &kRegisterType, &kDeviceTypes, &kMinVersions,
                                    &kMaxVersions, &kEntryType,    &kMaxLength,   &kNumberOfDigits,
                                    &kUnitEnable,  &kUnitType,     &kIconEnable};
constexpr std::array<std::string_view, 1> kTextBoxControls{"ctx_ZorTextBox"};

constexpr std::array kUpDSldFields{&kDeviceTag,   &kRegisterType, &kDeviceTypes, &kMinVersions,
                                   &kMaxVersions, &kUnitEnable,   &kUnitType,    &kIconEnable};
constexpr std::array<std::string_view, 2> kUpDSldControls{"ctx_ZorUpDown", "ctx_ZorSlider"};

constexpr std::array kOtherFields{&kDeviceTag,   &kRegisterType, &kDeviceTypes,
                                  &kMinVersions, &kMaxVersions,  &kIconEnable};
constexpr std::array<std::string_view, 5> kOtherControls{"ctx_ZorLabel", "ctx_ZorComboBox", "ctx_ZorListBox",
                                                         "ctx_ZorCheckBox", "ctx_ZorOptionButton"};

constexpr std::array kImageFields{&kDeviceTag, &kRegisterType, &kDeviceTypes, &kMinVersions, &kMaxVersions};
constexpr std::array<std::string_view, 1> kImageControls{"ctx_ZorImage"};

/// A page's row, looked over at compile time, as the fields are where they are declared: it says what it means.
consteval PageInfo complete(const PageInfo& page)
{
    if (page.meaning.empty())
        core::mistake("a page has no meaning: say it in its row");
    return page;
}

} // namespace

constexpr PageInfo prp_ZorTextBoxGeneral = complete(
    {"prp_ZorTextBoxGeneral", kDevice,
     "Which parameter a text box shows, on which devices, and what its operator may enter in which kind of unit.",
     kTextBoxFields, kTextBoxControls});
constexpr PageInfo prp_ZorUpDSldDevice =
    complete({"prp_ZorUpDSldDevice", kDevice,
              "Which parameter an up-down or a slider shows, on which devices and in which kind of unit.",
              kUpDSldFields, kUpDSldControls});
constexpr PageInfo prp_ZorOtherControls =
    complete({"prp_ZorOtherControls", kDevice, "Which parameter a label or a choice shows, and on which devices.",
              kOtherFields, kOtherControls});
constexpr PageInfo prp_ZorImage =
    complete({"prp_ZorImage", kDevice, "Which status register the image shows, and on which devices.",
              kImageFields, kImageControls});

void registerPages(PageRegistry& registry)
{
    for (const PageInfo* page :
         {&prp_ZorTextBoxGeneral, &prp_ZorUpDSldDevice, &prp_ZorOtherControls, &prp_ZorImage})
        registry.add(*page);
}

const PageInfo* PageRegistry::forControl(std::string_view controlClass) const noexcept
{
    const auto page = std::ranges::find_if(rows(), [&](const PageInfo* info) {
        return std::ranges::find(info->controls, controlClass) != info->controls.end();
    });
    return page == rows().end() ? nullptr : *page;
}

} // namespace zor
