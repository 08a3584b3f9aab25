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
        core::fieldRow<&C::m_units, &Units::unitType>("UnitType", core::Topic::Units)
            .saying("The quantity of the three units. Conversions take their factor from it; an offset is added "
                    "between any two temperatures. A write is only stored, so it comes before the units, and they "
                    "before the limits.")
            .stored(Length);
    static constexpr auto DeviceUnit =
        core::fieldRow<&C::m_units, &Units::deviceUnit>("DeviceUnit", core::Topic::Units)
            .saying("The unit of DeviceValue, OutputValue and ModifiedValue. A write expresses the shown value in "
                    "it anew.")
            .stored(LgthU_MM)
            .then<&C::s_DeviceUnitChanged>();
    /// The devices of most numeric controls count tenths of a millimetre; a form that says nothing means
    /// millimetres.
    static constexpr auto DeviceUnitInTenths = DeviceUnit.initially(LgthU_1By10_MM);
    static constexpr auto OutputUnit =
        core::fieldRow<&C::m_units, &Units::outputUnit>("OutputUnit", core::Topic::Units)
            .saying("The unit in which the operator sees the value and enters it. A write shows its label, and "
                    "value and limits in it; these stay as they are while the text is no number.")
            .stored(LgthU_MM)
            .then<&C::s_AfterOutputUnit>()
            .written<[](C& control, MEAS_TYPE unit) { control.OutputUnit(unit); }>();
    static constexpr auto DefaultUnit =
        core::fieldRow<&C::m_units, &Units::defaultUnit>("DefaultUnit", core::Topic::Units)
            .saying("The unit of MinValue and MaxValue.")
            .stored(LgthU_MM)
            .then<&C::s_UpdateLimits>();
    static constexpr auto MinValue =
        core::fieldRow<&C::m_units, &Units::minValue>("MinValue", core::Topic::Range)
            .saying("Lowest valid value, in DefaultUnit, included. Nothing but 0 is valid as long as both limits "
                    "are 0.")
            .stored(0.0)
            .then<&C::s_UpdateMinParamValue>();
    static constexpr auto MaxValue = core::fieldRow<&C::m_units, &Units::maxValue>("MaxValue", core::Topic::Range)
                                         .saying("Highest valid value, in DefaultUnit, included.")
                                         .stored(0.0)
                                         .then<&C::s_UpdateMaxParamValue>();
    static constexpr auto MinParamValue =
        core::fieldRow<&C::m_units, &Units::minParam>("MinParamValue", core::Topic::Range)
            .saying("MinValue in OutputUnit. Follows from the others; a write of OutputUnit converts it from the "
                    "unit before.")
            .stored(0.0)
            .with(core::Access::Derived);
    static constexpr auto MaxParamValue =
        core::fieldRow<&C::m_units, &Units::maxParam>("MaxParamValue", core::Topic::Range)
            .saying("MaxValue in OutputUnit. Follows from the others; a write of OutputUnit converts it from the "
                    "unit before.")
            .stored(0.0)
            .with(core::Access::Derived);
    static constexpr auto UnitEnable = core::fieldRow<&C::m_unitEnable>("UnitEnable", core::Topic::Units)
                                           .saying("Whether the unit is shown. A new control has none to show "
                                                   "until OutputUnit or UnitLabelCaption is written.")
                                           .stored(true)
                                           .then<[](C& control) {
                                               control.s_UpdateUnitLabelVisibility();
                                               control.s_Layout();
                                           }>();
    static constexpr auto UnitLabelCaption =
        core::fieldRow<&C::m_unitLabelCaption>("UnitLabelCaption", core::Topic::Units)
            .saying("Text of the unit label, empty in a new control. Each write of OutputUnit makes it that "
                    "unit's label again.")
            .stored("")
            .then<[](C& control) { control.s_ShowUnit(control.m_unitLabelCaption); }>()
            .live();

    static constexpr core::MethodRow GetCaptionID =
        core::method<&C::fc_GetCaptionID>("fc_GetCaptionID")
            .saying("The identifier under which a host looks up a translated unit label.");
    static constexpr core::MethodRow GetConversionFactor =
        core::method<&C::fd_GetConversionFactor>("fd_GetConversionFactor", "i_UnitType", "i_FromUnit", "i_ToUnit")
            .saying("The factor from one unit to another of a quantity; 1 for units it does not know.");
    static constexpr core::MethodRow GetOffset =
        core::method<&C::fd_GetOffset>("fd_GetOffset", "i_FromUnit", "i_ToUnit")
            .saying("The offset from one unit to another; 0 except between temperatures.");
};

} // namespace zor::controls
