#pragma once

/// Events as data, and the listeners they go to.

#include <zor/core/mistake.h>
#include <zor/platform/depth.h>
#include <zor/platform/macros_aside.h>
#include <zor/platform/notice.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zor::core {

class Control;

/// One outgoing event of a control: its published name, the widget's report it re-raises (if any), and how
/// to call the member of the control's sink interface. Its position in the class's table, counted from 1,
/// is its published number, which no code needs: what a control raises is found by name (see `named`).
struct EventRow {
    /// Most arguments an event has.
    static constexpr std::size_t kMaxArguments = 7;

    /// Published name.
    std::string_view name;
    /// Number of the widget whose report it re-raises; -1 for none.
    int widget = -1;
    /// The report that it re-raises.
    platform::Notice notice = platform::Notice::None;
    /// Names of its arguments.
    std::array<std::string_view, kMaxArguments> arguments{};
    /// Their types; the position of a type is that of its pointer in platform::ArgRef.
    std::array<std::uint8_t, kMaxArguments> types{};
    /// Number of its arguments.
    std::size_t argumentCount = 0;
    /// Whether it ever comes: not, where the interface only declares it or no platform reports what it re-raises.
    bool isRaised = true;
    /// Calls the member of a sink interface.
    void (*call)(void* sink, platform::EventArgs args) = nullptr;
    /// When it is raised, for people; empty where the report that it re-raises says it all (`meaningOf`).
    std::string_view meaning{};

    /// The row with its meaning.
    [[nodiscard]] constexpr EventRow saying(std::string_view words) const
    {
        EventRow row = *this;
        row.meaning = words;
        return row;
    }
};

/// When an event is raised, in words for people.
[[nodiscard]] constexpr std::string_view meaningOf(const EventRow& row) noexcept
{
    if (!row.isRaised && row.notice != platform::Notice::None)
        return "Re-raised where a platform reports it; none that comes with the library does.";
    if (!row.isRaised)
        return "Part of the interface; never raised.";
    return row.meaning.empty() ? platform::meaningOf(row.notice) : row.meaning;
}

/// The events of a class in the order of their numbers, and which of them re-raises which report.
class EventTable {
public:
    /// From the rows in the order of their numbers.
    template <std::size_t N>
    consteval EventTable(const std::array<EventRow, N>& rows) : m_rows(rows)
    {
        static_assert(N < kNone);
        for (auto& ofWidget : m_numbers)
            ofWidget.fill(kNone);
        for (std::size_t i = 0; i < N; ++i) {
            const EventRow& row = rows[i];
            if (row.widget < 0 || row.notice == platform::Notice::None)
                continue;
            auto& number =
                m_numbers.at(static_cast<std::size_t>(row.widget)).at(static_cast<std::size_t>(row.notice));
            if (number == kNone)
                number = static_cast<std::uint8_t>(i);
        }
    }

    /// The event that a report of a widget is re-raised as; nullptr for none.
    [[nodiscard]] const EventRow* of(int widget, platform::Notice notice) const noexcept
    {
        assert(static_cast<std::size_t>(notice) < kNotices); // the last one is named below
        if (static_cast<std::size_t>(widget) >= kMostWidgets)
            return nullptr;
        const std::uint8_t number = m_numbers[static_cast<std::size_t>(widget)][static_cast<std::size_t>(notice)];
        return number == kNone ? nullptr : &m_rows[number];
    }

    /// Number of events.
    [[nodiscard]] constexpr std::size_t size() const noexcept { return m_rows.size(); }
    /// Event number `index` + 1.
    [[nodiscard]] constexpr const EventRow& operator[](std::size_t index) const noexcept { return m_rows[index]; }
    /// The first event.
    [[nodiscard]] constexpr auto begin() const noexcept { return m_rows.begin(); }
    /// Behind the last event.
    [[nodiscard]] constexpr auto end() const noexcept { return m_rows.end(); }

private:
    static constexpr std::size_t kMostWidgets = 16;
    static constexpr auto kNotices = static_cast<std::size_t>(platform::Notice::OLEStartDrag) + 1;
    static constexpr std::uint8_t kNone = 255;

    std::span<const EventRow> m_rows;
    std::array<std::array<std::uint8_t, kNotices>, kMostWidgets> m_numbers{};
};

