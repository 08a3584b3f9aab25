// Frames: what they say, whatever their bytes are, and how many are kept.

#include <zor/monitor/link/frame_decoder.h>
#include <zor/tests/random.h>

#include <QByteArray>
#include <gtest/gtest.h>

namespace zor::monitor {
namespace {

Frame frameOf(Frame::Kind kind, const Framing& framing, const QByteArray& bytes)
{
    Frame frame;
    frame.kind = kind;
    frame.framing = &framing;
    frame.bytes = Bytes(bytes.begin(), bytes.end());
    return frame;
}

Frame tcp(Frame::Kind kind, const char* pdu)
{
    const QByteArray data = QByteArray::fromHex(pdu);
    const auto length = static_cast<char>(data.size() + 1);
    return frameOf(kind, tcpFraming(),
                   QByteArray::fromHex("000700000000").replace(5, 1, &length, 1) + '\5' + data);
}

// What the protocol's description says of each function.
TEST(Frames, SayWhatEachFunctionCarries)
{
    struct Row {
        const char* request;
        const char* asks;
        const char* reply;
        const char* says;
    };
    for (const Row& row : {
             Row{"01 0013 000A", "1 read coils, address 19, count 10", "01 02 CD02",
                 "1 read coils, coil 19: 1 0 1 1 0 0 1 1 0 1"},
             Row{"02 00C4 0003", "2 read discrete inputs, address 196, count 3", "02 01 05",
                 "2 read discrete inputs, coil 196: 1 0 1"},
             Row{"03 006B 0002", "3 read holding registers, address 107, count 2", "03 04 022B FFFF",
                 "3 read holding registers, register 107: 555 65535"},
             Row{"04 0008 0001", "4 read input registers, address 8, count 1", "84 02",
                 "4 read input registers, exception 2 (the device does not have this address)"},
             Row{"05 00AC FF00", "5 write a coil, address 172, value 65280 (on)", "05 00AC 0001",
                 "5 write a coil, address 172, value 1 (neither on nor off)"},
             Row{"06 0001 0003", "6 write a register, address 1, value 3", "06 0001 0003",
                 "6 write a register, address 1, value 3"},
             Row{"0F 0013 000A 02 CD01", "15 write coils, address 19, count 10, coil 19: 1 0 1 1 0 0 1 1 1 0",
                 "0F 0013 000A", "15 write coils, address 19, count 10"},
             Row{"10 0001 0002 04 000A 0102", "16 write registers, address 1, count 2, register 1: 10 258",
                 "10 0001 0002 FF", "16 write registers, address 1, count 2, left over FF"},
             Row{"16 0004 00F2 0025", "22 masked write of a register, address 4, bits kept 242, bits set 37",
                 "16 0004 00F2", "22 masked write of a register, address 4, bits kept 242"},
             Row{"2B 0E 01 00", "43 device identification, kind of request 14, part 1, text 0",
                 "2B 0E 01 01 00 00 02 00 01 41 01 02 421B",
                 "43 device identification, kind of request 14, part 1, conformity 1, more follows 0, text 0, "
                 "count 2, text 0: A B?"},
             Row{"41 01", "65 unknown, left over 01", "C1 0A",
                 "65 unknown, exception 10 (the gateway has no path to the device)"},
         }) {
        const auto plain = [](std::string_view word) { return std::string(word); };
        const auto request = std::make_shared<Frame>(tcp(Frame::Kind::Request, row.request));
        Frame reply = tcp(Frame::Kind::Reply, row.reply);
        reply.request = request;
        EXPECT_EQ(summaryOf(*request, plain), row.asks);
        EXPECT_EQ(summaryOf(reply, plain), row.says);
        EXPECT_EQ(unitOf(reply), "5");
    }
    Frame serial = frameOf(Frame::Kind::Reply, rtuFraming(), QByteArray::fromHex("1103 02 0102 F9D6"));
    serial.milliseconds = 12.34;
    EXPECT_EQ(lineOf(serial), "1970-01-01T00:00:00.000Z <- unit 17  3 read holding registers, register 0: 258"
                              "  (12.3 ms)  | 11 03 02 01 02 F9 D6");
    EXPECT_EQ(decodeFrame(serial).back().meaning, "right");
    serial.bytes.back() ^= 1;
    EXPECT_EQ(decodeFrame(serial).back().meaning, "wrong");
}

TEST(FramesRandom, AnyBytesAreCoveredByFieldsWithoutAGap)
{
    tests::Random random;
    const auto below = [&](unsigned end) { return random() % end; };
    const std::vector<std::uint8_t> functions{1, 2, 3, 4, 5, 6, 15, 16, 22, 43};
    FramePointer before;
    for (int round = 0; round < 20000; ++round) {
        auto frame = std::make_shared<Frame>();
        frame->kind = static_cast<Frame::Kind>(below(3));
        frame->framing = below(2) == 0 ? &tcpFraming() : &rtuFraming();
        frame->bytes.resize(below(below(8) == 0 ? 300 : 20));
        std::ranges::generate(frame->bytes, [&] { return static_cast<std::uint8_t>(below(256)); });
        if (frame->bytes.size() > frame->framing->head)
            frame->bytes[frame->framing->head] = functions[below(10)];
        frame->request = before;
        std::size_t at = 0;
        for (const Field& field : decodeFrame(*frame)) {
            ASSERT_EQ(field.at, at) << hexOf(frame->bytes);
            at += field.size;
        }
        ASSERT_EQ(at, frame->bytes.size()) << hexOf(frame->bytes);
        ASSERT_FALSE(lineOf(*frame).empty());
        before = below(4) == 0 ? nullptr : frame;
        if (before != nullptr)
            frame->request = nullptr;
    }
}

TEST(Frames, OnlyTheLastAreKept)
{
    Frames frames;
    for (std::size_t i = 0; i < Frames::kMost + 5; ++i)
        frames.add({});
    EXPECT_EQ(frames.all().size(), Frames::kMost);
    EXPECT_EQ(frames.all().front()->number, 6U);
    EXPECT_EQ(frames.last(), Frames::kMost + 5);
}

} // namespace
} // namespace zor::monitor
