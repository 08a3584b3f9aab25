#include <zor/monitor/link/modbus.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

constexpr unsigned kRefusedBit = 0x80;
constexpr std::uint16_t kOn = 0xFF00;    ///< what a single coil is written with
constexpr std::size_t kIdentityHead = 7; ///< function, type, code, conformity, more, next, count
constexpr std::uint8_t kIdentityType = 14;

enum class Shape : std::uint8_t {
    ReadBits,
    ReadRegisters,
    WriteCoil,
    WriteOne,
    WriteBits,
    WriteMany,
    Mask,
    Identify
};

struct ShapeRow {
    Function function;
    Shape shape;
};

constexpr std::array kShapes{
    ShapeRow{Function::ReadCoils, Shape::ReadBits},
    ShapeRow{Function::ReadDiscrete, Shape::ReadBits},
    ShapeRow{Function::ReadHolding, Shape::ReadRegisters},
    ShapeRow{Function::ReadInput, Shape::ReadRegisters},
    ShapeRow{Function::WriteCoil, Shape::WriteCoil},
    ShapeRow{Function::WriteOne, Shape::WriteOne},
    ShapeRow{Function::WriteCoils, Shape::WriteBits},
    ShapeRow{Function::WriteMany, Shape::WriteMany},
    ShapeRow{Function::MaskWrite, Shape::Mask},
    ShapeRow{Function::Identify, Shape::Identify},
};

Shape shapeOf(const Request& request)
{
    return std::ranges::find(kShapes, request.function, &ShapeRow::function)->shape;
}

void put(Bytes& bytes, std::uint16_t word)
{
    bytes.push_back(static_cast<std::uint8_t>(word >> 8U));
    bytes.push_back(static_cast<std::uint8_t>(word & 0xFFU));
}

/// The bytes of a list of registers or coils as a request or a reply carries it.
std::size_t listBytes(Shape shape, std::size_t count)
{
    constexpr std::size_t kBits = 8;
    const bool bits = shape == Shape::ReadBits || shape == Shape::WriteBits;
    return bits ? (count + kBits - 1) / kBits : 2 * count;
}

/// What stands between function code and list, and is what a write is answered with.
Bytes head(const Request& request, Shape shape)
{
    Bytes bytes{static_cast<std::uint8_t>(request.function)};
    put(bytes, request.address);
    if (shape == Shape::WriteCoil)
        put(bytes, request.values[0] != 0 ? kOn : 0);
    else if (shape == Shape::WriteOne)
        put(bytes, request.values[0]);
    else if (shape != Shape::Mask)
        put(bytes, request.count);
    else
        for (const std::uint16_t word : request.values)
            put(bytes, word);
    return bytes;
}

Reply judgeRead(const Request& request, Shape shape, std::span<const std::uint8_t> pdu)
{
    const std::size_t wanted = listBytes(shape, request.count);
    if (pdu.size() != wanted + 2 || pdu[1] != wanted)
        return failed(Fault::OtherLength);
    Reply reply;
    reply.outcome = Outcome::Answered;
    for (std::size_t i = 0; i < request.count; ++i)
        reply.registers.push_back(static_cast<std::uint16_t>(
            shape == Shape::ReadBits ? std::uint32_t{pdu[2 + i / 8]} >> i % 8 & 1U
                                     : std::uint32_t{pdu[2 + 2 * i]} << 8U | std::uint32_t{pdu[3 + 2 * i]}));
    return reply;
}

/// Where the texts of an identification end; nothing while the last has not come whole.
std::optional<std::size_t> identitySize(std::span<const std::uint8_t> pdu)
{
    if (pdu.size() < kIdentityHead)
        return std::nullopt;
    std::size_t end = kIdentityHead;
    for (int left = pdu[kIdentityHead - 1]; left > 0; --left) {
        if (end + 2 > pdu.size())
            return std::nullopt;
        end += 2U + pdu[end + 1];
    }
    return end;
}