/// Hears every event of a control by name: for the console, scripting hosts and adaptors.
class EventSink {
public:
    /// An event of the control. Arguments are by reference.
    virtual void event(Control& control, const EventRow& row, platform::EventArgs args) = 0;
    /// The control has been destroyed by its owner. A listener that outlives the controls it listens to takes
    /// itself away here with unsubscribe(); nothing else of the control is to be used any more.
    virtual void ended(Control& /*control*/) noexcept {}

protected:
    ~EventSink() = default;
};

/// The listeners of one control. A listener may be added or taken away while an event is under way: a new
/// one hears the next event, a removed one hears nothing more.
class SinkList {
public:
    struct Entry {
        EventSink* generic = nullptr;
        void* typed = nullptr;
        bool operator==(const Entry&) const = default;
    };

    void add(Entry entry) { m_entries.push_back(entry); }
    void remove(Entry entry) noexcept;
    [[nodiscard]] bool empty() const noexcept { return m_entries.empty(); }

    /// Calls `deliver(entry)` for each listener there was when it began.
    template <class Deliver>
    void each(Deliver&& deliver)
    {
        {
            const platform::Depth::Level level(m_depth);
            const std::size_t count = m_entries.size();
            for (std::size_t i = 0; i < count; ++i) {
                const Entry entry = m_entries[i];
                if (entry != Entry{})
                    deliver(entry);
            }
        }
        if (m_gaps && m_depth.isNone())
            closeGaps();
    }

private:
    void closeGaps() noexcept;

    std::vector<Entry> m_entries;
    platform::Depth m_depth;
    bool m_gaps = false;
};

namespace detail {

template <class M>
struct SinkMember;
template <class S, class... A>
struct SinkMember<void (S::*)(A...)> {
    using Sink = S;
    static constexpr std::size_t kCount = sizeof...(A);
    static constexpr std::array<std::uint8_t, EventRow::kMaxArguments> kTypes{
        static_cast<std::uint8_t>(platform::ArgRef(static_cast<std::remove_reference_t<A>*>(nullptr)).index())...};

    template <auto Function, class Interface, std::size_t... I>
    static void call(Interface& sink, [[maybe_unused]] platform::EventArgs args, std::index_sequence<I...>)
    {
        (sink.*Function)(*std::get<std::remove_reference_t<A>*>(args[I])...);
    }
};

} // namespace detail

/// A row for a member of a sink interface. The arguments' names must be as many as the member takes. `Interface`
/// is what subscribes: it must be named where the member is inherited.
template <auto Function, class Interface = typename detail::SinkMember<decltype(Function)>::Sink, class... Names>
constexpr EventRow event(std::string_view name, int widget, platform::Notice notice, Names... arguments)
{
    using Member = detail::SinkMember<decltype(Function)>;
    static_assert(sizeof...(Names) == Member::kCount,
                  "name as many arguments as the member of the interface takes");
    static_assert(Member::kCount <= EventRow::kMaxArguments, "raise EventRow::kMaxArguments");
    return EventRow{name,
                    widget,
                    notice,
                    {std::string_view(arguments)...},
                    Member::kTypes,
                    Member::kCount,
                    platform::isReported(notice),
                    [](void* sink, platform::EventArgs args) {
                        Member::template call<Function>(*static_cast<Interface*>(sink), args,
                                                        std::make_index_sequence<Member::kCount>{});
                    }};
}

/// A row for an event that no widget's report raises by itself.
template <auto Function, class Interface = typename detail::SinkMember<decltype(Function)>::Sink, class... Names>
constexpr EventRow ownEvent(std::string_view name, Names... arguments)
{
    EventRow row = event<Function, Interface>(name, -1, platform::Notice::None, arguments...);
    row.isRaised = true;
    return row;
}

/// A row for an event that is part of the interface and that the control never raises.
template <auto Function, class Interface = typename detail::SinkMember<decltype(Function)>::Sink, class... Names>
constexpr EventRow declared(std::string_view name, Names... arguments)
{
    EventRow row = ownEvent<Function, Interface>(name, arguments...);
    row.isRaised = false;
    return row;
}

/// The row of an event in a class's table. A name that the table does not have does not compile.
[[nodiscard]] consteval const EventRow* named(std::span<const EventRow> table, std::string_view name)
{
    const auto at = std::ranges::find(table, name, &EventRow::name);
    if (at == table.end() || !at->isRaised)
        mistake("the table has no such event, or says that it is never raised");
    return &*at;
}

} // namespace zor::core

#include <zor/platform/macros_back.h>
