#pragma once

#include <zor/controls/registration.h>
#include <zor/monitor/link/tcp_link.h>
#include <zor/monitor/session/session.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/operator.h>
#include <zor/tests/monitor/peer.h>
#include <zor/tests/monitor/times.h>

#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

#include <map>

namespace zor::tests {

using namespace zor::monitor;

/// Registers 0 to 199 of the peer hold their own address.
inline constexpr const char* kParameters = R"({
  "identity": {"type": {"bank": "input", "address": 100, "registers": 1, "type": "text"},
               "version": {"bank": "input", "address": 2, "registers": 2}},
  "parameters": [
    {"tag": "Level", "bank": "input", "address": 10, "type": "uint16", "unit": "LgthU_MM"},
    {"tag": "Limit", "bank": "holding", "address": 20, "type": "uint16", "unit": "LgthU_MM", "access": "write",
     "minimum": 0, "maximum": 1000},
    {"tag": "Wide", "bank": "holding", "address": 22, "type": "uint32", "access": "write"},
    {"tag": "Name", "bank": "holding", "address": 30, "registers": 4, "type": "text", "access": "write"},
    {"tag": "Mode", "bank": "holding", "address": 40, "type": "uint16", "access": "write",
     "entries": [{"value": 40, "text": "Forty"}, {"value": 41, "text": {"en": "More", "de": "Mehr"}}]},
    {"tag": "Flags", "bank": "holding", "address": 50, "type": "uint16", "access": "write",
     "bits": [{"bit": 1, "text": "One"}, {"bit": 4, "text": "Four"}, {"bit": 6, "text": "Six"}]},
    {"tag": "Horn", "bank": "holding", "address": 50, "type": "bit", "bit": 0, "access": "write"},
    {"tag": "Missing", "bank": "holding", "address": 300, "type": "uint16"},
    {"tag": "Gone", "bank": "holding", "address": 301, "type": "uint16", "access": "write"},
    {"tag": "Damping", "bank": "holding", "address": 60, "type": "uint16", "scale": 0.1, "unit": "TimeU_s",
     "access": "write", "maximum": 10},
    {"tag": "Ratio", "bank": "holding", "address": 70, "type": "float32", "access": "write", "minimum": 0},
    {"tag": "Far", "bank": "holding", "address": 150, "type": "int16", "access": "write"}
  ]})";

/// A session with controls on a form without a screen.
struct Host {
    explicit Host(quint16 port, Log* log = nullptr, const char* parameters = kParameters)
    {
        container.setUserMode(true);
        registerControls(classes);
        auto link = std::make_unique<TcpLink>("127.0.0.1", port, 1, kDeadline);
        session = std::make_unique<Session>(std::move(link), readParameterFile(parameters, "test"), log);
    }

    /// False when the library does not have the class yet.
    core::Control* add(const std::string& className, const std::string& tag)
    {
        const core::ClassInfo* info = classes.find(className);
        if (info == nullptr)
            return nullptr;
        controls.push_back(info->create(container));
        controls.back()->initialiseProperties();
        controls.back()->DeviceTag(tag);
        return controls.back().get();
    }
    /// A text box without limits for each of the tags, bound and read once.
    void run(const std::vector<std::string>& tags)
    {
        for (const std::string& tag : tags) {
            boxes[tag] = add("ctx_ZorTextBox", tag);
            boxes[tag]->setProperty("InvalidEntryEnable", false);
        }
        start();
    }
    void start()
    {
        for (const auto& control : controls)
            session->bind(*control);
        session->start(kPeriod, kDeadline);
        EXPECT_TRUE(untilLive());
    }
    bool untilLive()
    {
        return until([&] {
            return std::ranges::all_of(controls, [](const auto& control) {
                return control->DeviceTagNotFound() || (!control->CFail() && !control->WaitingForData());
            });
        });
    }
    template <class Condition>
    static bool until(Condition condition)
    {
        return QTest::qWaitFor(condition, kPatience);
    }
    /// Waits for whole rounds.
    void rounds(int count = 2)
    {
        const int end = session->poller().rounds() + count;
        EXPECT_TRUE(until([&] { return session->poller().rounds() >= end; }));
    }

    core::Control& box(const std::string& tag) { return *boxes.at(tag); }
    Variant get(const std::string& tag, const char* property) { return box(tag).property(property); }
    platform::TextField& field(const std::string& tag)
    {
        return dynamic_cast<platform::TextField&>(*box(tag).widget(1));
    }
    std::string text(const std::string& tag) { return field(tag).text(); }
    void type(const std::string& tag, const std::string& text)
    {
        hands.select(field(tag), 0, field(tag).text().size());
        hands.type(field(tag), text);
        hands.blur(field(tag));
    }
    /// Writes what is pending, or was, and waits for the results.
    std::vector<Written> write() { return write(session->pending()); }
    std::vector<Written> write(const std::vector<Change>& changes)
    {
        std::optional<std::vector<Written>> heard;
        session->onWritten = [&](const std::vector<Written>& results) { heard = results; };
        EXPECT_TRUE(session->write(changes));
        EXPECT_TRUE(until([&] { return heard.has_value(); }));
        session->onWritten = nullptr;
        return heard.value_or(std::vector<Written>{});
    }

    platform::headless::HeadlessContainer container;
    platform::headless::HeadlessOperator hands{container};
    core::ClassRegistry classes;
    std::vector<core::ControlPtr<>> controls;
    std::map<std::string, core::Control*> boxes;
    std::unique_ptr<Session> session;
};

/// The outcome of the one write that was made.
inline WriteOutcome only(const std::vector<Written>& results)
{
    EXPECT_EQ(results.size(), 1U);
    return results.empty() ? WriteOutcome::NotSent : results.front().result.outcome;
}

/// A device and a host without a window.
struct SessionTest : testing::Test {
    Peer peer;
    Host host{peer.serverPort()};
};

} // namespace zor::tests
