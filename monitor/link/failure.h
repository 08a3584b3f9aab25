#pragma once

/// Why a request failed, and what a person can try. The words are English; they stand in the record, and are
/// translated where they are shown.

#include <cstdint>
#include <string_view>

namespace zor::monitor {

/// In the order of the table in failure.cpp.
enum class Fault : std::uint8_t {
    None,
    System, ///< the operating system says why
    Refused,
    Closed,
    NoHost,
    Network,
    HostSilent, ///< no connection in time
    NoPort,     ///< there is no such serial port
    PortDenied,
    PortLost,
    Silent,     ///< connected, but no complete answer in time
    LineSilent, ///< the same on a serial line
    ConnectionLost,
    OtherTransaction,
    OtherProtocol,
    ImpossibleLength,
    OtherUnit,
    TooManyBytes,
    WrongChecksum,
    OtherLength,
    Empty,
    WrongException,
    OtherFunction,
    OtherWrite,
    Unasked, ///< bytes while nothing was awaited
};

/// What has happened, in a few words; empty for None and System.
[[nodiscard]] std::string_view reasonOf(Fault fault) noexcept;

/// What an exception says; empty for a code without a meaning.
[[nodiscard]] std::string_view exceptionMeaning(std::uint8_t exception) noexcept;

/// A sentence on what to look at, of an exception or else of a fault.
[[nodiscard]] std::string_view adviceOn(Fault fault, std::uint8_t exception) noexcept;

} // namespace zor::monitor
