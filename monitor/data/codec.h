#pragma once

/// Between values and registers.

#include <zor/monitor/data/parameter_file.h>
#include <zor/platform/variant.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zor::monitor {

using Registers = std::vector<std::uint16_t>;

/// Names as in the parameter file ("uint16"), in the order of ValueType and of Order.
[[nodiscard]] std::span<const std::string_view> valueTypeNames() noexcept;
[[nodiscard]] std::span<const std::string_view> orderNames() noexcept;

/// Registers of a type; 0 for a text, whose length the parameter says.
[[nodiscard]] std::uint16_t registersOf(ValueType type) noexcept;
[[nodiscard]] bool isInteger(ValueType type) noexcept;

/// The value in `parameter.unit`: a number (double), a text, or Empty for a float that is no number, by which
/// devices say that they have no value. `registers` must be as many as the location has.
[[nodiscard]] Variant decode(const Parameter& parameter, std::span<const std::uint16_t> registers);

/// What the type can hold, in `parameter.unit`.
struct Range {
    double lowest;
    double highest;
};
[[nodiscard]] Range rangeOf(const Parameter& parameter);

/// Decimals that tell an integer's neighbouring values apart; nothing for other types.
[[nodiscard]] std::optional<std::int16_t> decimalsOf(const Parameter& parameter);

/// Whether the registers hold a value between the file's limits, each of which may be missing.
[[nodiscard]] bool isWithinLimits(const Parameter& parameter, std::span<const std::uint16_t> registers);

/// The bits of an integer or of a single bit, as they lie in the device, without scale or unit.
[[nodiscard]] std::uint32_t decodeBits(const Location& location, std::span<const std::uint16_t> registers);

/// A text, two Latin-1 characters to the register, without the filling (NUL or blank) at its end; as UTF-8.
[[nodiscard]] std::string decodeText(const Location& location, std::span<const std::uint16_t> registers);

/// Why a value has no registers.
enum class Unfit : std::uint8_t { No, NotANumber, OutOfRange, TextTooLong, CharactersUnknown };

struct Encoded {
    Registers registers; ///< empty when unfit
    Unfit unfit = Unfit::No;
};

/// The registers that hold a value given in `parameter.unit`; not for a single bit. A number that the type
/// cannot hold exactly is rounded to the nearest it can.
[[nodiscard]] Encoded encode(const Parameter& parameter, const Variant& value);

/// The registers with the masked bits changed and every other bit as it was.
[[nodiscard]] Registers mergeBits(const Location& location, std::span<const std::uint16_t> current,
                                  std::uint32_t mask, std::uint32_t bits);

} // namespace zor::monitor
