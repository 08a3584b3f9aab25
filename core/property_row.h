#pragma once

/// A property as data: one row says everything that storing, naming, notifying and refreshing need.

#include <zor/core/mistake.h>
#include <zor/core/value_kind.h>
#include <zor/platform/macros_aside.h>

#include <array>
#include <initializer_list>
#include <utility>

namespace zor::core {

class Control;

/// A row's field: its kind, and how to find it in a control.
struct FieldSpec {
    ValueKind kind = ValueKind::Any;
    FieldRef (*at)(Control&) = nullptr;
};

/// The procedures that a write of a shared property runs.
enum class Refresh : std::uint8_t { Status, Colours, Enabled, Support, CheckType, CheckVersion };

/// Up to three of them, in the order in which they run.
class Refreshes {
public:
    constexpr Refreshes() noexcept = default;
    constexpr Refreshes(std::initializer_list<Refresh> list) noexcept
    {
        for (const Refresh refresh : list)
            m_list[m_count++] = refresh;
    }
    [[nodiscard]] constexpr const Refresh* begin() const noexcept { return m_list.data(); }
    [[nodiscard]] constexpr const Refresh* end() const noexcept { return m_list.data() + m_count; }

private:
    std::array<Refresh, 3> m_list{};
    std::uint8_t m_count = 0;
};

/// How a property answers a write.
enum class Access : std::uint8_t {
    ReadWrite,
    Silent,   ///< read and write; a write does not notify the container
    Derived,  ///< a write raises ReadOnly in user mode and is ignored at design time
    ReadOnly, ///< a write raises ReadOnly always: the value is a widget's own
};

/// What a property is about: its heading in a form designer's property editor.
enum class Topic : std::uint8_t { Appearance, Parameter, Value, Units, Range, State, Messages };

/// When a form that is read sets a property: no write may disturb an earlier one.
enum class Placing : std::uint8_t {
    ByKind, ///< enumerations, then numbers, variants, texts and flags
    Device, ///< the device's value: in the units and the range that stand by then
    Chosen, ///< overrules the device's value
};

/// One property, for those who read all rows alike. Rows are built as Row<Class, Type>.
struct PropertyRow {
    /// Published name.
    std::string_view name;
    /// Its heading.
    Topic topic = Topic::Appearance;
    /// Where it is kept.
    FieldSpec field{};
    /// What it means, for people: unit, range, and what a host does with it.
    std::string_view meaning{};
    /// The property bag's key; empty for a property that is not stored.
    std::string_view key{};
    /// The default passed to the bag, and the initial value of a new instance unless `initial` says otherwise.
    Literal bagDefault{};
    /// Stored whatever its value; bagDefault is what a bag without the key means.
    bool isAlwaysStored = false;
    /// Value of a new instance, where it is not the default.
    Literal initial{};
    /// How it answers a write.
    Access access = Access::ReadWrite;
    /// The bag gets the field, not what the accessor answers.
    bool storesField = false;
    /// When a form sets it.
    Placing placing = Placing::ByKind;
    /// A text that names something to the device or the program, not to people: no translator sees it.
    bool isIdentifier = false;
    /// Can change without being written itself. A derived value always can.
    bool isLive = false;
    /// What a write refreshes.
    Refreshes refreshes{};
    /// Runs after the refreshes.
    void (*after)(Control&) = nullptr;
    /// For a property that is not simply a field, or whose write is not a plain write. A row with neither a
    /// field nor the function has no such accessor.
    Variant (*get)(Control&) = nullptr;
    /// Writes it.
    void (*put)(Control&, const Variant&) = nullptr;

    /// Whether its value follows from others: nobody sets it but the control.
    [[nodiscard]] constexpr bool isFollowing() const noexcept
    {
        return access == Access::Derived || access == Access::ReadOnly;
    }
    /// Whether a form has it as a property of the widget.
    [[nodiscard]] constexpr bool isInForms() const noexcept { return !key.empty() && !isFollowing(); }
};

namespace detail {

/// Whether a constant of type V is a value of a property of type T.
template <class T, class V>
consteval bool isConstantOf()
{
    if constexpr (std::is_same_v<T, Variant>)
        return std::is_arithmetic_v<V> || std::is_convertible_v<V, std::string_view>;
    else if constexpr (isText<T>)
        return std::is_convertible_v<V, std::string_view>;
    else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>)
        return std::is_integral_v<V> && !std::is_same_v<V, bool>;
    else
        return std::is_same_v<T, V>;
}

} // namespace detail

/// A constant that a property of type T can have.
template <class T>
struct Constant {
    Literal literal;

