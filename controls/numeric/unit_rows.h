#pragma once

/// The table rows that numeric controls share.

#include <zor/controls/numeric/unit_control.h>
#include <zor/core/shared_methods.h>
#include <zor/core/shared_rows.h>

namespace zor::controls {

struct UnitRows {
    using C = UnitControl;
    using Units = UnitBinding;

    static constexpr auto UnitType =
        core::fieldRow<&C::m_units, &Units::unitType>("UnitType", core::Topic::Units).stored(Length);
    static constexpr auto DeviceUnit =
        core::fieldRow<&C::m_units, &Units::deviceUnit>("DeviceUnit", core::Topic::Units)
            .stored(LgthU_MM)
            .then<&C::s_DeviceUnitChanged>();
    /// The devices of most numeric controls count tenths of a millimetre; a form that says nothing means
    /// millimetres.
    static constexpr auto DeviceUnitInTenths = DeviceUnit.initially(LgthU_1By10_MM);
    static constexpr auto OutputUnit =
        core::fieldRow<&C::m_units, &Units::outputUnit>("OutputUnit", core::Topic::Units)
            .stored(LgthU_MM)
            .then<&C::s_AfterOutputUnit>()
            .written<[](C& control, MEAS_TYPE unit) { control.OutputUnit(unit); }>();
    static constexpr auto DefaultUnit =
        core::fieldRow<&C::m_units, &Units::defaultUnit>("DefaultUnit", core::Topic::Units)
            .stored(LgthU_MM)
            .then<&C::s_UpdateLimits>();
    static constexpr auto MinValue = core::fieldRow<&C::m_units, &Units::minValue>("MinValue", core::Topic::Range)
                                         .stored(0.0)
                                         .then<&C::s_UpdateMinParamValue>();
    static constexpr auto MaxValue = core::fieldRow<&C::m_units, &Units::maxValue>("MaxValue", core::Topic::Range)
                                         .stored(0.0)
                                         .then<&C::s_UpdateMaxParamValue>();
    static constexpr auto MinParamValue =
        core::fieldRow<&C::m_units, &Units::minParam>("MinParamValue", core::Topic::Range)
            .stored(0.0)
            .with(core::Access::Derived);
    static constexpr auto MaxParamValue =
        core::fieldRow<&C::m_units, &Units::maxParam>("MaxParamValue", core::Topic::Range)
            .stored(0.0)
            .with(core::Access::Derived);
    static constexpr auto UnitEnable =
        core::fieldRow<&C::m_unitEnable>("UnitEnable", core::Topic::Units).stored(true).then<[](C& control) {
            control.s_UpdateUnitLabelVisibility();
            control.s_Layout();
        }>();
    static constexpr auto UnitLabelCaption =
        core::fieldRow<&C::m_unitLabelCaption>("UnitLabelCaption", core::Topic::Units)
            .stored("")
            .then<[](C& control) {
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
