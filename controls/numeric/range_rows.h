#pragma once

/// The table rows that up-down and slider share.

#include <zor/controls/numeric/range_control.h>
#include <zor/controls/numeric/unit_rows.h>
#include <zor/platform/macros_aside.h>

#include <algorithm>
#include <array>

namespace zor::controls {

/// When InvalidValueSetTrue is raised.
inline constexpr std::string_view kOutOfRange =
    "A value from the device or the host lies outside the limits; each time it does.";

struct RangeRows : UnitRows {
    using S = core::SharedRows;

    static constexpr auto InvalidValue = S::InvalidValue<&RangeControl::m_invalidValue>;
    static constexpr auto MsgInvalidValue =
        core::fieldRow<&RangeControl::m_msgInvalidValue>("MsgInvalidValue", core::Topic::Messages)
            .saying("A text for a host's own use: up-down and slider show an invalid value as it is and explain "
                    "nothing.")
            .stored("Invalid Entry")
            .refreshing({core::Refresh::Status});
    /// It follows OutputUnit.
    template <auto Field>
    static constexpr auto OtherUser = S::OtherUserValue<Field>.live();

    static constexpr std::array kMessages{
        core::MessageRow{"MSG_CFAIL", &S::MsgCfail},
        core::MessageRow{"MSG_DATANOTAVAILABLE", &S::MsgDataNotAvailable},
        core::MessageRow{"MSG_DATACHANGED", &S::MsgDataChanged},
        core::MessageRow{"MSG_DEFAULT", &S::MsgDefault},
        core::MessageRow{"MSG_INVALIDVALUE", &MsgInvalidValue},
        core::MessageRow{"MSG_DEVICETAGNOTFOUND", &S::MsgDeviceTagNotFound},
    };
    /// An invalid value has no state: what the device holds is shown as it is.
    template <auto Other, auto Reference>
    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound, S::NoData,
                                        S::DataChangedByOther<Other, Reference>};
};

/// The stored rows of a table of properties in the order in which they are read and initialised: as they are
/// stored, but the limits after the unit they are in.
template <const auto& Properties>
constexpr auto limitsAfterUnit()
{
    constexpr auto isStored = [](const core::PropertyRow* row) { return !row->key.empty(); };
    constexpr auto isLimit = [](const core::PropertyRow* row) {
        return row->name == UnitRows::MinValue.name || row->name == UnitRows::MaxValue.name;
    };
    std::array<const core::PropertyRow*, std::ranges::count_if(Properties, isStored)> order{};
    auto at = order.begin();
    for (const core::PropertyRow* row : Properties) {
        if (!isStored(row) || isLimit(row))
            continue;
        *at++ = row;
        if (row->name == UnitRows::DefaultUnit.name)
            at = std::ranges::copy_if(Properties, at, isLimit).out;
    }
    return order;
}

} // namespace zor::controls

#include <zor/platform/macros_back.h>