    template <class V>
    consteval Constant(V value)
        : literal(literalOf(value)) // NOLINT(google-explicit-constructor): reads as the value
    {
        static_assert(detail::isConstantOf<T, V>(),
                      "the constant is of another type than the property: write one of the property's own type");
    }

private:
    template <class V>
    static consteval Literal literalOf(V value)
    {
        if constexpr (std::is_convertible_v<V, std::string_view>)
            return std::string_view(value);
        else if constexpr (std::is_enum_v<V> || (std::is_integral_v<V> && !std::is_same_v<V, bool>)) {
            if constexpr (std::is_integral_v<V> && std::is_integral_v<T> && !std::is_same_v<T, bool>) {
                if (!std::in_range<T>(value))
                    mistake("the constant does not fit the property's type");
            }
            return static_cast<std::int32_t>(value);
        } else {
            return value;
        }
    }
};

/// A row of a property of type T that controls of class C have. It starts as fieldRow<>(), computedRow<>() or
/// writeOnlyRow<>(); each step gives a row with one thing more said:
///
///     fieldRow<&This::m_minValue>("MinValue", Topic::Range).stored(0.0).then<&This::s_UpdateMinParamValue>()
template <class C, class T>
struct Row : PropertyRow {
    using Class = C;
    using Type = T;

    /// The field in a control of the class; nullptr for a property that is none.
    T& (*in)(Control&) = nullptr;

    /// Stored under the property's own name.
    [[nodiscard]] constexpr Row stored(Constant<T> defaultValue) const { return storedAs(name, defaultValue); }
    [[nodiscard]] constexpr Row storedAs(std::string_view bagKey, Constant<T> defaultValue) const
    {
        return changed([&](Row& row) {
            row.key = bagKey;
            row.bagDefault = defaultValue.literal;
        });
    }
    /// Stored under the property's own name also where it equals the default.
    [[nodiscard]] constexpr Row alwaysStored(Constant<T> defaultValue) const
    {
        return stored(defaultValue).changed([](Row& row) { row.isAlwaysStored = true; });
    }
    /// The value of a new instance: where it differs from the bag's default, or where nothing is stored.
    [[nodiscard]] constexpr Row initially(Constant<T> value) const
    {
        return changed([&](Row& row) { row.initial = value.literal; });
    }
    [[nodiscard]] constexpr Row with(Access answer) const
    {
        return changed([&](Row& row) { row.access = answer; });
    }
    /// What it means, in words for people.
    [[nodiscard]] constexpr Row saying(std::string_view words) const
    {
        return changed([&](Row& row) { row.meaning = words; });
    }
    [[nodiscard]] constexpr Row placed(Placing when) const
    {
        return changed([&](Row& row) { row.placing = when; });
    }
    /// Names something to the device or the program, not to people.
    [[nodiscard]] constexpr Row identifier() const
    {
        static_assert(std::is_same_v<T, std::string>, "only a text can be an identifier");
        return changed([](Row& row) { row.isIdentifier = true; });
    }
    [[nodiscard]] constexpr Row refreshing(std::initializer_list<Refresh> list) const
    {
        return changed([&](Row& row) { row.refreshes = list; });
    }
    /// Says that the operator, the device or another property's write can change it.
    [[nodiscard]] constexpr Row live() const
    {
        return changed([](Row& row) { row.isLive = true; });
    }
    /// Runs a member function `void f()` of the control, or a lambda `void (Class&)`, after the refreshes.
    template <auto Function>
    [[nodiscard]] constexpr Row then() const;
    /// Writes through `Put(Class&, T)` instead of straight into the field.
    template <auto Put>
    [[nodiscard]] constexpr Row written() const;
    /// Reads through `Get(Class&)`: the field only carries what is written or loaded to the place that keeps it.
    template <auto Get>
    [[nodiscard]] constexpr Row reading() const;
    /// Stores the field as it stands, whatever reading makes of it.
    [[nodiscard]] constexpr Row storingField() const
    {
        return changed([](Row& row) { row.storesField = true; });
    }

    template <class Change>
    [[nodiscard]] constexpr Row changed(Change&& change) const
    {
        Row row = *this;
        change(row);
        return row;
    }
};

/// The rows of a table, each of its own type, as a table of rows read alike.
template <class... R>
[[nodiscard]] constexpr std::array<const PropertyRow*, sizeof...(R)> rows(const R*... row)
{
    return {row...};
}

