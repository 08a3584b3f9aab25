#pragma once

/// A method as data: its published name, what it takes and answers, and how to call it by name.

#include <zor/core/property_row.h>

#include <array>
#include <cassert>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace zor::core {

/// What a method answers: nothing, a value, or an array.
using MethodResult = std::variant<std::monostate, Variant, std::vector<Variant>>;

/// A method as data.
struct MethodRow {
    /// Most arguments a method has.
    static constexpr std::size_t kMaxArguments = 3;

    /// One argument.
    struct Argument {
        /// As published.
        std::string_view name;
        /// What may be passed.
        ValueKind kind = ValueKind::Any;
    };
    /// What comes back.
    enum class Answers : std::uint8_t { Nothing, Value, Array };

    /// Published name.
    std::string_view name;
    /// From left to right.
    std::array<Argument, kMaxArguments> arguments{};
    /// How many of them count.
    std::size_t argumentCount = 0;
    /// Nothing, a value or an array.
    Answers answers = Answers::Nothing;
    ValueKind result = ValueKind::Any; ///< kind of the value, or of the array's elements
    /// The arguments must be as many as the method takes. TypeMismatch and Overflow for values that do not fit.
    MethodResult (*call)(Control&, std::span<const Variant>) = nullptr;
    /// What it does, for people.
    std::string_view meaning{};

    /// The row with its meaning.
    [[nodiscard]] constexpr MethodRow saying(std::string_view words) const
    {
        MethodRow row = *this;
        row.meaning = words;
        return row;
    }
};

namespace detail {

template <class M>
struct Method;
template <class C, class R, class... A, bool N>
struct Method<R (C::*)(A...) noexcept(N)> {
    using Class = C;
    using Result = std::remove_cvref_t<R>;
    using Arguments = std::tuple<std::remove_cvref_t<A>...>;
};
template <class C, class R, class... A, bool N>
struct Method<R (C::*)(A...) const noexcept(N)> : Method<R (C::*)(A...)> {};

/// Texts are kept while the method runs, so that it may take a view of them.
template <class T>
using Held = std::conditional_t<std::is_same_v<T, std::string_view>, std::string, T>;

template <class R>
struct Answer {
    static constexpr auto kAnswers = MethodRow::Answers::Value;
    static constexpr ValueKind kKind = kindOf<R>();
    static MethodResult from(const R& result) { return toVariant(result); }
};
template <>
struct Answer<void> {
    static constexpr auto kAnswers = MethodRow::Answers::Nothing;
    static constexpr ValueKind kKind = ValueKind::Any;
};
template <class T>
struct Answer<std::vector<T>> {
    static constexpr auto kAnswers = MethodRow::Answers::Array;
    static constexpr ValueKind kKind = kindOf<T>();
    static MethodResult from(const std::vector<T>& result)
    {
        return std::vector<Variant>(result.begin(), result.end());
    }
};

template <auto Function, class Traits, std::size_t... I>
MethodResult callMethod(Control& control, [[maybe_unused]] std::span<const Variant> values,
                        std::index_sequence<I...>)
{
    assert(values.size() == sizeof...(I)); // Control::call refuses any other number
    auto& object = static_cast<typename Traits::Class&>(control);
    [[maybe_unused]] const std::tuple<Held<std::tuple_element_t<I, typename Traits::Arguments>>...> held{
        convertTo<Held<std::tuple_element_t<I, typename Traits::Arguments>>>(values[I])...};
    if constexpr (std::is_void_v<typename Traits::Result>) {
        (object.*Function)(std::get<I>(held)...);
        return {};
    } else {
        return Answer<typename Traits::Result>::from((object.*Function)(std::get<I>(held)...));
    }
}

template <class Traits, std::size_t... I>
constexpr std::array<MethodRow::Argument, MethodRow::kMaxArguments>
namedArguments([[maybe_unused]] std::array<std::string_view, sizeof...(I)> names, std::index_sequence<I...>)
{
    return {MethodRow::Argument{names[I], kindOf<std::tuple_element_t<I, typename Traits::Arguments>>()}...};
}

} // namespace detail

/// A row for a member function of a control. The arguments' names must be as many as the function takes.
template <auto Function, class... Names>
constexpr MethodRow method(std::string_view name, Names... arguments)
{
    using Traits = detail::Method<decltype(Function)>;
    constexpr std::size_t kCount = std::tuple_size_v<typename Traits::Arguments>;
    static_assert(sizeof...(Names) == kCount && kCount <= MethodRow::kMaxArguments);
    using Indices = std::make_index_sequence<kCount>;
    return MethodRow{name,
                     detail::namedArguments<Traits>({std::string_view(arguments)...}, Indices{}),
                     kCount,
                     detail::Answer<typename Traits::Result>::kAnswers,
                     detail::Answer<typename Traits::Result>::kKind,
                     [](Control& control, std::span<const Variant> values) {
                         return detail::callMethod<Function, Traits>(control, values, Indices{});
                     }};
}

} // namespace zor::core
