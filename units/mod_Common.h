#pragma once

/// The unit module: units, conversion, value texts, and which devices a control is for. Free functions
/// without state; results depend on the arguments and, for texts, on the user's separators.

#include <zor/platform/variant.h>
#include <zor/units/unit_types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zor {

/// @name Constants of the conversions
/// The catalogue's own, in the precision in which devices of this family use them.
/// @{
/// Millimetres to the inch.
inline constexpr double MM_PER_INCH = 25.4;
inline constexpr double GAL_PER_M3 = 264.172; ///< US gallons per cubic metre
/// Pounds to the square inch in a bar.
inline constexpr double PSI_PER_BAR = 14.50377;
inline constexpr double GAL_PER_IMPGAL = 1.20095; ///< US gallons per imperial gallon
/// Litres to the imperial gallon.
inline constexpr double LITRE_PER_IMPGAL = 4.54609;
inline constexpr double YD3_PER_M3 = 1.30795;     ///< cubic yards per cubic metre
inline constexpr double IN3_PER_LITRE = 61.02374; ///< cubic inches per litre
/// @}

/// The identifier of a unit's translated label; "UNIT_ERROR" for an integer that is no unit.
[[nodiscard]] std::string_view fc_GetUnitID(MEAS_TYPE i_Unit) noexcept;

/// The short label of a unit; empty for NoneU and for an integer that is no unit.
[[nodiscard]] std::string_view fc_GetUnitLabel(MEAS_TYPE i_Unit) noexcept;

/// The factor by which a value in one unit is multiplied to get it in another of the same type. 1 when the
/// units do not both belong to the type, or the type has no conversions. Constant time, never fails.
[[nodiscard]] double fd_GetConversionFactor(const UNIT_TYPE& i_UnitType, MEAS_TYPE i_FromUnit,
                                            const MEAS_TYPE& i_ToUnit) noexcept;

/// What is added after the factor; other than 0 between temperatures only. The quantity does not matter to it:
/// between two temperatures it is added also where another UNIT_TYPE makes the factor 1.
[[nodiscard]] double fd_GetOffset(MEAS_TYPE i_FromUnit, const MEAS_TYPE& i_ToUnit) noexcept;

/// value x factor + offset, in that order, each as the two functions above give it. The result may be infinite or
/// undefined.
[[nodiscard]] double converted(double value, UNIT_TYPE type, MEAS_TYPE from, MEAS_TYPE to) noexcept;

/// As converted(), but raises Overflow when the result is infinite or undefined.
[[nodiscard]] double convert(double value, UNIT_TYPE type, MEAS_TYPE from, MEAS_TYPE to);

/// The text of a value as an operator reads it: as many decimals as the unit is shown with, `i_Digits` of
/// them (none when 0 or less) for NoneU. Empty for an integer that is no unit, and for a value that is not a
/// valid number.
[[nodiscard]] Variant fc_FormatValue(const Variant& v_Value, MEAS_TYPE i_Unit, std::int16_t i_Digits);

/// As fc_FormatValue(), for a number and a unit that is one.
[[nodiscard]] std::string formatValueText(double value, MEAS_TYPE unit, std::int16_t digits);

/// Whether values in the unit have a text: false for an integer that is no unit.
[[nodiscard]] bool hasPattern(MEAS_TYPE unit) noexcept;

/// Whether a value is a number on which a reading with the user's separators and a reading without any
/// agree to within 1: "12,5" is one where the comma is the decimal separator, "1.000" is none where the
/// point groups. For a text with an exponent the mantissa decides. Booleans and Empty are no numbers,
/// neither are infinite and undefined doubles, nor is a text whose number fits no double.
[[nodiscard]] bool fb_IsValidNumber(const Variant& v_Value) noexcept;

/// The number of a value for which fb_IsValidNumber() holds, else nothing.
[[nodiscard]] std::optional<double> validNumber(const Variant& value) noexcept;
[[nodiscard]] std::optional<double> validNumber(std::string_view text) noexcept;

/// Position (from 0) of a device type in a comma-separated list, without regard to case and to blanks around
/// the entries; -1 when it is not there. A blank list accepts every device as its first entry.
[[nodiscard]] std::int16_t fi_GetDeviceTypeIndex(std::string_view c_DeviceTypeList,
                                                 std::string_view c_DeviceType) noexcept;

/// Whether a firmware version lies outside the limits that stand at `i_TypeIndex` in the two comma-separated
/// lists. A blank list and an empty entry limit nothing; a list without the entry admits no version, and a
/// negative index, which is that of a type in no list, none whatever the lists are.
[[nodiscard]] bool fb_VersionNotSupported(std::string_view c_MinVersionList, std::string_view c_MaxVersionList,
                                          std::string_view c_DeviceVersion, std::int16_t i_TypeIndex);

/// Puts a 0 before each of the parts left and right of the first character that is no digit, where it is shorter
/// than two characters, so that versions compare as texts: 1.5 becomes 01.05, and an empty part "0". A version of
/// digits alone stays as it is.
void s_PadVersion(std::string& c_Version);

/// The value of a member of the published enumerations by its name ("LgthU_MM").
[[nodiscard]] std::optional<std::int32_t> memberValue(std::string_view name) noexcept;

} // namespace zor
