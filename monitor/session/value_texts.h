#pragma once

/// A parameter's registers in words, as an operator reads them in a list.

#include <zor/monitor/data/codec.h>

namespace zor::monitor {

/// An integer as controls with 32-bit values take it: signed where the type is, bits as they lie otherwise.
[[nodiscard]] std::int32_t decodeInteger(const Location& location, std::span<const std::uint16_t> registers);

struct ShownValue {
    std::string text;
    MEAS_TYPE unit = NoneU; ///< of a number
};

/// A number in the unit `shown`, an enumeration's entry, the names of the set bits that the mask leaves (each
/// "on" or "off" when the mask is not 0), or the text.
[[nodiscard]] ShownValue describe(const Parameter& parameter, std::span<const std::uint16_t> registers,
                                  MEAS_TYPE shown, const std::string& language, std::uint32_t mask = 0);

/// The same for a review: a number with as many decimals as it takes to tell it from any other that the registers
/// could hold, whatever its unit is usually shown with.
[[nodiscard]] ShownValue describeExactly(const Parameter& parameter, std::span<const std::uint16_t> registers,
                                         MEAS_TYPE shown, const std::string& language, std::uint32_t mask = 0);

/// For a record: a number in the device's unit with all its digits and a decimal point, whatever the language.
[[nodiscard]] std::string recordText(const Parameter& parameter, std::span<const std::uint16_t> registers,
                                     std::uint32_t mask = 0);

/// The number that the record shows, of registers that hold one; entries and bits count as numbers.
[[nodiscard]] double recordNumber(const Parameter& parameter, std::span<const std::uint16_t> registers);

} // namespace zor::monitor
