#pragma once

/// The table rows that choice controls share.

#include <zor/controls/choice/choice_control.h>
#include <zor/core/shared_methods.h>
#include <zor/core/shared_rows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace zor::controls {

struct ChoiceRows {
    using PropertyRow = core::PropertyRow;
    using S = core::SharedRows;
    using C = ChoiceControl;

    static constexpr PropertyRow DeviceValue =
        core::fieldRow<&C::m_deviceValue>("DeviceValue").stored(0).then<&C::s_ApplyDeviceValue>();
    static constexpr PropertyRow OutputValue =
        core::fieldRow<&C::m_outputValue>("OutputValue").stored(0).with(core::Access::Derived);
    static constexpr PropertyRow ModifiedValue =
        core::computedRow<[](C& control) { return control.ModifiedValue(); }>("ModifiedValue")
            .written<[](C& control, std::int32_t value) { control.ModifiedValue(value); }>();
    /// The value that another user wrote, for the text that tells of it: the host's, never the control's.
    template <auto Field>
    static constexpr PropertyRow OtherUserValue =
        core::fieldRow<Field>("OtherUserValue").with(core::Access::Silent).refreshing({core::Refresh::Status});

    // --- The order in which properties are stored, and in which a new control sets them
    static constexpr std::array kFirst{&S::CFail};
    static constexpr std::array kState{&S::DataModified,
                                       &S::WaitingForData,
                                       &DeviceValue,
                                       &OutputValue,
                                       &S::DataChanged,
                                       &S::DataNotAvailable,
                                       &S::DeviceTypeSupported,
                                       &S::DeviceMinVersionSupported,
                                       &S::DeviceMaxVersionSupported,
                                       &S::DeviceTag,
                                       &S::DeviceTagNotFound,
                                       &S::DeviceVerNotSupported,
                                       &S::DeviceTypeNotSupported,
                                       &S::MsgCfail,
                                       &S::MsgDataChanged,
                                       &S::MsgDataNotAvailable};
    static constexpr std::array kSettings{
        &S::MsgDeviceTagNotFound, &S::MsgDefault,    &S::IconEnable,   &S::ReadOnly,
        &S::DeviceType,           &S::DeviceVersion, &S::RegisterType, &S::EnableControl};
    static constexpr std::array kNotStored{&S::MessageHeader, &ModifiedValue};

    /// A lost connection tells the operator so and locks the choice; it leaves enabled what was enabled.
    static constexpr std::array kEffects{
        core::EffectRow{&S::CFail, {core::Refresh::Status, core::Refresh::Colours}}};

    static constexpr std::array kMethods{core::kGetMaxMessage, core::kGetMessageID, core::kSetMessage,
                                         core::kChangeBackColor};

    static constexpr std::array<core::WidgetRow, 3> widgets(std::string_view face)
    {
        return {core::WidgetRow{platform::kSurfaceWidget, "Surface"},
                {kFace, face},
                {ChoiceWidget::kState, "img_State"}};
    }
};

/// One table out of several parts.
template <class T, std::size_t... N>
[[nodiscard]] constexpr auto joined(const std::array<T, N>&... parts)
{
    std::array<T, (N + ...)> table{};
    auto at = table.begin();
    ((at = std::ranges::copy(parts, at).out), ...);
    return table;
}

} // namespace zor::controls
