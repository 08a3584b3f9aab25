#pragma once

/// The unit catalogue as data: one row per unit type and per unit, in the order of their values.

#include <zor/platform/macros_aside.h>
#include <zor/units/unit_types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zor::units {

/// How many decimals a value in the unit is shown with; the unit without a unit takes the caller's number.
inline constexpr int kCallersDecimals = -1;

/// One unit.
struct UnitRow {
    /// Its value.
    MEAS_TYPE unit;
    std::string_view name;      ///< the enumeration's member name
    std::string_view label;     ///< shown beside the value
    std::string_view messageId; ///< under which a host looks up a translated label
    /// Of its value texts, or kCallersDecimals.
    int decimals;
};

/// All units, by value.
inline constexpr std::array kUnits{
    UnitRow{LgthU_MM, "LgthU_MM", "mm", "UNIT_LENGTH_MM", 0},
    UnitRow{LgthU_Mtr, "LgthU_Mtr", "m", "UNIT_LENGTH_MTR", 3},
    UnitRow{LgthU_1By10_MM, "LgthU_1By10_MM", "1/10mm", "UNIT_LENGTH_1/10_MM", 2},
    UnitRow{LgthU_1By256_INCH, "LgthU_1By256_INCH", "1/256in", "UNIT_LENGTH_1/256_INCH", 2},
    UnitRow{LgthU_1BY16_INCH, "LgthU_1BY16_INCH", "1/16in", "UNIT_LENGTH_1/16_INCH", 1},
    UnitRow{LgthU_INCH, "LgthU_INCH", "in", "UNIT_LENGTH_INCH", 1},
    UnitRow{LgthU_FEET, "LgthU_FEET", "ft", "UNIT_LENGTH_FEET", 3},
    UnitRow{LgthU_CM, "LgthU_CM", "cm", "UNIT_LENGTH_CM", 1},
    UnitRow{VelU_MtrPerSec, "VelU_MtrPerSec", "m/s", "UNIT_VEL_M/S", 3},
    UnitRow{VelU_CmPerHr, "VelU_CmPerHr", "cm/h", "UNIT_VEL_CM/HR", 1},
    UnitRow{VelU_1BY10_FeetPerHr, "VelU_1BY10_FeetPerHr", "1/10 ft/h", "UNIT_VEL_1/10_FT/HR", 2},
    UnitRow{VelU_MtrPerHr, "VelU_MtrPerHr", "m/h", "UNIT_VEL_M/HR", 3},
    UnitRow{VelU_FeetPerSec, "VelU_FeetPerSec", "ft/s", "UNIT_VEL_FT/S", 3},
    UnitRow{VelU_FeetPerHr, "VelU_FeetPerHr", "ft/h", "UNIT_VEL_FT/HR", 3},
    UnitRow{VelU_InchPerMin, "VelU_InchPerMin", "in/min", "UNIT_VEL_INCH/MIN", 3},
    UnitRow{TempU_DegC, "TempU_DegC", "°C", "UNIT_TEMP_DEGC", 1},
    UnitRow{TempU_DegF, "TempU_DegF", "°F", "UNIT_TEMP_DEGF", 1},
    UnitRow{TempU_DegK, "TempU_DegK", "°K", "UNIT_TEMP_DEGK", 1},
    UnitRow{TempU_1By10_DegC, "TempU_1By10_DegC", "1/10°C", "UNIT_TEMP_1/10_DEGC", 1},
    UnitRow{TempU_1By10_DegF, "TempU_1By10_DegF", "1/10°F", "UNIT_TEMP_1/10_DEGF", 1},
    UnitRow{VolU_m3, "VolU_m3", "m3", "UNIT_VOL_M3", 3},
    UnitRow{VolU_CuFt, "VolU_CuFt", "ft3", "UNIT_VOL_FT3", 3},
    UnitRow{VolU_bbl, "VolU_bbl", "bbl", "UNIT_VOL_BBL", 2},
    UnitRow{VolU_gal, "VolU_gal", "gal", "UNIT_VOL_GAL", 0},
    UnitRow{VolU_ImpGal, "VolU_ImpGal", "imp gal", "UNIT_VOL_IMPGAL", 0},
    UnitRow{VolU_Liter, "VolU_Liter", "l", "UNIT_VOL_LITER", 0},
    UnitRow{VolU_Yd3, "VolU_Yd3", "yd3", "UNIT_VOL_YD3", 3},
    UnitRow{VolU_Inch3, "VolU_Inch3", "in3", "UNIT_VOL_INCH3", 0},
    UnitRow{PrU_Bar, "PrU_Bar", "Bar", "UNIT_PRES_BAR", 3},
    UnitRow{PrU_mBar, "PrU_mBar", "mBar", "UNIT_PRES_MBAR", 0},
    UnitRow{PrU_Pa, "PrU_Pa", "Pa", "UNIT_PRES_PA", 0},
    UnitRow{PrU_KPa, "PrU_KPa", "kPa", "UNIT_PRES_KPA", 1},
    UnitRow{PrU_Psi, "PrU_Psi", "psi", "UNIT_PRES_PSI", 1},
    UnitRow{VolFlowU_m3PerHr, "VolFlowU_m3PerHr", "m3/h", "UNIT_VOLFLOW_M3/HR", 3},
    UnitRow{VolFlowU_galPerHr, "VolFlowU_galPerHr", "gal/h", "UNIT_VOLFLOW_GAL/HR", 0},
    UnitRow{VolFlowU_bblPerHr, "VolFlowU_bblPerHr", "bbl/h", "UNIT_VOLFLOW_BBL/HR", 2},
    UnitRow{ElectU_mV, "ElectU_mV", "mV", "UNIT_ELECT_MV", 0},
    UnitRow{CrntU_mA, "CrntU_mA", "mA", "UNIT_CRNT_MA", 2},
    UnitRow{TimeU_s, "TimeU_s", "s", "UNIT_TIME_SEC", 0},
    UnitRow{TimeU_ms, "TimeU_ms", "ms", "UNIT_TIME_MS", 0},
    UnitRow{TimeU_min, "TimeU_min", "min", "UNIT_TIME_MIN", 0},
    UnitRow{TimeU_hr, "TimeU_hr", "h", "UNIT_TIME_HR", 0},
    UnitRow{FreqU_Hz, "FreqU_Hz", "Hz", "UNIT_FREQ_HZ", 0},
    UnitRow{FreqU_MHz, "FreqU_MHz", "MHz", "UNIT_FREQ_MHZ", 3},
    UnitRow{OtherU_dBinto10, "OtherU_dBinto10", "dB*10", "UNIT_OTHER_10_DB", 1},
    UnitRow{OtherU_dB, "OtherU_dB", "dB", "UNIT_OTHER_DB", 0},
    UnitRow{OtherU_Percent, "OtherU_Percent", "%", "UNIT_OTHER_%", 1},
    UnitRow{OtherU_ppm, "OtherU_ppm", "ppm", "UNIT_OTHER_PPM", 0},
    UnitRow{OtherU_debye, "OtherU_debye", "debye", "UNIT_OTHER_DEBYE", 0},
    UnitRow{OtherU_cm3PerMol, "OtherU_cm3PerMol", "cm3/mol", "UNIT_OTHER_CM3/MOL", 1},
    UnitRow{OtherU_ohm, "OtherU_ohm", "ohm", "UNIT_OTHER_OHM", 0},
    UnitRow{OtherU_HzPerM, "OtherU_HzPerM", "Hz/m", "UNIT_OTHER_HZ/M", 0},
    UnitRow{NoneU, "NoneU", "", "UNIT_NONE", kCallersDecimals},
};

