#include <zor/monitor/link/framing.h>

#include <algorithm>

namespace zor::monitor {
namespace {

constexpr std::size_t kTcpHead = 7; ///< transaction, protocol, length, unit
constexpr std::size_t kFewest = 3;  ///< the least that the length counts: unit, function and a byte

unsigned wordAt(std::span<const std::uint8_t> bytes, std::size_t at)
{
    return static_cast<unsigned>(bytes[at]) << 8U | bytes[at + 1];
}

Found wrong(Fault fault, std::size_t index = 0)
{
    Found found;
    found.state = Found::State::Wrong;
    found.fault = fault;
    found.index = index;
    return found;
}

Bytes wrapTcp(const Expected& reply, const Bytes& pdu)
{
    const std::size_t length = pdu.size() + 1;
    Bytes frame;
    for (const std::size_t word : {std::size_t{reply.transaction}, std::size_t{0}, length}) {
        frame.push_back(static_cast<std::uint8_t>(word >> 8U));
        frame.push_back(static_cast<std::uint8_t>(word & 0xFFU));
    }
    frame.push_back(reply.unit);
    frame.insert(frame.end(), pdu.begin(), pdu.end());
    return frame;
}

Found findTcp(std::span<const std::uint8_t> received, std::span<const Expected> expected)
{
    Found found;
    if (received.size() < 2)
        return found;
    const auto at =
        std::ranges::find(expected, static_cast<std::uint16_t>(wordAt(received, 0)), &Expected::transaction);
    if (at == expected.end())
        return wrong(Fault::OtherTransaction);
    found.index = static_cast<std::size_t>(at - expected.begin());
    if (received.size() >= 4 && wordAt(received, 2) != 0)
        return wrong(Fault::OtherProtocol, found.index);
    if (received.size() < kTcpHead - 1)
        return found;
    const std::size_t length = wordAt(received, 4);
    if (length < kFewest || length > kLongestFrame - kTcpHead + 1)
        return wrong(Fault::ImpossibleLength, found.index);
    if (received.size() >= kTcpHead && received[kTcpHead - 1] != at->unit)
        return wrong(Fault::OtherUnit, found.index);
    found.size = kTcpHead - 1 + length;
    if (received.size() >= found.size) {
        found.state = Found::State::Whole;
        found.pdu = received.subspan(kTcpHead, length - 1);
    }
    return found;
}

Bytes wrapRtu(const Expected& reply, const Bytes& pdu)
{
    Bytes frame{reply.unit};
    frame.insert(frame.end(), pdu.begin(), pdu.end());
    const std::uint16_t sum = checksum(frame);
    frame.push_back(static_cast<std::uint8_t>(sum & 0xFFU));
    frame.push_back(static_cast<std::uint8_t>(sum >> 8U));
    return frame;
}

Found findRtu(std::span<const std::uint8_t> received, std::span<const Expected> expected)
{
    Found found;
    if (received.empty())
        return found;
    if (received[0] != expected[0].unit)
        return wrong(Fault::OtherUnit);
    const std::optional<std::size_t> size = replySize(*expected[0].request, received.subspan(1));
    if (size == 0)
        return wrong(Fault::OtherFunction);
    found.size = size.value_or(kLongestFrame) + 3;
    if (found.size > kLongestFrame && (size || received.size() >= kLongestFrame))
        return wrong(Fault::ImpossibleLength);
    if (!size || received.size() < found.size)
        return found;
    const auto frame = received.first(found.size);
    const unsigned sum = frame[found.size - 2] | static_cast<unsigned>(frame[found.size - 1]) << 8U;
    if (sum != checksum(frame.first(found.size - 2)))
        return wrong(Fault::WrongChecksum);
    found.state = Found::State::Whole;
    found.pdu = frame.subspan(1, *size);
    return found;
}

constexpr Framing kTcp{true, Fault::Silent, wrapTcp, findTcp, kTcpHead, 0};
constexpr Framing kRtu{false, Fault::LineSilent, wrapRtu, findRtu, 1, 2};

} // namespace

const Framing& tcpFraming() noexcept { return kTcp; }
const Framing& rtuFraming() noexcept { return kRtu; }

std::uint16_t checksum(std::span<const std::uint8_t> bytes) noexcept
{
    constexpr unsigned kPolynomial = 0xA001;
    unsigned sum = 0xFFFF;
    for (const std::uint8_t byte : bytes) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? sum >> 1U ^ kPolynomial : sum >> 1U;
    }
    return static_cast<std::uint16_t>(sum);
}

} // namespace zor::monitor
