#pragma once

/// Run-time errors: the exceptions that the library throws. Forms add FormError; what a handler throws passes too.

#include <cstddef>
#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zor {

/// The error numbers a caller can meet. The number is the contract; the text is for people.
enum class ErrorNumber : std::int32_t {
    InvalidCall = 5,         ///< an argument makes no sense, or a line cannot be read
    Overflow = 6,            ///< a number does not fit its type, or a conversion is infinite or undefined
    SubscriptOutOfRange = 9, ///< an index outside a table
    DivisionByZero = 11,     ///< a division by a scale of 0
    TypeMismatch = 13,       ///< a value of a type that cannot be converted
    ReadOnly = 383,          ///< a derived property was written in user mode, or one that is its widget's own
    ObjectRequired = 424,    ///< no object of that name
    NoSuchMember = 438,      ///< no property or method of that name
    WrongArguments = 450,    ///< a method was called with the wrong number of arguments
};

/// The short text that goes with a number ("type mismatch").
[[nodiscard]] std::string_view errorText(ErrorNumber number) noexcept;

/// Thrown to the caller of a property, a method or a bag. A value that cannot be what is asked for changes
/// nothing; what remains of a write that fails later is said at core::Control.
class RunTimeError : public std::runtime_error {
public:
    /// `what` names what is missing or wrong, where that is known: "object required: level2". A NUL in it, which
    /// would end the text, becomes a blank; so it does below.
    explicit RunTimeError(ErrorNumber number, std::string_view what = {});

    /// What went wrong.
    [[nodiscard]] ErrorNumber number() const noexcept { return m_number; }
    /// Whether the text begins with the member that the error is about.
    [[nodiscard]] bool namesMember() const noexcept { return m_reasonAt > 0; }
    /// The text without it: `type mismatch ("abc")`. Good as long as the error.
    [[nodiscard]] std::string_view reason() const noexcept { return what() + m_reasonAt; }
    /// The same error as one of a member, and of what was handed to it, if that is given as a text:
    /// `ctx_ZorTextBox.NumberOfDigits: type mismatch ("abc")`.
    [[nodiscard]] RunTimeError of(std::string_view object, std::string_view member,
                                  std::string_view handed = {}) const;

private:
    RunTimeError(ErrorNumber number, const std::string& text, std::size_t reasonAt);

    ErrorNumber m_number;
    std::size_t m_reasonAt = 0;
};

/// What failed, in words: the text of an exception, or that it has none; "no failure" for a null pointer.
[[nodiscard]] std::string failureText(const std::exception_ptr& error);

/// Throws a RunTimeError.
[[noreturn]] void raiseError(ErrorNumber number, std::string_view what = {});

/// Runs an action on what goes by a name; an error that names nothing yet names it.
template <class Action>
decltype(auto) naming(std::string_view what, Action&& action)
{
    try {
        return action();
    } catch (const RunTimeError& error) {
        if (error.what() != errorText(error.number()))
            throw;
        raiseError(error.number(), what);
    }
}

/// Runs what is asked of an object's member; an error that names no member yet names this one. Costs nothing as
/// long as there is no error.
template <class Action>
decltype(auto) naming(std::string_view object, std::string_view member, Action&& action)
{
    try {
        return action();
    } catch (const RunTimeError& error) {
        if (error.namesMember())
            throw;
        throw error.of(object, member);
    }
}

} // namespace zor
