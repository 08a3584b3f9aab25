#pragma once

/// The requests that the monitor makes, as the protocol's bytes, and the judging of what comes back.

#include <zor/monitor/link/failure.h>

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zor::monitor {

using Bytes = std::vector<std::uint8_t>;
using Registers = std::vector<std::uint16_t>;

enum class Function : std::uint8_t {
    ReadCoils = 1,
    ReadDiscrete = 2,
    ReadHolding = 3,
    ReadInput = 4,
    WriteCoil = 5,
    WriteOne = 6,
    WriteCoils = 15,
    WriteMany = 16,
    MaskWrite = 22,
    Identify = 43, ///< the device's own identification, as texts
};

/// Whether a function changes what the device holds.
[[nodiscard]] constexpr bool writes(Function function) noexcept
{
    using enum Function;
    return function == WriteCoil || function == WriteOne || function == WriteCoils || function == WriteMany ||
           function == MaskWrite;
}

struct Request {
    Function function;
    std::uint16_t address; ///< of the first register or coil; of an identification, the first text
    std::uint16_t count;   ///< registers: 1 to 125 read, 1 to 123 written; coils: 1 to 2000 and 1 to 1968
    /// To be written: registers, or 0 or 1 for each coil; of a masked write the bits to be kept and those to be
    /// set.
    Registers values{};
};

/// A write of holding registers, or of coils: one and several have functions of their own. `several` takes that
/// for several even for one.
[[nodiscard]] Request writeRequest(std::uint16_t address, Registers values, bool coils = false,
                                   bool several = false);
/// Asks for the texts of the basic identification (0 maker, 1 product code, 2 revision) from one on.
[[nodiscard]] inline Request identifyRequest(std::uint8_t first = 0) { return {Function::Identify, first, 1}; }
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
    Registers registers{};      ///< of a read that was answered, as many as asked for; of coils, 0 or 1 each
    std::map<std::uint8_t, std::string> texts{}; ///< of an identification
    std::uint8_t nextText = 0;                   ///< where there are more texts; 0 when there are none
    std::string reason{};                        ///< of a failure, in English
    Fault fault = Fault::None;                   ///< of a failure that is no refusal
    int milliseconds = 0;                        ///< from sending to the last byte
};

/// A reply that says why there is none; `reason` counts for a fault that has no words of its own.
[[nodiscard]] Reply failed(Fault fault, std::string reason = {});

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

/// Function code and data.
[[nodiscard]] Bytes requestPdu(const Request& request);

/// How many bytes a reply has that begins so, function code and data; nothing while that cannot be said, 0 when it
/// is no reply to the request.
[[nodiscard]] std::optional<std::size_t> replySize(const Request& request, std::span<const std::uint8_t> begin);

/// Compares function, length, byte count, address, value and count with the request.
[[nodiscard]] Reply judgeReply(const Request& request, std::span<const std::uint8_t> pdu);

} // namespace zor::monitor