namespace detail {

template <class M>
struct Member;
template <class C, class T>
struct Member<T C::*> {
    using Class = C;
    using Type = T;
};

template <auto First, auto... Rest>
struct Last : Last<Rest...> {};
template <auto Only>
struct Last<Only> : Member<decltype(Only)> {};

/// Class and value of a getter lambda `R (Class&)` or a setter lambda `void (Class&, T)`.
template <class F>
struct Accessor : Accessor<decltype(&F::operator())> {};
template <class L, class R, class C>
struct Accessor<R (L::*)(C&) const> {
    using Class = C;
    using Value = std::remove_cvref_t<R>;
};
template <class L, class C>
struct Accessor<void (L::*)(C&) const> {
    using Class = C;
};
template <class L, class C, class T>
struct Accessor<void (L::*)(C&, T) const> {
    using Class = C;
    using Value = std::remove_cvref_t<T>;
};

} // namespace detail

/// The field reached from a control by a path of member pointers: field<&T::m_value>, or
/// field<&Control::m_flags, &Flags::cFail>.
template <auto First, auto... Rest>
inline constexpr FieldSpec field{
    detail::kindOf<typename detail::Last<First, Rest...>::Type>(), [](Control& control) -> FieldRef {
        auto& owner = static_cast<typename detail::Member<decltype(First)>::Class&>(control);
        return &((owner.*First).*....*Rest);
    }};

namespace detail {

/// The object as the class that a step's function belongs to: the row's own, or one that it derives from.
template <class RowClass, class Wanted>
Wanted& as(Control& control)
{
    static_assert(std::is_base_of_v<Wanted, RowClass>, "the function belongs to another class than the row");
    return static_cast<Wanted&>(control);
}

} // namespace detail

/// A row for a property that is a field of the control.
template <auto First, auto... Rest>
[[nodiscard]] constexpr auto fieldRow(std::string_view name, Topic topic)
{
    using Class = typename detail::Member<decltype(First)>::Class;
    using Type = typename detail::Last<First, Rest...>::Type;
    return Row<Class, Type>{{name, topic, field<First, Rest...>}, [](Control& control) -> Type& {
                                return ((static_cast<Class&>(control).*First).*....*Rest);
                            }};
}

/// A row for a property that a function answers: `Get(Class&)`. It cannot be written unless `written` says how.
template <auto Get>
[[nodiscard]] constexpr auto computedRow(std::string_view name, Topic topic)
{
    using Traits = detail::Accessor<decltype(Get)>;
    using Type = typename Traits::Value;
    return Row<typename Traits::Class, Type>{{name, topic, {detail::kindOf<Type>()}}}
        .with(Access::ReadOnly)
        .template reading<Get>();
}

/// A row for a property that can only be written.
template <auto Put>
[[nodiscard]] constexpr auto writeOnlyRow(std::string_view name, Topic topic)
{
    using Traits = detail::Accessor<decltype(Put)>;
    using Type = typename Traits::Value;
    return Row<typename Traits::Class, Type>{{name, topic, {detail::kindOf<Type>()}}}.template written<Put>();
}

template <class C, class T>
template <auto Function>
constexpr Row<C, T> Row<C, T>::then() const
{
    return changed([](Row& row) {
        if constexpr (std::is_member_pointer_v<decltype(Function)>)
            row.after = [](Control& control) {
                (detail::as<C, typename detail::Member<decltype(Function)>::Class>(control).*Function)();
            };
        else
            row.after = [](Control& control) {
                Function(detail::as<C, typename detail::Accessor<decltype(Function)>::Class>(control));
            };
    });
}

template <class C, class T>
template <auto Get>
constexpr Row<C, T> Row<C, T>::reading() const
{
    using Traits = detail::Accessor<decltype(Get)>;
    static_assert(std::is_same_v<typename Traits::Value, T>,
                  "the function reads another type than the property's");
    return changed([](Row& row) {
        row.get = [](Control& control) {
            return detail::toVariant(Get(detail::as<C, typename Traits::Class>(control)));
        };
    });
}

template <class C, class T>
template <auto Put>
constexpr Row<C, T> Row<C, T>::written() const
{
    using Traits = detail::Accessor<decltype(Put)>;
    static_assert(std::is_same_v<typename Traits::Value, T>,
                  "the function writes another type than the property's");
    return changed([](Row& row) {
        if (row.access == Access::ReadOnly)
            row.access = Access::Silent;
        row.put = [](Control& control, const Variant& value) {
            Put(detail::as<C, typename Traits::Class>(control), detail::convertTo<T>(value));
        };
    });
}

} // namespace zor::core

#include <zor/platform/macros_back.h>