Reply judgeIdentity(const Request& request, std::span<const std::uint8_t> pdu)
{
    if (identitySize(pdu) != pdu.size() || pdu[1] != kIdentityType || pdu[2] != request.count)
        return failed(Fault::OtherLength);
    Reply reply;
    reply.outcome = Outcome::Answered;
    reply.nextText = pdu[4] != 0 ? pdu[5] : std::uint8_t{0};
    for (std::size_t at = kIdentityHead; at < pdu.size(); at += 2U + pdu[at + 1]) {
        const auto text = pdu.subspan(at + 2, pdu[at + 1]);
        reply.texts[pdu[at]] = std::string(text.begin(), text.end());
    }
    return reply;
}

} // namespace

Reply failed(Fault fault, std::string words)
{
    Reply reply;
    reply.fault = fault;
    const std::string_view known = reasonOf(fault);
    reply.reason = known.empty() ? std::move(words) : std::string(known);
    return reply;
}

Request writeRequest(std::uint16_t address, Registers values, bool coils, bool several)
{
    const auto count = static_cast<std::uint16_t>(values.size());
    const bool one = count == 1 && !several;
    const Function function = one ? (coils ? Function::WriteCoil : Function::WriteOne)
                                  : (coils ? Function::WriteCoils : Function::WriteMany);
    return {function, address, count, std::move(values)};
}

Bytes requestPdu(const Request& request)
{
    const Shape shape = shapeOf(request);
    if (shape == Shape::Identify)
        return {static_cast<std::uint8_t>(request.function), kIdentityType,
                static_cast<std::uint8_t>(request.count), static_cast<std::uint8_t>(request.address)};
    Bytes bytes = head(request, shape);
    if (shape != Shape::WriteBits && shape != Shape::WriteMany)
        return bytes;
    bytes.push_back(static_cast<std::uint8_t>(listBytes(shape, request.count)));
    if (shape == Shape::WriteMany) {
        for (const std::uint16_t word : request.values)
            put(bytes, word);
        return bytes;
    }
    const std::size_t begin = bytes.size();
    bytes.resize(begin + listBytes(shape, request.count));
    for (std::size_t i = 0; i < request.values.size(); ++i)
        bytes[begin + i / 8] |= static_cast<std::uint8_t>((request.values[i] & 1U) << i % 8);
    return bytes;
}

std::optional<std::size_t> replySize(const Request& request, std::span<const std::uint8_t> begin)
{
    if (begin.empty())
        return std::nullopt;
    const unsigned function = static_cast<std::uint8_t>(request.function);
    if (begin[0] == (function | kRefusedBit))
        return 2;
    if (begin[0] != function)
        return 0;
    const Shape shape = shapeOf(request);
    if (shape == Shape::Identify)
        return identitySize(begin);
    if (shape == Shape::ReadBits || shape == Shape::ReadRegisters)
        return begin.size() < 2 ? std::nullopt : std::optional<std::size_t>(2U + begin[1]);
    return head(request, shape).size();
}

Reply judgeReply(const Request& request, std::span<const std::uint8_t> pdu)
{
    const unsigned function = static_cast<std::uint8_t>(request.function);
    if (pdu.empty())
        return failed(Fault::Empty);
    if (pdu[0] == (function | kRefusedBit)) {
        if (pdu.size() != 2 || pdu[1] == 0)
            return failed(Fault::WrongException);
        Reply reply;
        reply.outcome = Outcome::Refused;
        reply.exception = pdu[1];
        reply.reason = "exception " + std::to_string(reply.exception);
        if (const std::string_view meaning = exceptionMeaning(reply.exception); !meaning.empty())
            reply.reason.append(": ").append(meaning);
        return reply;
    }
    if (pdu[0] != function)
        return failed(Fault::OtherFunction);
    const Shape shape = shapeOf(request);
    if (shape == Shape::Identify)
        return judgeIdentity(request, pdu);
    if (!isWrite(request))
        return judgeRead(request, shape, pdu);
    if (!std::ranges::equal(pdu, head(request, shape)))
        return failed(Fault::OtherWrite);
    Reply reply;
    reply.outcome = Outcome::Answered;
    return reply;
}

} // namespace zor::monitor