/// One kind of quantity.
struct UnitTypeRow {
    /// Its value.
    UNIT_TYPE type;
    /// The enumeration's member name.
    std::string_view name;
    std::string_view displayName{}; ///< empty for a type that no picker offers
    std::int32_t first = 0;         ///< its units, by value; first > last for a type without units
    /// The last of its units.
    std::int32_t last = -1;
    MEAS_TYPE start = NoneU; ///< what a design-time page sets; NoneU for a type without units

    /// A type without units.
    consteval UnitTypeRow(UNIT_TYPE value, std::string_view member) : type(value), name(member) {}
    /// A type with its first and its last unit.
    consteval UnitTypeRow(UNIT_TYPE value, std::string_view member, std::string_view words, MEAS_TYPE from,
                          MEAS_TYPE to, MEAS_TYPE starting)
        : type(value), name(member), displayName(words), first(static_cast<std::int32_t>(from)),
          last(static_cast<std::int32_t>(to)), start(starting)
    {}
};

/// All kinds, by value.
inline constexpr std::array kUnitTypes{
    UnitTypeRow{Length, "Length", "Length", LgthU_MM, LgthU_CM, LgthU_MM},
    UnitTypeRow{VELOCITY, "VELOCITY", "Velocity", VelU_MtrPerSec, VelU_InchPerMin, VelU_MtrPerSec},
    UnitTypeRow{TEMPERATURE, "TEMPERATURE", "Temperature", TempU_DegC, TempU_1By10_DegF, TempU_DegC},
    UnitTypeRow{VOLUMEE, "VOLUMEE", "Volume", VolU_m3, VolU_Inch3, VolU_m3},
    UnitTypeRow{PRESSURE, "PRESSURE", "Pressure", PrU_Bar, PrU_Psi, PrU_Psi},
    UnitTypeRow{VOLUMETRICFLOW, "VOLUMETRICFLOW", "Volumetric Flow", VolFlowU_m3PerHr, VolFlowU_bblPerHr,
                VolFlowU_m3PerHr},
    UnitTypeRow{ELECTRICPOTENTIAL, "ELECTRICPOTENTIAL", "Electric Potential", ElectU_mV, ElectU_mV, ElectU_mV},
    UnitTypeRow{CURRENT, "CURRENT", "Current", CrntU_mA, CrntU_mA, CrntU_mA},
    UnitTypeRow{TIMEUNITS, "TIMEUNITS", "Time", TimeU_s, TimeU_hr, TimeU_s},
    UnitTypeRow{FREQUENCY, "FREQUENCY", "Frequency", FreqU_Hz, FreqU_MHz, FreqU_Hz},
    UnitTypeRow{OTHERS, "OTHERS", "Others", OtherU_dBinto10, OtherU_HzPerM, OtherU_Percent},
    UnitTypeRow{None, "None", "None", NoneU, NoneU, NoneU},
    UnitTypeRow{MASS, "MASS"},
    UnitTypeRow{MASSFLOW, "MASSFLOW"},
};

