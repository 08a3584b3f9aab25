#include <zor/monitor/data/codec.h>
#include <zor/monitor/session/unit_system.h>
#include <zor/units/unit_catalogue.h>

#include <climits>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

struct UnitsOfRow {
    MEAS_TYPE unit;
    MEAS_TYPE metric;
    MEAS_TYPE us;
};

constexpr std::array kRows{
    UnitsOfRow{LgthU_MM, LgthU_MM, LgthU_INCH},
    UnitsOfRow{LgthU_Mtr, LgthU_Mtr, LgthU_FEET},
    UnitsOfRow{LgthU_1By10_MM, LgthU_MM, LgthU_INCH},
    UnitsOfRow{LgthU_1By256_INCH, LgthU_MM, LgthU_INCH},
    UnitsOfRow{LgthU_1BY16_INCH, LgthU_MM, LgthU_INCH},
    UnitsOfRow{LgthU_INCH, LgthU_CM, LgthU_INCH},
    UnitsOfRow{LgthU_FEET, LgthU_Mtr, LgthU_FEET},
    UnitsOfRow{LgthU_CM, LgthU_CM, LgthU_INCH},
    UnitsOfRow{VelU_MtrPerSec, VelU_MtrPerSec, VelU_FeetPerSec},
    UnitsOfRow{VelU_CmPerHr, VelU_CmPerHr, VelU_FeetPerHr},
    UnitsOfRow{VelU_1BY10_FeetPerHr, VelU_CmPerHr, VelU_FeetPerHr},
    UnitsOfRow{VelU_MtrPerHr, VelU_MtrPerHr, VelU_FeetPerHr},
    UnitsOfRow{VelU_FeetPerSec, VelU_MtrPerSec, VelU_FeetPerSec},
    UnitsOfRow{VelU_FeetPerHr, VelU_MtrPerHr, VelU_FeetPerHr},
    UnitsOfRow{VelU_InchPerMin, VelU_MtrPerHr, VelU_InchPerMin},
    UnitsOfRow{TempU_DegC, TempU_DegC, TempU_DegF},
    UnitsOfRow{TempU_DegF, TempU_DegC, TempU_DegF},
    UnitsOfRow{TempU_DegK, TempU_DegC, TempU_DegF},
    UnitsOfRow{TempU_1By10_DegC, TempU_DegC, TempU_DegF},
    UnitsOfRow{TempU_1By10_DegF, TempU_DegC, TempU_DegF},
    UnitsOfRow{VolU_m3, VolU_m3, VolU_CuFt},
    UnitsOfRow{VolU_CuFt, VolU_m3, VolU_CuFt},
    UnitsOfRow{VolU_bbl, VolU_m3, VolU_bbl},
    UnitsOfRow{VolU_gal, VolU_Liter, VolU_gal},
    UnitsOfRow{VolU_ImpGal, VolU_Liter, VolU_gal},
    UnitsOfRow{VolU_Liter, VolU_Liter, VolU_gal},
    UnitsOfRow{VolU_Yd3, VolU_m3, VolU_Yd3},
    UnitsOfRow{VolU_Inch3, VolU_Liter, VolU_Inch3},
    UnitsOfRow{PrU_Bar, PrU_Bar, PrU_Psi},
    UnitsOfRow{PrU_mBar, PrU_mBar, PrU_Psi},
    UnitsOfRow{PrU_Pa, PrU_Pa, PrU_Psi},
    UnitsOfRow{PrU_KPa, PrU_KPa, PrU_Psi},
    UnitsOfRow{PrU_Psi, PrU_Bar, PrU_Psi},
    UnitsOfRow{VolFlowU_m3PerHr, VolFlowU_m3PerHr, VolFlowU_galPerHr},
    UnitsOfRow{VolFlowU_galPerHr, VolFlowU_m3PerHr, VolFlowU_galPerHr},
    UnitsOfRow{VolFlowU_bblPerHr, VolFlowU_m3PerHr, VolFlowU_bblPerHr},
};

/// Decimals that a unit is shown with; any number without a unit.
int decimalsIn(MEAS_TYPE unit)
{
    const auto* const row = std::ranges::find(units::kUnits, unit, &units::UnitRow::unit);
    return row == units::kUnits.end() || unit == NoneU ? INT_MAX : row->decimals;
}

} // namespace

MEAS_TYPE unitIn(UnitSystem system, MEAS_TYPE form, MEAS_TYPE device) noexcept
{
    if (system == UnitSystem::Form || form == NoneU)
        return form;
    if (system == UnitSystem::Device)
        return device;
    const auto* const row = std::ranges::find(kRows, form, &UnitsOfRow::unit);
    if (row == kRows.end())
        return form;
    return system == UnitSystem::Metric ? row->metric : row->us;
}

MEAS_TYPE formUnit(const Parameter& parameter, const core::ClassInfo& control)
{
    const Appearance& appearance = parameter.appearance;
    const bool coarse = appearance.unit == parameter.unit && isInteger(parameter.location.type) &&
                        decimalsOf(parameter).value_or(kUsualDigits) > decimalsIn(appearance.unit);
    return coarse && control.property("OutputUnit") != nullptr ? NoneU : appearance.unit;
}

} // namespace zor::monitor
