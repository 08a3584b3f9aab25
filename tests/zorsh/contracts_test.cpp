// What each public member promises of errors, tried on every row of every class with arguments that nobody means
// well.

#include <zor/fuzz/target.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/operator.h>
#include <zor/tests/error_of.h>
#include <zor/tests/random.h>
#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zor::tests {
namespace {

const std::vector<Variant>& hostile()
{
    static const std::vector<Variant> all = [] {
        std::vector<Variant> values{std::int16_t{-1}, HUGE_VAL, -HUGE_VAL, std::nan(""),
                                    "\xff\xc0\xaf\xed\xa0\x80"};
        for (const char letter : {'9', 'x'})
            values.emplace_back(std::string(5000, letter));
        for (const std::string_view word : console::words(
                 "Empty True False 0 1 2 11 14 15 53 -32768 32767 40000 -2147483648 2147483647 0.5 -2.5 32767.5 "
                 "5e-324 2147483647.5 1e15 1e308 -1e308 \"\" \" \" \"12\" \"1,5\" \"-1e308\" \"1e400\" \"True\" "
                 "\"abc\" \"<b>&amp;\\n\\t\" \"a\\u{0}b\""))
            values.push_back(console::parseValue(word));
        return values;
    }();
    return all;
}

/// What a value becomes as a kind; an error where it does not fit.
void convert(const Variant& value, core::ValueKind kind)
{
    if (value.holds<double>() && !std::isfinite(value.number()))
        raiseError(ErrorNumber::Overflow);
    switch (kind) {
    case core::ValueKind::Boolean: static_cast<void>(value.toBoolean()); break;
    case core::ValueKind::Int16: static_cast<void>(value.toInt16()); break;
    case core::ValueKind::Double: static_cast<void>(value.toDouble()); break;
    case core::ValueKind::Colour:
        if (value.toDouble() < std::numeric_limits<std::int32_t>::min() ||
            value.toDouble() > std::numeric_limits<std::uint32_t>::max())
            raiseError(ErrorNumber::Overflow);
        break;
    case core::ValueKind::Text:
    case core::ValueKind::Any: break;
    default: static_cast<void>(value.toInt32());
    }
}

/// A control of which everything is compared.
class Subject : public core::EventSink {
public:
    Subject(const core::ClassInfo& info, bool userMode) : control(info.create(m_container))
    {
        control->initialiseProperties();
        m_container.setUserMode(userMode);
        m_container.onPropertyChanged = [this](auto&, auto) { ++heard; };
        control->subscribe(*this);
        for (const core::PropertyRow* row : info.properties) {
            if (errorOf([&] { static_cast<void>(control->get(*row)); }) == 0)
                m_readable.push_back(row);
        }
        for (const core::WidgetRow& row : info.widgets) {
            for (const char* name : {"Width",     "Height",        "BackColor", "Left",     "Top",  "Visible",
                                     "Enabled",   "ToolTipText",   "ForeColor", "Caption",  "Text", "Locked",
                                     "SelStart",  "SelLength",     "Picture",   "Value",    "Min",  "Max",
                                     "TickStyle", "TickFrequency", "ListCount", "ListIndex"}) {
                const platform::Widget& widget = *control->widget(row.widget);
                if (errorOf([&] { static_cast<void>(console::aspect(widget, name)); }) == 0)
                    m_aspects.emplace_back(&widget, name);
            }
        }
    }
    ~Subject()
    {
        if (control)
            control->unsubscribe(*this);
    }
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;