namespace detail {

/// Whether the rows stand in the order of their values, without gaps: rows are looked up by value.
template <class Rows, class Value>
consteval bool isInOrder(const Rows& rows, Value value)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].*value) != i)
            return false;
    }
    return true;
}

} // namespace detail

static_assert(detail::isInOrder(kUnits, &UnitRow::unit),
              "put the units in the order of their values, without gaps");
static_assert(detail::isInOrder(kUnitTypes, &UnitTypeRow::type),
              "put the unit types in the order of their values, without gaps");

/// A member of the smaller enumerations with its word for people.
struct WordRow {
    /// Its value.
    std::int32_t value;
    /// The enumeration's member name.
    std::string_view name;
    /// For people.
    std::string_view word;
};

/// The register banks, by value.
inline constexpr std::array kRegisterTypes{
    WordRow{0, "HoldingRegister", "Holding"},
    WordRow{1, "InputRegister", "Input"},
};

/// What a text box accepts, by value.
inline constexpr std::array kEntryTypes{
    WordRow{0, "Text", "Text"},
    WordRow{1, "Numeric", "Numeric"},
};
static_assert(detail::isInOrder(kRegisterTypes, &WordRow::value) &&
                  detail::isInOrder(kEntryTypes, &WordRow::value),
              "put the members in the order of their values, without gaps");

/// The row of a unit; nullptr for any integer that is none.
[[nodiscard]] constexpr const UnitRow* rowOf(MEAS_TYPE unit) noexcept
{
    const auto value = static_cast<std::int32_t>(unit);
    return value >= 0 && value < static_cast<std::int32_t>(kUnits.size())
               ? &kUnits[static_cast<std::size_t>(value)]
               : nullptr;
}

/// The row of a unit type; nullptr for any integer that is none.
[[nodiscard]] constexpr const UnitTypeRow* rowOf(UNIT_TYPE type) noexcept
{
    const auto value = static_cast<std::int32_t>(type);
    return value >= 0 && value < static_cast<std::int32_t>(kUnitTypes.size())
               ? &kUnitTypes[static_cast<std::size_t>(value)]
               : nullptr;
}

} // namespace zor::units

#include <zor/platform/macros_back.h>
