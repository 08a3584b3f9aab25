#pragma once

/// Events as data, and the listeners they go to.

#include <zor/platform/notice.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zor::core {

class Control;

/// One outgoing event of a control: its published name, the widget's report it re-raises (if any), and how
/// to call the member of the control's sink interface. Its position in the class's table, counted from 1,
/// is its published number.
struct EventRow {
    static constexpr std::size_t kMaxArguments = 7;

    std::string_view name;
    int widget = -1;
    platform::Notice notice = platform::Notice::None;
    std::array<std::string_view, kMaxArguments> arguments{};
    /// Their types; the position of a type is that of its pointer in platform::ArgRef.
    std::array<std::uint8_t, kMaxArguments> types{};
    std::size_t argumentCount = 0;
    void (*call)(void* sink, platform::EventArgs args) = nullptr;
};

/// Hears every event of a control by name: for the console, scripting hosts and adaptors.
class EventSink {
public:
    virtual void event(Control& control, const EventRow& row, platform::EventArgs args) = 0;
    /// The control has been destroyed by its owner; it is not to be used any more. A listener that outlives the
    /// controls it listens to takes itself away here.
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
        const Iteration iteration(*this);
        const std::size_t count = m_entries.size();
        for (std::size_t i = 0; i < count; ++i) {
            const Entry entry = m_entries[i];
            if (entry != Entry{})
                deliver(entry);
        }
    }

private:
    struct Iteration {
        explicit Iteration(SinkList& list) noexcept : list(list) { ++list.m_depth; }
        ~Iteration();
        Iteration(const Iteration&) = delete;
        Iteration& operator=(const Iteration&) = delete;
        SinkList& list;
    };

    std::vector<Entry> m_entries;
    std::uint16_t m_depth = 0;
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
    static_assert(sizeof...(Names) == Member::kCount && Member::kCount <= EventRow::kMaxArguments);
    return EventRow{name,
                    widget,
                    notice,
                    {std::string_view(arguments)...},
                    Member::kTypes,
                    Member::kCount,
                    [](void* sink, platform::EventArgs args) {
                        Member::template call<Function>(*static_cast<Interface*>(sink), args,
                                                        std::make_index_sequence<Member::kCount>{});
                    }};
}

/// A row for an event that no widget's report raises by itself.
template <auto Function, class Interface = typename detail::SinkMember<decltype(Function)>::Sink, class... Names>
constexpr EventRow ownEvent(std::string_view name, Names... arguments)
{
    return event<Function, Interface>(name, -1, platform::Notice::None, arguments...);
}

/// One table of events out of several parts, in their order.
template <std::size_t... N>
constexpr auto joinedEvents(const std::array<EventRow, N>&... parts)
{
    std::array<EventRow, (N + ...)> all{};
    auto at = all.begin();
    ((at = std::copy(parts.begin(), parts.end(), at)), ...);
    return all;
}

} // namespace zor::core