    void event(core::Control&, const core::EventRow& row, platform::EventArgs) override
    {
        ++heard;
        if (onEvent)
            onEvent(row);
    }
    /// Every property, and what can be seen of every widget.
    [[nodiscard]] std::vector<Variant> state() const
    {
        std::vector<Variant> all;
        for (const core::PropertyRow* row : m_readable) {
            all.emplace_back();
            errorOf([&] { all.back() = control->get(*row); });
            EXPECT_TRUE(!all.back().holds<double>() || std::isfinite(all.back().number())) << row->name;
        }
        for (const auto& [widget, name] : m_aspects)
            all.push_back(console::aspect(*widget, name).value);
        return all;
    }
    /// The operator touches everything.
    void operate()
    {
        for (const core::WidgetRow& row : control->info().widgets) {
            platform::Widget* const widget = control == nullptr ? nullptr : control->widget(row.widget);
            const int error = errorOf([&] {
                if (auto* field = dynamic_cast<platform::TextField*>(widget)) {
                    m_hands.type(*field, "1");
                    if (control)
                        m_hands.blur(*field);
                } else if (auto* spin = dynamic_cast<platform::SpinButton*>(widget)) {
                    m_hands.spin(*spin, true);
                } else if (auto* track = dynamic_cast<platform::Track*>(widget)) {
                    m_hands.moveTo(*track, track->maximum());
                } else if (auto* combo = dynamic_cast<platform::ComboBox*>(widget)) {
                    m_hands.choose(*combo, 0);
                } else if (auto* list = dynamic_cast<platform::ListBox*>(widget)) {
                    m_hands.toggle(*list, 0);
                } else if (auto* button = dynamic_cast<platform::ToggleButton*>(widget)) {
                    m_hands.press(*button);
                } else if (widget != nullptr) {
                    m_hands.pointer(*widget, platform::Pointer::Click);
                }
            });
            EXPECT_TRUE(error == 0 || error == 6 || error == 9 || error == 11) << row.name << ": error " << error;
        }
    }

