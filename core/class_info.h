#pragma once

/// A class of controls as data: its tables, and how to make one.

#include <zor/core/argument_words.h>
#include <zor/core/event_row.h>
#include <zor/core/method_row.h>
#include <zor/core/mistake.h>
#include <zor/core/property_row.h>
#include <zor/platform/container.h>
#include <zor/platform/error.h>
#include <zor/platform/macros_aside.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zor::core {

class Control;

/// Destroys a control, or, inside one of its own events, lets it end when the event has returned.
struct ControlDeleter {
    /// Destroys the control, now or when its event has ended.
    void operator()(Control* control) const noexcept;
};

/// The owner of a control.
template <class T = Control>
using ControlPtr = std::unique_ptr<T, ControlDeleter>;

/// A numbered message: hosts look its text up by the identifier and replace it by the number.
struct MessageRow {
    /// For an identifier and the property that holds the text.
    template <class C, class T>
    requires detail::isText<T>
    constexpr MessageRow(std::string_view id, const Row<C, T>* text) noexcept : identifier(id), property(text) {}

    /// Under which a host looks the text up.
    std::string_view identifier;
    /// Holds the text.
    const PropertyRow* property;
};

/// One of the states a control explains to the operator. The first row of a class's table that applies wins.
struct StatusRow {
    bool (*applies)(const Control&);
    /// Appends the state in words: the tooltip, where the class has none of its own.
    void (*toolTip)(const Control&, std::string&);
    int picture;
    /// Appends the text of the message box that a click on the state icon opens; nullptr for a state that has
    /// nothing to explain: the click then looks further down the table.
    void (*boxText)(Control&, std::string&) = nullptr;
    platform::BoxIcon boxIcon = platform::BoxIcon::Information;
    /// The click acknowledges the state: DataChanged is cleared.
    bool acknowledged = false;
};

/// The events that a control raises by itself; nullptr for one that the class never raises. `named` finds them in
/// the class's table.
struct RaisedEvents {
    const EventRow* invalid = nullptr; ///< the class's invalid flag came out true
    const EventRow* dataModifiedSetTrue = nullptr;
    const EventRow* dataModifiedReset = nullptr;
    const EventRow* outputValueChange = nullptr;
    const EventRow* changed = nullptr; ///< what the operator sees was changed, by whomever; the row says when
};

/// Where a class's write of a shared property refreshes something else than the row says.
struct EffectRow {
    const PropertyRow* property;
    Refreshes refreshes;
};

/// A widget of a class.
struct WidgetRow {
    /// Its number, for Control::widget().
    int widget;
    /// Its published name.
    std::string_view name;
    std::string_view meaning; ///< what it is to the operator
};

/// The control's own surface, which every class has.
inline constexpr WidgetRow kSurfaceRow{platform::kSurfaceWidget, "Surface", "The control's own surface."};
/// The state icon.
[[nodiscard]] constexpr WidgetRow iconRow(int widget) noexcept
{
    return {widget, "img_State", "The state icon; a click explains the state."};
}

/// A class of controls.
struct ClassInfo {
    /// Its published name.
    std::string_view name;
    /// What it is for, for people.
    std::string_view meaning{};
    /// In the order in which they are stored, the properties that are not stored last.
    std::span<const PropertyRow* const> properties;
    /// In the order in which stored properties are read; empty when that is the order of `properties`.
    std::span<const PropertyRow* const> readOrder{};
    /// In the order in which a new instance sets them.
    std::span<const PropertyRow* const> initialOrder;
    /// Numbered from 1.
    std::span<const MessageRow> messages;
    /// Answered for a number without a message.
    std::string_view otherMessage = "ERROR_RETURNED";
    /// By number.
    EventTable events;
    /// Those that the control raises by itself.
    RaisedEvents raised{};
    /// By the published order.
    std::span<const MethodRow> methods;
    /// In the order of precedence.
    std::span<const StatusRow> states;
    /// Where a write refreshes something else than the row says.
    std::span<const EffectRow> effects{};
    /// What it is composed of.
    std::span<const WidgetRow> widgets;
    /// What a control that is nothing but its picture stands for: its tooltip in every state, and its name for a
    /// screen reader. nullptr: the tooltip is the state in words, and the name is DeviceTag.
    std::string_view (*subject)(const Control&) = nullptr;
    /// A write that fails on the way stays, with all that was done before the failing step; else it is undone.
    bool keepsFailedWrites = false;
    /// Title of the message boxes; nullptr for MessageHeader alone.
    std::string (*boxTitle)(const Control&) = nullptr;
    /// Makes one, not yet initialised.
    ControlPtr<> (*create)(platform::Container&);

