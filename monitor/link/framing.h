#pragma once

/// How requests and replies lie in a stream of bytes. No Qt, no input or output: any bytes may be tried on it.

#include <zor/monitor/link/modbus.h>

namespace zor::monitor {

/// A reply that is awaited.
struct Expected {
    std::uint16_t transaction;
    std::uint8_t unit;
    const Request* request;
};

/// What stands at the beginning of the bytes that have come.
struct Found {
    enum class State : std::uint8_t { Incomplete, Whole, Wrong };
    State state = State::Incomplete;
    Fault fault = Fault::None;           ///< of what is wrong
    std::size_t index = 0;               ///< of the reply that it is, or was to be
    std::size_t size = 0;                ///< of a whole frame
    std::span<const std::uint8_t> pdu{}; ///< of a whole frame: function code and data
};

/// One way of framing.
struct Framing {
    bool numbered; ///< each frame carries the number of its transaction, so several may be under way
    Fault silence; ///< what it means when nothing comes
    Bytes (*wrap)(const Expected& reply, const Bytes& pdu);
    /// Each field is judged as soon as it is there; a frame that is wrong is not waited for. Not without an
    /// expected reply.
    Found (*find)(std::span<const std::uint8_t> received, std::span<const Expected> expected);
    std::size_t head; ///< bytes before the function code
    std::size_t tail; ///< bytes after the data
};

[[nodiscard]] const Framing& tcpFraming() noexcept;
[[nodiscard]] const Framing& rtuFraming() noexcept;

inline constexpr std::size_t kLongestFrame = 260;

/// The checksum of a serial frame.
[[nodiscard]] std::uint16_t checksum(std::span<const std::uint8_t> bytes) noexcept;

} // namespace zor::monitor
