#pragma once

/// The parameters of the demonstration device: one table for the device, the reader and the form.

#include "units/unit_types.h"

#include <QList>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace zor::monitor {

/// How a value lies in registers; more than one register starts with the high word.
enum class Encoding : std::uint8_t { UInt16, Int16, Int32, Float32, Text };

struct Parameter {
    std::string_view tag;
    std::string_view caption;
    REGISTER_TYPE bank;
    std::uint16_t address;
    std::uint16_t registers;
    Encoding encoding;
    UNIT_TYPE unitType;
    MEAS_TYPE deviceUnit;
    MEAS_TYPE outputUnit;
    double minimum; ///< of an entry, in the output unit; both 0: not checked
    double maximum;
};

inline constexpr std::array kParameters{
    Parameter{"Distance", "Distance", InputRegister, 0, 2, Encoding::Float32, Length, LgthU_1By10_MM, LgthU_Mtr, 0,
              0},
    Parameter{"Velocity", "Surface velocity", InputRegister, 2, 2, Encoding::Float32, VELOCITY, VelU_MtrPerSec,
              VelU_MtrPerHr, 0, 0},
    Parameter{"Temperature", "Temperature", InputRegister, 4, 1, Encoding::Int16, TEMPERATURE, TempU_1By10_DegC,
              TempU_DegC, 0, 0},
    Parameter{"Pressure", "Vapour pressure", InputRegister, 5, 1, Encoding::UInt16, PRESSURE, PrU_mBar, PrU_Bar, 0,
              0},
    Parameter{"Volume", "Volume", InputRegister, 6, 2, Encoding::Float32, VOLUMEE, VolU_m3, VolU_m3, 0, 0},
    Parameter{"Flow", "Flow", InputRegister, 8, 2, Encoding::Float32, VOLUMETRICFLOW, VolFlowU_m3PerHr,
              VolFlowU_m3PerHr, 0, 0},
    Parameter{"TankHeight", "Tank height", HoldingRegister, 0, 2, Encoding::Int32, Length, LgthU_1By10_MM,
              LgthU_Mtr, 0.1, 40},
    Parameter{"HighAlarm", "High temperature alarm", HoldingRegister, 2, 1, Encoding::Int16, TEMPERATURE,
              TempU_1By10_DegC, TempU_DegC, -50, 200},
    Parameter{"Damping", "Damping time", HoldingRegister, 3, 1, Encoding::UInt16, TIMEUNITS, TimeU_s, TimeU_s, 0,
              600},
    Parameter{"TagName", "Tag name", HoldingRegister, 8, 8, Encoding::Text, None, NoneU, NoneU, 0, 0},
};

/// Registers that tell device type (8, a text) and firmware version (major, minor).
inline constexpr std::uint16_t kIdentityAddress = 100;
inline constexpr std::uint16_t kIdentityRegisters = 10;

/// The number in the registers. Texts are decodeText()'s.
[[nodiscard]] double decodeNumber(Encoding encoding, const QList<quint16>& registers);
/// The text in the registers, two Latin-1 characters each, without the filling at its end; as UTF-8.
[[nodiscard]] std::string decodeText(const QList<quint16>& registers);

/// The registers for a number; empty when it does not fit the encoding.
[[nodiscard]] QList<quint16> encodeNumber(Encoding encoding, double value);
/// The registers for a text; empty when it is too long or holds characters beyond Latin-1.
[[nodiscard]] QList<quint16> encodeText(std::string_view text, int registers);

} // namespace zor::monitor
