#pragma once

/// A property as data: one row says everything that storing, naming, notifying and refreshing need.

#include <zor/platform/variant.h>
#include <zor/units/unit_types.h>

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace zor::core {

class Control;

/// What a property, an argument or a result holds. The enumerations accept any 32-bit integer.
enum class ValueKind : std::uint8_t {
    Boolean,
    Int16,
    Int32,
    Double,
    Text,
    Any,
    UnitType,
    MeasType,
    RegisterType,
    EntryType,
    Colour, ///< a 32-bit colour, written as a signed or an unsigned integer
};

/// The name of a kind, for people ("16-bit integer").
[[nodiscard]] std::string_view kindName(ValueKind kind) noexcept;

/// A constant in a table.
using Literal = std::variant<std::monostate, bool, std::int32_t, double, std::string_view>;

[[nodiscard]] Variant toVariant(const Literal& literal);

/// Where a control keeps a property.
using FieldRef = std::variant<bool*, std::int16_t*, std::int32_t*, double*, std::string*, Variant*, UNIT_TYPE*,
                              MEAS_TYPE*, REGISTER_TYPE*, ENTRY_TYPE*>;

/// The value of a field.
[[nodiscard]] Variant valueOf(const FieldRef& field);

/// Converts to the field's type and stores; TypeMismatch or Overflow leave the field as it was.
void storeInto(const FieldRef& field, const Variant& value);

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

/// One property. A row is built from property<>() or computedRow<>() by the steps below, each of which gives a
/// row with one thing more said:
///
///     fieldRow<&This::m_minValue>("MinValue").stored(0.0).then<&This::s_UpdateMinParamValue>()
struct PropertyRow {
    std::string_view name;
    FieldSpec field{};
    /// The property bag's key; empty for a property that is not stored.
    std::string_view key{};
    /// The default passed to the bag, and the initial value of a new instance unless `initial` says otherwise.
    Literal bagDefault{};
    /// Stored whatever its value; bagDefault is what a bag without the key means.
    bool isAlwaysStored = false;
    Literal initial{};
    Access access = Access::ReadWrite;
    bool storesField = false;
    Refreshes refreshes{};
    /// Runs after the refreshes.
    void (*after)(Control&) = nullptr;
    /// For a property that is not simply a field, or whose write is not a plain write. A row with neither a
    /// field nor the function has no such accessor.
    Variant (*get)(Control&) = nullptr;
    void (*put)(Control&, const Variant&) = nullptr;

    /// Stored under the property's own name.
    [[nodiscard]] constexpr PropertyRow stored(Literal defaultValue) const { return storedAs(name, defaultValue); }
    [[nodiscard]] constexpr PropertyRow storedAs(std::string_view bagKey, Literal defaultValue) const
    {
        PropertyRow row = *this;
        row.key = bagKey;
        row.bagDefault = defaultValue;
        return row;
    }
    /// Stored under the property's own name also where it equals the default.
    [[nodiscard]] constexpr PropertyRow alwaysStored(Literal defaultValue) const
    {
        PropertyRow row = stored(defaultValue);
        row.isAlwaysStored = true;
        return row;
    }
    /// The value of a new instance: where it differs from the bag's default, or where nothing is stored.
    [[nodiscard]] constexpr PropertyRow initially(Literal value) const
    {
        PropertyRow row = *this;
        row.initial = value;
        return row;
    }
    [[nodiscard]] constexpr PropertyRow with(Access answer) const
    {
        PropertyRow row = *this;
        row.access = answer;
        return row;
    }
    [[nodiscard]] constexpr PropertyRow refreshing(std::initializer_list<Refresh> list) const
    {
        PropertyRow row = *this;
        row.refreshes = list;
        return row;
    }
    /// Runs a member function `void f()` of the control, or a lambda `void (Class&)`, after the refreshes.
    template <auto Function>
    [[nodiscard]] constexpr PropertyRow then() const;
    /// Writes through `Put(Class&, T)` instead of straight into the field.
    template <auto Put>
    [[nodiscard]] constexpr PropertyRow written() const;
    /// Reads through `Get(Class&)`: the field only carries what is written or loaded to the place that keeps it.
    template <auto Get>
    [[nodiscard]] constexpr PropertyRow reading() const;
    /// Stores the field as it stands, whatever reading makes of it.
    [[nodiscard]] constexpr PropertyRow storingField() const
    {
        PropertyRow row = *this;
        row.storesField = true;
        return row;
    }
};

/// No property is infinite or undefined: raises Overflow for such a number.
void requireFinite(const Variant& value);

namespace detail {

template <class T>
consteval ValueKind kindOf()
{
    if constexpr (std::is_same_v<T, bool>)
        return ValueKind::Boolean;
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return ValueKind::Int16;
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return ValueKind::Int32;
    else if constexpr (std::is_same_v<T, double>)
        return ValueKind::Double;
    else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, std::string_view>)
        return ValueKind::Text;
    else if constexpr (std::is_same_v<T, UNIT_TYPE>)
        return ValueKind::UnitType;
    else if constexpr (std::is_same_v<T, MEAS_TYPE>)
        return ValueKind::MeasType;
    else if constexpr (std::is_same_v<T, REGISTER_TYPE>)
        return ValueKind::RegisterType;
    else if constexpr (std::is_same_v<T, ENTRY_TYPE>)
        return ValueKind::EntryType;
    else if constexpr (std::is_same_v<T, std::uint32_t>)
        return ValueKind::Colour;
    else {
        static_assert(std::is_same_v<T, Variant>);
        return ValueKind::Any;
    }
}

/// A colour out of a number: a system colour has the highest bit set, so it may come as a negative number.
[[nodiscard]] std::uint32_t toColour(const Variant& value);

/// The value as a T. TypeMismatch and Overflow as the variant's own conversions.
template <class T>
[[nodiscard]] T convertTo(const Variant& value)
{
    requireFinite(value);
    if constexpr (std::is_same_v<T, bool>)
        return value.toBoolean();
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return value.toInt16();
    else if constexpr (std::is_same_v<T, double>)
        return value.toDouble();
    else if constexpr (std::is_same_v<T, std::string>)
        return value.toText();
    else if constexpr (std::is_same_v<T, Variant>)
        return value;
    else if constexpr (std::is_same_v<T, std::uint32_t>)
        return toColour(value);
    else
        return static_cast<T>(value.toInt32());
}

template <class T>
[[nodiscard]] Variant toVariant(const T& value)
{
    if constexpr (std::is_enum_v<T>)
        return static_cast<std::int32_t>(value);
    else
        return Variant(value);
}

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

/// A row for a property that is a field of the control.
template <auto First, auto... Rest>
[[nodiscard]] constexpr PropertyRow fieldRow(std::string_view name)
{
    return {name, field<First, Rest...>};
}

/// A row for a property that a function answers: `Get(Class&)`. It cannot be written unless `written` says how.
template <auto Get>
[[nodiscard]] constexpr PropertyRow computedRow(std::string_view name)
{
    PropertyRow row{name, {detail::kindOf<typename detail::Accessor<decltype(Get)>::Value>()}};
    row.access = Access::ReadOnly;
    return row.reading<Get>();
}

/// A row for a property that can only be written.
template <auto Put>
[[nodiscard]] constexpr PropertyRow writeOnlyRow(std::string_view name)
{
    PropertyRow row{name, {detail::kindOf<typename detail::Accessor<decltype(Put)>::Value>()}};
    return row.written<Put>();
}

template <auto Function>
constexpr PropertyRow PropertyRow::then() const
{
    PropertyRow row = *this;
    if constexpr (std::is_member_pointer_v<decltype(Function)>)
        row.after = [](Control& control) {
            (static_cast<typename detail::Member<decltype(Function)>::Class&>(control).*Function)();
        };
    else
        row.after = [](Control& control) {
            Function(static_cast<typename detail::Accessor<decltype(Function)>::Class&>(control));
        };
    return row;
}

template <auto Get>
constexpr PropertyRow PropertyRow::reading() const
{
    PropertyRow row = *this;
    row.get = [](Control& control) {
        return detail::toVariant(Get(static_cast<typename detail::Accessor<decltype(Get)>::Class&>(control)));
    };
    return row;
}

template <auto Put>
constexpr PropertyRow PropertyRow::written() const
{
    using Traits = detail::Accessor<decltype(Put)>;
    PropertyRow row = *this;
    if (row.access == Access::ReadOnly)
        row.access = Access::Silent;
    row.put = [](Control& control, const Variant& value) {
        Put(static_cast<typename Traits::Class&>(control), detail::convertTo<typename Traits::Value>(value));
    };
    return row;
}

} // namespace zor::core
