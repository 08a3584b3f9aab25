#pragma once

/// The requests that the monitor makes, as the protocol's bytes, and the judging of what comes back.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zor::monitor {

using Registers = std::vector<std::uint16_t>;

enum class Function : std::uint8_t { ReadHolding = 3, ReadInput = 4, WriteOne = 6, WriteMany = 16 };

struct Request {
    Function function;
    std::uint16_t address;
    std::uint16_t count; ///< registers: 1 to 125 read, 1 to 123 written
    Registers values{};  ///< to be written
};

/// A write of holding registers: one register and several have functions of their own.
[[nodiscard]] Request writeRequest(std::uint16_t address, Registers values);
[[nodiscard]] inline bool isWrite(const Request& request) noexcept { return !request.values.empty(); }

enum class Outcome : std::uint8_t {
    Answered, ///< a reply that fits the request in every field
    Refused,  ///< an exception
    NoAnswer, ///< nothing, too late, or bytes that are no reply to the request
    NotSent,  ///< no connection: the device has not seen the request
};

struct Reply {
    Outcome outcome = Outcome::NoAnswer;
    std::uint8_t exception = 0; ///< of a refusal
    Registers registers{};      ///< of a read that was answered, as many as asked for
    std::string reason{};       ///< of a failure, in English
    int milliseconds = 0;       ///< from sending to the last byte
};

/// The exceptions by which a gateway says that it does not reach the device behind it.
[[nodiscard]] constexpr bool isGatewayException(std::uint8_t exception) noexcept
{
    return exception == 10 || exception == 11;
}
/// The exceptions after which a write may have been carried out all the same, or may yet be: the device is still
/// working on it, or has not answered its gateway.
[[nodiscard]] constexpr bool leavesOpen(std::uint8_t exception) noexcept
{
    return exception == 5 || exception == 11;
}
/// The device works on it or is busy: ask again later.
[[nodiscard]] constexpr bool isBusyException(std::uint8_t exception) noexcept
{
    return exception == 5 || exception == 6;
}

/// What an exception says, in English; empty for a code without a meaning.
[[nodiscard]] std::string_view exceptionMeaning(std::uint8_t exception) noexcept;

/// Function code and data.
[[nodiscard]] std::vector<std::uint8_t> requestPdu(const Request& request);

/// Compares function, length, byte count, address, value and count with the request.
[[nodiscard]] Reply judgeReply(const Request& request, std::span<const std::uint8_t> pdu);

} // namespace zor::monitor
