// A device that is read, edited, lost and found again by one form after another: memory and handles stay as they
// were. ZOR_FORMS=1000 is a day's worth (scripts/soak).

#include <zor/tests/monitor/session_fixture.h>

#include <QDir>

#include <cstdlib>
#include <malloc.h>

namespace zor::tests {
namespace {

constexpr int kTags = 50;
constexpr int kEdits = 100;
constexpr int kRounds = 200; ///< ten thousand values a form, however fast the machine is

std::string parametersOf(int tags)
{
    std::string text = R"({"parameters": [)";
    for (int i = 0; i < tags; ++i)
        text += std::string(i == 0 ? "" : ",") + R"({"tag": "P)" + std::to_string(i) +
                R"(", "bank": "holding", "address": )" + std::to_string(i) +
                R"(, "type": "uint16", "access": "write"})";
    return text + "]}";
}

/// As soon as it is so; qWaitFor looks every ten milliseconds.
template <class Condition>
bool await(Condition condition)
{
    QElapsedTimer clock;
    for (clock.start(); !condition() && clock.elapsed() < 10 * kPatience;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

/// One form: a hundred edits are written while it is polled, and in the middle the connection is lost.
void play(Host& host, Peer& peer)
{
    for (int i = 0; i < kTags; ++i)
        host.session->bind(
            *(host.boxes["P" + std::to_string(i)] = host.add("ctx_ZorTextBox", "P" + std::to_string(i))));
    host.box("P0").setProperty("InvalidEntryEnable", false);
    host.session->start(1, kPatience);
    for (int edit = 1; edit <= kEdits; ++edit) {
        if (edit == kEdits / 2)
            peer.sockets.back()->abort();
        const int next = host.session->poller().rounds() + 1;
        ASSERT_TRUE(await([&] { return host.session->poller().rounds() >= next && !host.box("P0").CFail(); }));
        std::optional<std::vector<Written>> heard;
        host.session->onWritten = [&](const std::vector<Written>& results) { heard = results; };
        host.type("P0", std::to_string(edit));
        ASSERT_TRUE(host.session->write(host.session->pending()));
        ASSERT_TRUE(await([&] { return heard.has_value(); }));
        ASSERT_EQ(only(*heard), WriteOutcome::Written);
        ASSERT_EQ(peer.registers[0], edit);
    }
    ASSERT_TRUE(await([&] { return host.session->poller().rounds() >= kRounds; }));
    EXPECT_EQ(host.get("P" + std::to_string(kTags - 1), "DataModified"), Variant(false));
}

struct Held {
    std::size_t memory = mallinfo2().uordblks;
    qsizetype handles = QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size();
};

TEST(Soak, ADayOfPollingLeavesNothingBehind)
{
    const char* const given = std::getenv("ZOR_FORMS");
    const std::size_t forms = std::max(3UL, given == nullptr ? 0 : std::strtoul(given, nullptr, 10));
    Peer peer;
    peer.answer = [&](QTcpSocket& socket, const QByteArray& reply) {
        for (std::size_t i = 1; i < kTags; ++i)
            ++peer.registers[i];
        socket.write(reply);
    };
    const std::string parameters = parametersOf(kTags);
    std::optional<Held> before;
    std::size_t values = 0;
    for (std::size_t form = 0; form < forms && !HasFailure(); ++form) {
        if (form == 2)
            before.emplace();
        Host host(peer.serverPort(), nullptr, parameters.c_str());
        play(host, peer);
        values += static_cast<std::size_t>(host.session->poller().rounds()) * kTags;
        peer.functions.clear();
        std::erase_if(peer.sockets, [](const auto& socket) { return socket == nullptr; });
    }
    ASSERT_TRUE(before) << "no form went well";
    QTest::qWait(100); // sockets end with the next events
    const Held after;
    EXPECT_LT(after.memory, before->memory + 1'000'000);
    EXPECT_LE(after.handles, before->handles);
    std::printf("%zu values, %zu edits, %zu reconnections, %zu forms, %td kB and %td handles more\n", values,
                forms * kEdits, forms, forms,
                (static_cast<std::ptrdiff_t>(after.memory) - static_cast<std::ptrdiff_t>(before->memory)) / 1000,
                static_cast<std::ptrdiff_t>(after.handles - before->handles));
}

} // namespace
} // namespace zor::tests
