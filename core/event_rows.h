#pragma once

/// The event rows that classes of controls share; `E` is the interface of the class.

#include <zor/core/event_row.h>

#include <array>
#include <string_view>

namespace zor::core {

inline constexpr std::string_view kModified =
    "The shown value was changed and differs from the device's; on every such change.";
inline constexpr std::string_view kHandedOver =
    "OutputValue was assigned: by the operator, by a new value from the device, or by the host.";

/// What every interface declares: hosts in the field implement it, no control raises it.
template <class E>
constexpr std::array<EventRow, 2> supportRows()
{
    return {declared<&E::DeviceVerNotSupportedSetTrue, E>("DeviceVerNotSupportedSetTrue"),
            declared<&E::DeviceTypeNotSupportedSetTrue, E>("DeviceTypeNotSupportedSetTrue")};
}

/// The same and the third of its kind, of a control that can be edited.
template <class E>
constexpr std::array<EventRow, 3> declaredRows()
{
    const auto support = supportRows<E>();
    return {support[0], support[1], declared<&E::DataChangedSetTrue, E>("DataChangedSetTrue")};
}

/// An edit, the value that goes to the host, and what is declared with them.
template <class E>
constexpr std::array<EventRow, 5> conditionRows(std::string_view handedOver = kHandedOver)
{
    const auto rest = declaredRows<E>();
    return {ownEvent<&E::DataModifiedSetTrue, E>("DataModifiedSetTrue").saying(kModified),
            ownEvent<&E::OutputValueChange, E>("OutputValueChange").saying(handedOver), rest[0], rest[1], rest[2]};
}

/// The state icon; the last two rows of a control that has one.
template <class E>
constexpr std::array<EventRow, 2> iconRows(int icon)
{
    return {event<&E::imgClick, E>("imgClick", icon, platform::Notice::Click),
            event<&E::imgDblClick, E>("imgDblClick", icon, platform::Notice::DblClick)};
}

} // namespace zor::core
