#include <zor/monitor/link/modbus.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr unsigned kExceptionBit = 0x80;

// By code; the protocol leaves 0, 7 and 9 without a meaning for these requests.
constexpr std::array<std::string_view, 12> kExceptions{"",
                                                       "the device does not know this function",
                                                       "the device does not have this address",
                                                       "the device does not take this value",
                                                       "the device has failed",
                                                       "the device is still working on it",
                                                       "the device is busy",
                                                       "",
                                                       "the device's memory is damaged",
                                                       "",
                                                       "the gateway has no path to the device",
                                                       "the device behind the gateway does not answer"};

void put(Bytes& bytes, std::uint16_t word)
{
    bytes.push_back(static_cast<std::uint8_t>(word >> 8U));
    bytes.push_back(static_cast<std::uint8_t>(word & 0xFFU));
}

Bytes header(const Request& request)
{
    Bytes bytes{static_cast<std::uint8_t>(request.function)};
    put(bytes, request.address);
    return bytes;
}

/// The reply that a write gets when it has been carried out.
Bytes echoOf(const Request& request)
{
    Bytes bytes = header(request);
    put(bytes, request.function == Function::WriteOne ? request.values[0] : request.count);
    return bytes;
}

Reply broken(std::string reason)
{
    Reply reply;
    reply.reason = std::move(reason);
    return reply;
}

Reply judgeRead(const Request& request, std::span<const std::uint8_t> pdu)
{
    const std::size_t wanted = std::size_t{2} * request.count;
    if (pdu.size() != wanted + 2 || pdu[1] != wanted)
        return broken("a reply of another length than was asked for");
    Reply reply;
    reply.outcome = Outcome::Answered;
    for (std::size_t i = 2; i < pdu.size(); i += 2)
        reply.registers.push_back(static_cast<std::uint16_t>(pdu[i] << 8U | pdu[i + 1]));
    return reply;
}

} // namespace

std::string_view exceptionMeaning(std::uint8_t exception) noexcept
{
    return exception < kExceptions.size() ? kExceptions[exception] : std::string_view();
}

Request writeRequest(std::uint16_t address, Registers values)
{
    const auto count = static_cast<std::uint16_t>(values.size());
    return {count == 1 ? Function::WriteOne : Function::WriteMany, address, count, std::move(values)};
}

std::vector<std::uint8_t> requestPdu(const Request& request)
{
    if (request.function == Function::WriteOne)
        return echoOf(request);
    Bytes bytes = header(request);
    put(bytes, request.count);
    if (request.function == Function::WriteMany) {
        bytes.push_back(static_cast<std::uint8_t>(request.count * 2));
        for (const std::uint16_t word : request.values)
            put(bytes, word);
    }
    return bytes;
}

Reply judgeReply(const Request& request, std::span<const std::uint8_t> pdu)
{
    const unsigned function = static_cast<std::uint8_t>(request.function);
    if (pdu.empty())
        return broken("an empty reply");
    if (pdu[0] == (function | kExceptionBit)) {
        if (pdu.size() != 2 || pdu[1] == 0)
            return broken("an exception of the wrong length");
        Reply reply;
        reply.outcome = Outcome::Refused;
        reply.exception = pdu[1];
        reply.reason = "exception " + std::to_string(reply.exception);
        if (const std::string_view meaning = exceptionMeaning(reply.exception); !meaning.empty())
            reply.reason.append(": ").append(meaning);
        return reply;
    }
    if (pdu[0] != function)
        return broken("a reply to another function");
    if (!isWrite(request))
        return judgeRead(request, pdu);
    if (!std::ranges::equal(pdu, echoOf(request)))
        return broken("a reply to another write");
    Reply reply;
    reply.outcome = Outcome::Answered;
    return reply;
}

} // namespace zor::monitor
