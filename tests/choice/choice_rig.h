#pragma once

/// Host and operator act at random on a control and on a small model of it; after every act both must tell the
/// same.

#include "core/control.h"
#include "platform/headless/container.h"
#include "platform/headless/operator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace zor::tests {

/// Texts of what was done, and of what came of it.
using Texts = std::vector<std::string>;

inline std::string joinedText(const Texts& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " ") + text;
    return all;
}

/// Writes down the events that a control raises by itself; those that only repeat a widget's are not its logic.
class OwnEvents final : public core::EventSink {
public:
    void event(core::Control&, const core::EventRow& row, platform::EventArgs) override
    {
        if (row.widget < 0)
            seen.emplace_back(row.name);
    }
    Texts seen;
};

/// A seed that is printed, and taken from ZOR_SEED to repeat a run.
inline std::uint32_t seed()
{
    const char* given = std::getenv("ZOR_SEED");
    const std::uint32_t value =
        given != nullptr ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
    std::cout << "ZOR_SEED=" << value << '\n';
    return value;
}

/// `Class` on a headless form that runs, with an operator; `Model` says what ought to be.
template <class Class, class Model>
class RandomRun : public testing::Test {
protected:
    using Act = std::function<void()>;

    RandomRun()
    {
        control->initialiseProperties();
        container.setUserMode(true);
        control->subscribe(events);
    }
    ~RandomRun() override { control->unsubscribe(events); }

    [[nodiscard]] std::int32_t pick(std::int32_t from, std::int32_t to)
    {
        return std::uniform_int_distribution<std::int32_t>(from, to)(random);
    }

    /// The operator undoes by the menu, where it is offered.
    void undo()
    {
        hands.pointer(control->surface(), platform::Pointer::RightClick);
        const bool isOffered = control->menu()->isOpen();
        ASSERT_EQ(isOffered, !model.locked);
        if (isOffered) {
            hands.chooseItem(*control->menu(), 0);
            model.undo();
        }
    }
    void setReadOnly(bool readOnly)
    {
        control->ReadOnly(readOnly);
        model.locked = readOnly;
    }

    /// `step` acts on both and says what it did; `state` tells what is to be compared of the control.
    void compare(int steps, const std::function<std::string()>& step, const std::function<std::string()>& state)
    {
        Texts done;
        for (int i = 0; i < steps; ++i) {
            events.seen.clear();
            model.events.clear();
            done.push_back(step());
            ASSERT_EQ(joinedText(events.seen), joinedText(model.events)) << "after " << joinedText(done);
            ASSERT_EQ(state(), model.state()) << "after " << joinedText(done);
            constexpr std::size_t kRemembered = 12;
            if (done.size() > kRemembered)
                done.erase(done.begin());
        }
    }

    platform::headless::HeadlessContainer container;
    platform::headless::HeadlessOperator hands{container};
    core::ControlPtr<Class> control = Class::create(container);
    OwnEvents events;
    Model model;
    std::mt19937 random{seed()};
};

inline std::string onOff(bool value) { return value ? "+" : "-"; }

} // namespace zor::tests
