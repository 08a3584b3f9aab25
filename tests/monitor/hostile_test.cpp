// A device that answers rightly, or wrongly in one way or two, as a seed says: nothing hangs, nothing is shown
// live that is not, no edit is lost, no write is sent twice, memory stays flat. ZOR_EXCHANGES=N plays longer
// (scripts/soak).

#include <zor/tests/monitor/session_fixture.h>
#include <zor/tests/random.h>

#include <cstdlib>
#include <malloc.h>

namespace zor::tests {
namespace {

constexpr std::size_t kLevel = 10; ///< counts the requests, so that what is old shows
constexpr std::size_t kLimit = 20; ///< what the operator edits

class HostilePeer : public Peer {
public:
    explicit HostilePeer(std::mt19937& random) : m_random(random)
    {
        answer = [this](QTcpSocket& socket, const QByteArray& reply) {
            registers[kLevel] = ++requests;
            if (below(3) != 0)
                socket.write(m_old = reply);
            else
                answerWrongly(socket, reply);
        };
    }
    std::size_t below(std::size_t count) { return m_random() % count; }
    /// Begins anew; another form numbers its transactions as this one did.
    void forget()
    {
        m_old.clear();
        registers[kLevel] = requests = 0;
    }

    std::uint16_t requests = 0;
    std::size_t closed = 0;

private:
    void answerWrongly(QTcpSocket& socket, QByteArray reply)
    {
        switch (below(9)) {
        case 0: break;
        case 1: reply.truncate(static_cast<qsizetype>(below(static_cast<std::size_t>(reply.size())))); break;
        case 2: reply += QByteArray(static_cast<qsizetype>(1 + below(300)), 'z'); break;
        case 3: reply += reply; break;
        case 4: reply = QByteArray(70000, static_cast<char>(below(256))); break;
        case 5: reply = m_old; break;
        case 6:
            reply = reply.left(8) + static_cast<char>(below(16));
            reply[5] = 3;
            reply[7] = static_cast<char>(static_cast<quint8>(reply[7]) | 0x80U);
            break;
        case 7:
            QTimer::singleShot(static_cast<int>(below(60)), &socket, [&socket, reply] { socket.write(reply); });
            return;
        default: ++closed; return socket.abort();
        }
        // Any field in front of the data, alone or with the above. What is old stays so.
        if (reply.size() > 8 && reply != m_old)
            reply[static_cast<qsizetype>(below(9))] = static_cast<char>(below(256));
        socket.write(reply);
    }

    QByteArray m_old;
    std::mt19937& m_random;
};

/// A form at the device: after each round it is judged what it shows.
class Watched : public Host {
public:
    explicit Watched(HostilePeer& peer) : Host(peer.serverPort()), m_peer(peer)
    {
        for (const char* tag : {"Level", "Limit"})
            boxes[tag] = add("ctx_ZorTextBox", tag);
        box("Limit").setProperty("InvalidEntryEnable", false);
        for (const auto& control : controls)
            session->bind(*control);
        session->onRound = [this](bool) {
            ++rounds;
            if (isLive("Level")) {
                const int shown = get("Level", "DeviceValue").toInt32();
                EXPECT_GE(shown, m_before) << "shown live, and it is not";
                EXPECT_LE(shown, m_peer.requests);
            }
            m_before = m_peer.requests;
        };
        session->start(5, 100);
    }
    bool isLive(const std::string& tag)
    {
        return !box(tag).CFail() && !box(tag).DataNotAvailable() && !box(tag).WaitingForData();
    }
    /// An edit, and its write where there is a connection; it stays until the device holds it.
    void edit(int value)
    {
        const std::string wanted = std::to_string(value);
        if (isLive("Limit"))
            type("Limit", wanted);
        if (text("Limit") != wanted)
            return;
        const auto sent = [this] { return std::ranges::count(m_peer.functions, 6); };
        const auto before = sent();
        std::optional<std::vector<Written>> results;
        session->onWritten = [&](const std::vector<Written>& all) { results = all; };
        if (session->write(session->pending())) {
            EXPECT_TRUE(until([&] { return results.has_value(); })) << "hangs";
            EXPECT_LE(sent(), before + 1) << "sent twice";
            for (const Written& one : results.value_or(std::vector<Written>{}))
                EXPECT_TRUE(one.result.outcome != WriteOutcome::Written || m_peer.registers[kLimit] == value);
        }
        session->onWritten = nullptr;
        EXPECT_EQ(text("Limit"), wanted) << "the edit was lost";
        ++edits;
    }

    std::size_t rounds = 0;
    std::size_t edits = 0;

private:
    HostilePeer& m_peer;
    int m_before = 0;
};

TEST(HostilePeers, AreSurvivedRandom)
{
    const char* const given = std::getenv("ZOR_EXCHANGES");
    const std::size_t exchanges = given == nullptr ? 120 : std::strtoul(given, nullptr, 10);
    Random random;
    HostilePeer peer(random);
    std::size_t done = 0, rounds = 0, edits = 0, forms = 0, memory = 0;
    while (done < exchanges && !testing::Test::HasFailure()) {
        peer.forget();
        Watched form(peer);
        for (int step = 0; step < 12; ++step) {
            form.edit(static_cast<int>(1 + peer.below(999)));
            const std::size_t next = form.rounds + 1 + peer.below(4);
            EXPECT_TRUE(Host::until([&] { return form.rounds >= next; })) << "hangs";
        }
        done += peer.functions.size();
        peer.functions.clear();
        std::erase_if(peer.sockets, [](const auto& socket) { return socket == nullptr; });
        rounds += form.rounds;
        edits += form.edits;
        EXPECT_GT(form.edits, 0U) << "the device was never there";
        if (++forms == 2)
            memory = mallinfo2().uordblks;
    }
    if (given != nullptr) {
        EXPECT_LT(mallinfo2().uordblks, memory + 1'000'000) << "memory grows";
        std::printf("%zu exchanges, %zu rounds, %zu edits, %zu connections cut, %zu forms, %td kB more\n", done,
                    rounds, edits, peer.closed, forms,
                    (static_cast<std::ptrdiff_t>(mallinfo2().uordblks) - static_cast<std::ptrdiff_t>(memory)) /
                        1000);
    }
}

} // namespace
} // namespace zor::tests
