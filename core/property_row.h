#pragma once

/// A property as data: one row says everything that storing, naming, notifying and refreshing need.

#include "platform/variant.h"
#include "units/unit_types.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace zor::core {

class Control;

/// What a property holds. The enumerations accept any 32-bit integer.
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
    Silent,  ///< read and write; a write does not notify the container
    Derived, ///< a write raises ReadOnly in user mode and is ignored at design time
};

struct PropertyRow {
    std::string_view name;
    FieldSpec field{};
    /// The property bag's key; empty for a property that is not stored.
    std::string_view key{};
    /// The default passed to the bag, and the initial value of a new instance unless `initial` says otherwise.
    Literal bagDefault{};
    Literal initial{};
    Access access = Access::ReadWrite;
    Refreshes refreshes{};
    /// Runs after the refreshes.
    void (*after)(Control&) = nullptr;
    /// For a property that is not simply a field.
    Variant (*get)(Control&) = nullptr;
    void (*put)(Control&, const Variant&) = nullptr;
};

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
    else if constexpr (std::is_same_v<T, std::string>)
        return ValueKind::Text;
    else if constexpr (std::is_same_v<T, UNIT_TYPE>)
        return ValueKind::UnitType;
    else if constexpr (std::is_same_v<T, MEAS_TYPE>)
        return ValueKind::MeasType;
    else if constexpr (std::is_same_v<T, REGISTER_TYPE>)
        return ValueKind::RegisterType;
    else if constexpr (std::is_same_v<T, ENTRY_TYPE>)
        return ValueKind::EntryType;
    else {
        static_assert(std::is_same_v<T, Variant>);
        return ValueKind::Any;
    }
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

} // namespace detail

/// The field reached from a control by a path of member pointers: field<&T::m_value>, or
/// field<&Control::m_flags, &Flags::cFail>.
template <auto First, auto... Rest>
inline constexpr FieldSpec field{
    detail::kindOf<typename detail::Last<First, Rest...>::Type>(), [](Control& control) -> FieldRef {
        auto& owner = static_cast<typename detail::Member<decltype(First)>::Class&>(control);
        return &((owner.*First).*....*Rest);
    }};

} // namespace zor::core
