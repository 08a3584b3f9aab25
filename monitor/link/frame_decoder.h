#pragma once

/// What the bytes of a frame say, field by field. Takes any bytes: what does not fit is said to be left over.

#include <zor/monitor/link/frames.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zor::monitor {

/// A field of a frame. Names and meanings are English, and are translated where they are shown.
struct Field {
    std::size_t at = 0;
    std::size_t size = 0;
    std::string_view name{};
    int index = -1; ///< which register or coil; negative for other fields
    std::string value{};
    std::string_view meaning{}; ///< of a code; may be empty
};

/// The fields one behind the other, without a gap.
[[nodiscard]] std::vector<Field> decodeFrame(const Frame& frame);

/// A word in the language of the reader.
using Translate = std::function<std::string(std::string_view)>;

/// Function and data in a line.
[[nodiscard]] std::string summaryOf(const Frame& frame, const Translate& translate);
/// The unit's number; empty when the frame does not reach that far.
[[nodiscard]] std::string unitOf(const Frame& frame);
[[nodiscard]] std::string hexOf(std::span<const std::uint8_t> bytes);
/// A frame as a line of a text file: time (UTC), direction, unit, what it says, round trip, bytes. English.
[[nodiscard]] std::string lineOf(const Frame& frame);

} // namespace zor::monitor
