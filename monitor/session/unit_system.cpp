#include <zor/monitor/session/unit_system.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

struct Row {
    MEAS_TYPE unit;
    MEAS_TYPE metric;
    MEAS_TYPE us;
};

constexpr std::array kRows{
    Row{LgthU_MM, LgthU_MM, LgthU_INCH},
    Row{LgthU_Mtr, LgthU_Mtr, LgthU_FEET},
    Row{LgthU_1By10_MM, LgthU_MM, LgthU_INCH},
    Row{LgthU_1By256_INCH, LgthU_MM, LgthU_INCH},
    Row{LgthU_1BY16_INCH, LgthU_MM, LgthU_INCH},
    Row{LgthU_INCH, LgthU_CM, LgthU_INCH},
    Row{LgthU_FEET, LgthU_Mtr, LgthU_FEET},
    Row{LgthU_CM, LgthU_CM, LgthU_INCH},
    Row{VelU_MtrPerSec, VelU_MtrPerSec, VelU_FeetPerSec},
    Row{VelU_CmPerHr, VelU_CmPerHr, VelU_FeetPerHr},
    Row{VelU_1BY10_FeetPerHr, VelU_CmPerHr, VelU_FeetPerHr},
    Row{VelU_MtrPerHr, VelU_MtrPerHr, VelU_FeetPerHr},
    Row{VelU_FeetPerSec, VelU_MtrPerSec, VelU_FeetPerSec},
    Row{VelU_FeetPerHr, VelU_MtrPerHr, VelU_FeetPerHr},
    Row{VelU_InchPerMin, VelU_MtrPerHr, VelU_InchPerMin},
    Row{TempU_DegC, TempU_DegC, TempU_DegF},
    Row{TempU_DegF, TempU_DegC, TempU_DegF},
    Row{TempU_DegK, TempU_DegC, TempU_DegF},
    Row{TempU_1By10_DegC, TempU_DegC, TempU_DegF},
    Row{TempU_1By10_DegF, TempU_DegC, TempU_DegF},
    Row{VolU_m3, VolU_m3, VolU_CuFt},
    Row{VolU_CuFt, VolU_m3, VolU_CuFt},
    Row{VolU_bbl, VolU_m3, VolU_bbl},
    Row{VolU_gal, VolU_Liter, VolU_gal},
    Row{VolU_ImpGal, VolU_Liter, VolU_gal},
    Row{VolU_Liter, VolU_Liter, VolU_gal},
    Row{VolU_Yd3, VolU_m3, VolU_Yd3},
    Row{VolU_Inch3, VolU_Liter, VolU_Inch3},
    Row{PrU_Bar, PrU_Bar, PrU_Psi},
    Row{PrU_mBar, PrU_mBar, PrU_Psi},
    Row{PrU_Pa, PrU_Pa, PrU_Psi},
    Row{PrU_KPa, PrU_KPa, PrU_Psi},
    Row{PrU_Psi, PrU_Bar, PrU_Psi},
    Row{VolFlowU_m3PerHr, VolFlowU_m3PerHr, VolFlowU_galPerHr},
    Row{VolFlowU_galPerHr, VolFlowU_m3PerHr, VolFlowU_galPerHr},
    Row{VolFlowU_bblPerHr, VolFlowU_m3PerHr, VolFlowU_bblPerHr},
};

} // namespace

MEAS_TYPE unitIn(UnitSystem system, MEAS_TYPE form, MEAS_TYPE device) noexcept
{
    if (system == UnitSystem::Form || form == NoneU)
        return form;
    if (system == UnitSystem::Device)
        return device;
    const auto* const row = std::ranges::find(kRows, form, &Row::unit);
    if (row == kRows.end())
        return form;
    return system == UnitSystem::Metric ? row->metric : row->us;
}

} // namespace zor::monitor
