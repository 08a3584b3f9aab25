#include <zor/platform/error.h>

#include <string>

namespace zor {

std::string_view errorText(ErrorNumber number) noexcept
{
    switch (number) {
    case ErrorNumber::InvalidCall: return "invalid call";
    case ErrorNumber::Overflow: return "overflow";
    case ErrorNumber::SubscriptOutOfRange: return "subscript out of range";
    case ErrorNumber::DivisionByZero: return "division by zero";
    case ErrorNumber::TypeMismatch: return "type mismatch";
    case ErrorNumber::ReadOnly: return "property is read-only";
    case ErrorNumber::ObjectRequired: return "object required";
    case ErrorNumber::NoSuchMember: return "no such property or method";
    case ErrorNumber::WrongArguments: return "wrong number of arguments";
    }
    return "unknown error";
}

RunTimeError::RunTimeError(ErrorNumber number)
    : std::runtime_error(std::string(errorText(number))), m_number(number)
{}

void raiseError(ErrorNumber number) { throw RunTimeError(number); }

} // namespace zor
