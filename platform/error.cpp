#include <zor/platform/error.h>

#include <algorithm>
#include <string>
#include <utility>

namespace zor {
namespace {

std::string withoutNuls(std::string text)
{
    std::ranges::replace(text, '\0', ' ');
    return text;
}

std::string fullText(ErrorNumber number, std::string_view what)
{
    std::string text(errorText(number));
    return what.empty() ? text : withoutNuls(text.append(": ").append(what));
}

} // namespace

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

RunTimeError::RunTimeError(ErrorNumber number, std::string_view what)
    : std::runtime_error(fullText(number, what)), m_number(number)
{}

RunTimeError::RunTimeError(ErrorNumber number, const std::string& text, std::size_t reasonAt)
    : std::runtime_error(text), m_number(number), m_reasonAt(reasonAt)
{}

RunTimeError RunTimeError::of(std::string_view object, std::string_view member, std::string_view handed) const
{
    std::string text(object);
    text.append(".").append(member).append(": ");
    const std::size_t reasonAt = text.size() + m_reasonAt;
    text.append(what());
    if (!handed.empty())
        text.append(" (").append(handed).append(")");
    return {m_number, withoutNuls(std::move(text)), reasonAt};
}

std::string failureText(const std::exception_ptr& error)
{
    if (!error)
        return "no failure";
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& exception) {
        return exception.what();
    } catch (...) {
        return "failed without a word";
    }
}

void raiseError(ErrorNumber number, std::string_view what) { throw RunTimeError(number, what); }

} // namespace zor
