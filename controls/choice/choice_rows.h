#pragma once

/// The table rows that choice controls share.

#include <zor/controls/choice/choice_control.h>
#include <zor/core/joined.h>
#include <zor/core/shared_methods.h>
#include <zor/core/shared_rows.h>
#include <zor/platform/macros_aside.h>

#include <array>
#include <string_view>

namespace zor::controls {

using core::joined;

struct ChoiceRows {
    using S = core::SharedRows;
    using C = ChoiceControl;

    static constexpr auto DeviceValue =
        core::fieldRow<&C::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("Raw value from the device. A write shows it, sets OutputValue and ends the operator's edit.")
            .placed(core::Placing::Device)
            .stored(0)
            .then<&C::s_ApplyDeviceValue>();
    static constexpr auto OutputValue =
        core::fieldRow<&C::m_outputValue>("OutputValue", core::Topic::Value)
            .saying("The value to write to the device: the device's own until the operator or the host chooses.")
            .stored(0)
            .with(core::Access::Derived);
    static constexpr auto ModifiedValue =
        core::computedRow<[](C& control) { return control.ModifiedValue(); }>("ModifiedValue", core::Topic::Value)
            .saying("Reading gives OutputValue. Writing makes the host's choice for the operator.")
            .written<[](C& control, std::int32_t value) { control.ModifiedValue(value); }>();
    // --- The order in which properties are stored, and in which a new control sets them
    static constexpr auto kFirst = core::rows(&S::CFail);
    static constexpr auto kState =
        core::rows(&S::DataModified, &S::WaitingForData, &DeviceValue, &OutputValue, &S::DataChanged,
                   &S::DataNotAvailable, &S::DeviceTypeSupported, &S::DeviceMinVersionSupported,
                   &S::DeviceMaxVersionSupported, &S::DeviceTag, &S::DeviceTagNotFound, &S::DeviceVerNotSupported,
                   &S::DeviceTypeNotSupported, &S::MsgCfail, &S::MsgDataChanged, &S::MsgDataNotAvailable);
    static constexpr auto kSettings =
        core::rows(&S::MsgDeviceTagNotFound, &S::MsgDefault, &S::IconEnable, &S::ReadOnly, &S::DeviceType,
                   &S::DeviceVersion, &S::RegisterType, &S::EnableControl);
    static constexpr auto kNotStored = core::rows(&S::MessageHeader, &ModifiedValue);

    /// A lost connection tells the operator so and locks the choice; it leaves enabled what was enabled.
    static constexpr std::array kEffects{
        core::EffectRow{&S::CFail, {core::Refresh::Status, core::Refresh::Colours}}};

    static constexpr std::array kMethods{core::kGetMaxMessage, core::kGetMessageID, core::kSetMessage,
                                         core::kChangeBackColor};

    static constexpr std::array<core::WidgetRow, 3> widgets(const core::WidgetRow& face)
    {
        return {core::kSurfaceRow, face, core::iconRow(ChoiceWidget::kState)};
    }
};

} // namespace zor::controls

#include <zor/platform/macros_back.h>