    int heard = 0; ///< events and notifications
    std::function<void(const core::EventRow&)> onEvent;

private:
    platform::headless::HeadlessContainer m_container;
    platform::headless::HeadlessOperator m_hands{m_container};

public:
    core::ControlPtr<> control;

private:
    std::vector<const core::PropertyRow*> m_readable;
    std::vector<std::pair<const platform::Widget*, const char*>> m_aspects;
};

/// Values, units and limits in the way, and entries to choose from.
void furnish(core::Control& control)
{
    for (const auto& setting :
         std::initializer_list<std::pair<const char*, Variant>>{{"UnitType", 0},
                                                                {"DeviceUnit", 2},
                                                                {"OutputUnit", 1},
                                                                {"MaxValue", 1e6},
                                                                {"DeviceValue", 12},
                                                                {"InvalidEntryEnable", false},
                                                                {"DeviceTypeSupported", "a,b"},
                                                                {"DeviceMinVersionSupported", "1,2"}})
        errorOf([&] { control.setProperty(setting.first, setting.second); });
    for (const char* add : {"AddEnumEntry", "AddBitFieldEntry"})
        errorOf([&] { control.call(add, std::array<Variant, 2>{"entry", 0}); });
}

/// Writes what fits the property's kind. What a later step refuses leaves the property as it was, where the class
/// says so.
void putFitting(core::Control& control, const core::PropertyRow& row, const Variant& value)
{
    Variant old;
    const bool isReadable = errorOf([&] { old = control.get(row); }) == 0;
    const int error = errorOf([&] { control.put(row, value); });
    EXPECT_TRUE(error == 0 || error == 6 || error == 9 || error == 11 || error == 13 ||
                (error == 383 && row.access != core::Access::ReadWrite))
        << "error " << error;
    EXPECT_TRUE(error == 0 || !isReadable || control.get(row) == old || control.info().keepsFailedWrites);
}

/// Tries what does not fit: it is refused, and nothing has changed.
void putUnfit(Subject& subject, const core::PropertyRow& row)
{
    const std::vector<Variant> before = subject.state();
    const int heard = subject.heard;
    for (const Variant& value : hostile()) {
        const int unfit = errorOf([&] { convert(value, row.field.kind); });
        const int error = unfit == 0 ? 0 : errorOf([&] { subject.control->put(row, value); });
        EXPECT_TRUE(error == unfit || (error == 383 && row.access != core::Access::ReadWrite) ||
                    (error == 0 && row.access == core::Access::Derived))
            << console::print(value) << ": error " << error;
    }
    EXPECT_EQ(subject.heard, heard);
    EXPECT_TRUE(subject.state() == before);
}

TEST(Contracts, OfAPropertyHoldForEveryValue)
{
    for (const core::ClassInfo* info : fuzz::classes().classes()) {
        for (const core::PropertyRow* row : info->properties) {
            for (const bool isRunning : {false, true}) {
                SCOPED_TRACE(std::string(info->name) + '.' + std::string(row->name));
                Subject subject(*info, isRunning);
                if (isRunning)
                    furnish(*subject.control);
                for (const Variant& value : hostile()) {
                    if (errorOf([&] { convert(value, row->field.kind); }) == 0)
                        putFitting(*subject.control, *row, value);
                }
                putUnfit(subject, *row);
                subject.operate();
            }
        }
    }
}

TEST(Contracts, OfAMethodHoldForEveryArgument)
{
    for (const core::ClassInfo* info : fuzz::classes().classes()) {
        for (const core::MethodRow& row : info->methods) {
            Subject subject(*info, true);
            furnish(*subject.control);
            const std::size_t count = hostile().size();
            for (std::size_t i = 0; i < count * std::max<std::size_t>(1, row.argumentCount) && !HasFailure();
                 ++i) {
                SCOPED_TRACE(std::string(info->name) + '.' + std::string(row.name) + ' ' + std::to_string(i));
                // One after the other is hostile, the others are harmless; then one too many.
                std::vector<Variant> arguments(row.argumentCount, 0);
                int unfit = 0;
                if (!arguments.empty()) {
                    arguments[i / count] = hostile()[i % count];
                    unfit = errorOf([&] { convert(hostile()[i % count], row.arguments[i / count].kind); });
                }
                const std::vector<Variant> before = unfit == 0 ? std::vector<Variant>() : subject.state();
                const int error = errorOf([&] { subject.control->call(row.name, arguments); });
                EXPECT_TRUE(error == unfit || (unfit == 0 && (error == 6 || error == 9))) << "error " << error;
                EXPECT_TRUE(unfit == 0 || subject.state() == before);
                arguments.emplace_back();
                EXPECT_EQ(errorOf([&] { subject.control->call(row.name, arguments); }), 450);
            }
            subject.operate();
        }
    }
}

/// Whatever a handler calls, of a control that it has destroyed as well, which is silent from then on.
TEST(Contracts, HoldInsideHandlersAndAfterTheEndRandom)
{
    Random random;
    const auto below = [&](std::size_t count) { return random() % count; };
    for (const core::ClassInfo* info : fuzz::classes().classes()) {
        for (int round = 0; round < 40 && !HasFailure(); ++round) {
            SCOPED_TRACE(std::string(info->name) + " round " + std::to_string(round));
            Subject subject(*info, round % 2 == 1);
            furnish(*subject.control);
            core::Control* const control = subject.control.get();
            int depth = 0;
            const auto meddle = [&](core::Control& target) {
                const Variant& value = hostile()[below(hostile().size())];
                if (below(4) == 0) {
                    const core::MethodRow& row = info->methods[below(info->methods.size())];
                    errorOf([&] { target.call(row.name, std::vector<Variant>(row.argumentCount, value)); });
                } else {
                    const core::PropertyRow& row = *info->properties[below(info->properties.size())];
                    errorOf([&] { target.put(row, value); });
                }
            };
            subject.onEvent = [&](const core::EventRow&) {
                if (++depth < 4) {
                    meddle(*control);
                    if (below(60) == 0)
                        subject.control.reset();
                    const int heard = subject.heard;
                    for (int i = 0; i < 10 && !subject.control; ++i)
                        meddle(*control);
                    EXPECT_TRUE(subject.control || subject.heard == heard);
                }
                --depth;
            };
            for (int step = 0; step < 40 && subject.control; ++step) {
                if (below(4) == 0)
                    subject.operate();
                else
                    meddle(*control);
            }
        }
    }
}

} // namespace
} // namespace zor::tests
