#include <zor/fuzz/target.h>
#include <zor/monitor/link/modbus.h>

namespace zor::fuzz {
namespace {

using namespace zor::monitor;

/// A request, and the bytes of a reply to it: which of them is one.
std::string play(std::string_view input)
{
    Pieces pieces(input);
    const auto address = pieces.take<std::uint16_t>();
    const std::size_t kind = pieces.below(4);
    const std::size_t count = 1 + pieces.below(kind < 2 ? 125 : 123);
    const Request request = kind < 2 ? Request{kind == 0 ? Function::ReadHolding : Function::ReadInput, address,
                                               static_cast<std::uint16_t>(count)}
                                     : writeRequest(address, Registers(kind == 2 ? 1 : count, 0x1234));
    const std::string_view rest = pieces.text(input.size());
    const std::vector<std::uint8_t> pdu(rest.begin(), rest.end());
    const Reply reply = judgeReply(request, pdu);

    const auto function = static_cast<std::uint8_t>(request.function);
    const auto high = static_cast<std::uint8_t>(address >> 8U);
    const auto low = static_cast<std::uint8_t>(address);
    std::vector<std::uint8_t> echo{function, high, low, 0, static_cast<std::uint8_t>(request.count)};
    if (request.function == Function::WriteOne)
        echo = {function, high, low, 0x12, 0x34};
    Outcome wanted = pdu == echo ? Outcome::Answered : Outcome::NoAnswer;
    if (!isWrite(request))
        wanted = pdu.size() == 2 + 2 * count && pdu[0] == function && pdu[1] == 2 * count ? Outcome::Answered
                                                                                          : Outcome::NoAnswer;
    if (pdu.size() == 2 && pdu[0] == function + 0x80 && pdu[1] != 0)
        wanted = Outcome::Refused;
    const bool isRead = !isWrite(request) && wanted == Outcome::Answered;
    if (reply.outcome != wanted || reply.registers.size() != (isRead ? count : 0) ||
        reply.reason.empty() != (wanted == Outcome::Answered))
        return "judged otherwise: " + reply.reason;
    return {};
}

const Registered kReply({"reply", play});

} // namespace
} // namespace zor::fuzz
