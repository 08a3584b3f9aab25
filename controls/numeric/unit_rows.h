#pragma once

/// The table rows that numeric controls share.

#include <zor/controls/numeric/unit_control.h>
#include <zor/core/shared_methods.h>
#include <zor/core/shared_rows.h>

namespace zor::controls {

struct UnitRows {
    using PropertyRow = core::PropertyRow;
    using C = UnitControl;
    using Units = UnitBinding;

    static constexpr PropertyRow UnitType = core::fieldRow<&C::m_units, &Units::unitType>("UnitType").stored(0);
    static constexpr PropertyRow DeviceUnit =
        core::fieldRow<&C::m_units, &Units::deviceUnit>("DeviceUnit").stored(0).then<&C::s_DeviceUnitChanged>();
    /// The devices of most numeric controls count tenths of a millimetre; a form that says nothing means
    /// millimetres.
    static constexpr PropertyRow DeviceUnitInTenths =
        DeviceUnit.initially(static_cast<std::int32_t>(LgthU_1By10_MM));
    static constexpr PropertyRow OutputUnit =
        core::fieldRow<&C::m_units, &Units::outputUnit>("OutputUnit")
            .stored(0)
            .then<&C::s_AfterOutputUnit>()
            .written<[](C& control, MEAS_TYPE unit) { control.OutputUnit(unit); }>();
    static constexpr PropertyRow DefaultUnit =
        core::fieldRow<&C::m_units, &Units::defaultUnit>("DefaultUnit").stored(0).then<&C::s_UpdateLimits>();
    static constexpr PropertyRow MinValue =
        core::fieldRow<&C::m_units, &Units::minValue>("MinValue").stored(0.0).then<&C::s_UpdateMinParamValue>();
    static constexpr PropertyRow MaxValue =
        core::fieldRow<&C::m_units, &Units::maxValue>("MaxValue").stored(0.0).then<&C::s_UpdateMaxParamValue>();
    static constexpr PropertyRow MinParamValue =
        core::fieldRow<&C::m_units, &Units::minParam>("MinParamValue").stored(0.0).with(core::Access::Derived);
    static constexpr PropertyRow MaxParamValue =
        core::fieldRow<&C::m_units, &Units::maxParam>("MaxParamValue").stored(0.0).with(core::Access::Derived);
    static constexpr PropertyRow UnitEnable =
        core::fieldRow<&C::m_unitEnable>("UnitEnable").stored(true).then<[](C& control) {
            control.s_UpdateUnitLabelVisibility();
            control.s_Layout();
        }>();
    static constexpr PropertyRow UnitLabelCaption =
        core::fieldRow<&C::m_unitLabelCaption>("UnitLabelCaption").stored("").then<[](C& control) {
            control.s_ShowUnit(control.m_unitLabelCaption);
            control.describeForReaders();
        }>();

    static constexpr core::MethodRow GetCaptionID = core::method<&C::fc_GetCaptionID>("fc_GetCaptionID");
    static constexpr core::MethodRow GetConversionFactor =
        core::method<&C::fd_GetConversionFactor>("fd_GetConversionFactor", "i_UnitType", "i_FromUnit", "i_ToUnit");
    static constexpr core::MethodRow GetOffset =
        core::method<&C::fd_GetOffset>("fd_GetOffset", "i_FromUnit", "i_ToUnit");
};

} // namespace zor::controls
