#include <zor/pages/fields.h>
#include <zor/pages/page.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <array>

namespace zor::pages {
namespace {

template <std::size_t N>
constexpr std::array<std::string_view, N> words(const std::array<units::WordRow, N>& rows)
{
    std::array<std::string_view, N> result;
    for (std::size_t i = 0; i < N; ++i)
        result[i] = rows[i].word;
    return result;
}

constexpr std::size_t kOffered = 12;
static_assert(!units::kUnitTypes[kOffered - 1].displayName.empty() &&
              units::kUnitTypes[kOffered].displayName.empty());

constexpr std::array<std::string_view, kOffered> unitTypeNames()
{
    std::array<std::string_view, kOffered> result;
    for (std::size_t i = 0; i < kOffered; ++i)
        result[i] = units::kUnitTypes[i].displayName;
    return result;
}

constexpr auto kRegisterTypeWords = words(units::kRegisterTypes);
constexpr auto kEntryTypeWords = words(units::kEntryTypes);
constexpr auto kUnitTypeWords = unitTypeNames();

void writeAllUnits(Page& page, UNIT_TYPE type)
{
    page.write("UnitType", static_cast<std::int32_t>(type));
    const auto start = static_cast<std::int32_t>(units::rowOf(type)->start);
    for (const std::string_view unit : {"DeviceUnit", "OutputUnit", "DefaultUnit"})
        page.write(unit, start);
}

void writeUnits(Page& page)
{
    const bool enabled = page.isTicked(kUnitEnable);
    page.write("UnitEnable", enabled);
    if (!enabled)
        writeAllUnits(page, None);
    else if (const std::int32_t position = page.position(kUnitType); position >= 0)
        writeAllUnits(page, static_cast<UNIT_TYPE>(position));
    // A type that the list does not offer stays as the host has set it.
}

void unitEnableClicked(Page& page)
{
    // Only a number has a unit.
    if (page.isTicked(kUnitEnable))
        page.choose(kEntryType, static_cast<std::int32_t>(Numeric));
}

} // namespace

constexpr Field kDeviceTag{.widget = "txt_DeviceTag",
                           .kind = FieldKind::Text,
                           .caption = "Device Tag",
                           .property = "DeviceTag",
                           .meaning =
                               "Identifier of the parameter in the device, under which the program finds it."};
constexpr Field kRegisterType{
    .widget = "cbo_RegisterType",
    .kind = FieldKind::List,
    .caption = "Register Type",
    .property = "RegisterType",
    .meaning =
        "The register bank that holds the parameter. What lies in an input register is shown and never edited.",
    .items = kRegisterTypeWords};
constexpr Field kDeviceTypes{.widget = "txt_DeviceType",
                             .kind = FieldKind::Text,
                             .caption = "Device Types Supported",
                             .property = "DeviceTypeSupported",
                             .meaning = "The device types that offer the parameter, with commas; empty for all. "
                                        "On any other the control hides itself."};
constexpr Field kMinVersions{.widget = "txt_MinVersion",
                             .kind = FieldKind::Text,
                             .caption = "Device Min Versions",
                             .property = "DeviceMinVersionSupported",
                             .meaning = "The lowest firmware version of each of these types, with commas and in "
                                        "their order; an empty one sets no limit."};
constexpr Field kMaxVersions{.widget = "txt_MaxVersion",
                             .kind = FieldKind::Text,
                             .caption = "Device Max Versions",
                             .property = "DeviceMaxVersionSupported",
                             .meaning = "The highest firmware version of each of these types, with commas and in "
                                        "their order; an empty one sets no limit."};
constexpr Field kEntryType{.widget = "cbo_EntryType",
                           .kind = FieldKind::List,
                           .caption = "Entry Type",
                           .property = "EntryType",
                           .meaning = "Whether the operator enters a number or a text.",
                           .items = kEntryTypeWords};
constexpr Field kMaxLength{.widget = "txt_MaxLength",
                           .kind = FieldKind::Number,
                           .caption = "Maximum Length",
                           .property = "MaxLength",
                           .meaning = "Longest valid text, in characters.",
                           .spinButton = "upd_MaxLength",
                           .minimum = 1,
                           .maximum = 255};
// More decimals than a double has would be noise.
constexpr Field kNumberOfDigits{.widget = "txt_NoOfDigits",
                                .kind = FieldKind::Number,
                                .caption = "Number of Digits",
                                .property = "NumberOfDigits",
                                .meaning = "Decimals of a number without a unit.",
                                .spinButton = "upd_NoOfDigits",
                                .minimum = 0,
                                .maximum = 15};
constexpr Field kUnitEnable{
    .widget = "chk_UnitEnable",
    .kind = FieldKind::Check,
    .caption = "Unit Enable",
    .property = "UnitEnable",
    .meaning =
        "Whether the unit is shown. Apply takes unit type and units away without it; only a number has a unit.",
    .write = writeUnits,
    .clicked = unitEnableClicked};
// Written together with its switch.
constexpr Field kUnitType{.widget = "cbo_UnitType",
                          .kind = FieldKind::List,
                          .caption = "Unit Type",
                          .property = "UnitType",
                          .meaning = "The quantity. Apply sets the three units to the usual one of that kind; "
                                     "any other is set in the property editor.",
                          .items = kUnitTypeWords,
                          .write = [](Page&) {},
                          .usable = [](const Page& page) { return page.isTicked(kUnitEnable); }};
constexpr Field kIconEnable{.widget = "chk_IconEnable",
                            .kind = FieldKind::Check,
                            .caption = "Icon Enable",
                            .property = "IconEnable",
                            .meaning = "Whether the state icon may be shown."};

std::span<const Field* const> writeOrder() noexcept
{
    static constexpr std::array kOrder{&kDeviceTypes,    &kMinVersions, &kMaxVersions,  &kMaxLength,
                                       &kNumberOfDigits, &kEntryType,   &kRegisterType, &kDeviceTag,
                                       &kIconEnable,     &kUnitEnable,  &kUnitType};
    static_assert(std::ranges::none_of(kOrder, [](const Field* field) { return field->meaning.empty(); }),
                  "every field says what it means");
    return kOrder;
}

} // namespace zor::pages
