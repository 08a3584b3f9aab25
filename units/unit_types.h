#pragma once

/// The published enumerations. Values are part of the interface: hosts store and pass the integers, and any
/// integer may arrive where one of these is expected.

#include <zor/platform/macros_aside.h>

#include <cstdint>

namespace zor {

/// What kind of quantity a numeric control shows. MASS and MASSFLOW have no units yet.
enum class UNIT_TYPE : std::int32_t {
    Length = 0,
    VELOCITY = 1,
    TEMPERATURE = 2,
    VOLUMEE = 3,
    PRESSURE = 4,
    VOLUMETRICFLOW = 5,
    ELECTRICPOTENTIAL = 6,
    CURRENT = 7,
    TIMEUNITS = 8,
    FREQUENCY = 9,
    OTHERS = 10,
    None = 11, ///< no unit; behind X11's headers, which make a macro of the word, UNIT_TYPE{11}
    MASS = 12,
    MASSFLOW = 13,
};

/// The units. Names follow quantity and unit; labels and conversions stand in the unit catalogue.
enum class MEAS_TYPE : std::int32_t {
    LgthU_MM = 0,
    LgthU_Mtr = 1,
    LgthU_1By10_MM = 2,
    LgthU_1By256_INCH = 3,
    LgthU_1BY16_INCH = 4,
    LgthU_INCH = 5,
    LgthU_FEET = 6,
    LgthU_CM = 7,
    VelU_MtrPerSec = 8,
    VelU_CmPerHr = 9,
    VelU_1BY10_FeetPerHr = 10,
    VelU_MtrPerHr = 11,
    VelU_FeetPerSec = 12,
    VelU_FeetPerHr = 13,
    VelU_InchPerMin = 14,
    TempU_DegC = 15,
    TempU_DegF = 16,
    TempU_DegK = 17,
    TempU_1By10_DegC = 18,
    TempU_1By10_DegF = 19,
    VolU_m3 = 20,
    VolU_CuFt = 21,
    VolU_bbl = 22,
    VolU_gal = 23,
    VolU_ImpGal = 24,
    VolU_Liter = 25,
    VolU_Yd3 = 26,
    VolU_Inch3 = 27,
    PrU_Bar = 28,
    PrU_mBar = 29,
    PrU_Pa = 30,
    PrU_KPa = 31,
    PrU_Psi = 32,
    VolFlowU_m3PerHr = 33,
    VolFlowU_galPerHr = 34,
    VolFlowU_bblPerHr = 35,
    ElectU_mV = 36,
    CrntU_mA = 37,
    TimeU_s = 38,
    TimeU_ms = 39,
    TimeU_min = 40,
    TimeU_hr = 41,
    FreqU_Hz = 42,
    FreqU_MHz = 43,
    OtherU_dBinto10 = 44,
    OtherU_dB = 45,
    OtherU_Percent = 46,
    OtherU_ppm = 47,
    OtherU_debye = 48,
    OtherU_cm3PerMol = 49,
    OtherU_ohm = 50,
    OtherU_HzPerM = 51,
    NoneU = 52,
};

/// The register bank of the device that holds a parameter. Input registers cannot be written.
enum class REGISTER_TYPE : std::int32_t {
    HoldingRegister = 0,
    InputRegister = 1,
};

/// What a text box accepts.
enum class ENTRY_TYPE : std::int32_t {
    Text = 0,
    Numeric = 1,
};

using enum UNIT_TYPE;
using enum MEAS_TYPE;
using enum REGISTER_TYPE;
using enum ENTRY_TYPE;

} // namespace zor

#include <zor/platform/macros_back.h>