    /// What the class is called where it is a ready-made widget ("ZorTextBox").
    [[nodiscard]] constexpr std::string_view widgetName() const noexcept
    {
        return name.starts_with(kPrefix) ? name.substr(kPrefix.size()) : name;
    }
    /// What the published name has before that.
    static constexpr std::string_view kPrefix = "ctx_";

    /// By name; nullptr for another name.
    [[nodiscard]] const PropertyRow* property(std::string_view property) const noexcept;
    /// By name; nullptr for another name.
    [[nodiscard]] const MethodRow* method(std::string_view method) const noexcept;
    /// By name; nullptr for another name.
    [[nodiscard]] const EventRow* event(std::string_view event) const noexcept;
};

/// ClassInfo::create of a class. A function, for a lambda in its place loses its argument with clang++ 14 as
/// C++23.
template <class C>
[[nodiscard]] ControlPtr<> created(platform::Container& container)
{
    return C::create(container);
}

/// A class's tables, looked over at compile time: everything in them says what it means.
[[nodiscard]] consteval ClassInfo complete(const ClassInfo& info)
{
    if (info.meaning.empty())
        mistake("a class has no meaning: say what it is for");
    for (const PropertyRow* row : info.properties) {
        if (row->meaning.empty())
            mistake("a property has no meaning: add .saying(\"...\") to its row");
    }
    for (const MethodRow& row : info.methods) {
        if (row.meaning.empty())
            mistake("a method has no meaning: add .saying(\"...\") to its row");
        for (std::size_t i = 0; i < row.argumentCount; ++i) {
            if (argumentMeaning(row.arguments[i].name).empty())
                mistake("an argument of a method has no words in core/argument_words.h");
        }
    }
    for (const EventRow& row : info.events) {
        if (row.isRaised && row.notice == platform::Notice::None && row.meaning.empty())
            mistake("an event has no meaning: add .saying(\"...\") to its row");
        for (std::size_t i = 0; i < row.argumentCount; ++i) {
            if (argumentMeaning(row.arguments[i]).empty())
                mistake("an argument of an event has no words in core/argument_words.h");
        }
    }
    for (const WidgetRow& row : info.widgets) {
        if (row.meaning.empty())
            mistake("a widget has no meaning: say it in its row");
    }
    return info;
}

/// What a program offers of one kind, by name.
template <class Info>
class Registry {
public:
    /// The information must live as long as the registry; a second one of the same name raises InvalidCall.
    void add(const Info& info)
    {
        if (find(info.name) != nullptr)
            raiseError(ErrorNumber::InvalidCall, std::string(info.name).append(" is registered already"));
        m_rows.push_back(&info);
    }
    /// By name; nullptr for another name.
    [[nodiscard]] const Info* find(std::string_view name) const noexcept
    {
        const auto at = std::ranges::find(m_rows, name, &Info::name);
        return at == m_rows.end() ? nullptr : *at;
    }
    /// All, in the order in which they were added.
    [[nodiscard]] std::span<const Info* const> rows() const noexcept { return m_rows; }

private:
    std::vector<const Info*> m_rows;
};

/// The classes of controls that a program offers.
class ClassRegistry : public Registry<ClassInfo> {
public:
    /// All classes, in the order in which they were added.
    [[nodiscard]] std::span<const ClassInfo* const> classes() const noexcept { return rows(); }
};

} // namespace zor::core

#include <zor/platform/macros_back.h>
