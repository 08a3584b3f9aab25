#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/variant.h>

#include <cmath>
#include <utility>

namespace zor {
namespace {

template <class Integer>
Integer roundTo(double value)
{
    constexpr double kBeyondAll = 4e9;
    if (!(std::fabs(value) < kBeyondAll))
        raiseError(ErrorNumber::Overflow);
    // Cutting off is the same in every floating-point mode, and leaves a rest that is exact.
    auto whole = static_cast<std::int64_t>(value);
    const double rest = value - static_cast<double>(whole);
    const bool isOdd = (whole & 1) != 0;
    if (rest > 0.5 || (rest == 0.5 && isOdd))
        ++whole;
    else if (rest < -0.5 || (rest == -0.5 && isOdd))
        --whole;
    if (!std::in_range<Integer>(whole))
        raiseError(ErrorNumber::Overflow);
    return static_cast<Integer>(whole);
}

template <class Integer>
Integer toInteger(const Variant& value)
{
    if (const auto* small = std::get_if<std::int16_t>(&value.storage()))
        return *small;
    return roundTo<Integer>(value.toDouble());
}

} // namespace

std::int32_t roundToInt32(double value) { return roundTo<std::int32_t>(value); }

std::int16_t roundToInt16(double value) { return roundTo<std::int16_t>(value); }

void Variant::raiseOverflow() { raiseError(ErrorNumber::Overflow); }

double Variant::toDouble() const
{
    if (isNumber())
        return number();
    if (const auto* flag = std::get_if<bool>(&m_value))
        return *flag ? -1.0 : 0.0;
    if (const auto* string = std::get_if<std::string>(&m_value))
        return platform::textToDouble(*string);
    return 0.0;
}

bool Variant::toBoolean() const
{
    if (const auto* flag = std::get_if<bool>(&m_value))
        return *flag;
    if (isText() && (text() == "True" || text() == "False"))
        return text() == "True";
    return toDouble() != 0.0;
}

std::int16_t Variant::toInt16() const { return toInteger<std::int16_t>(*this); }

std::int32_t Variant::toInt32() const
{
    if (const auto* value = std::get_if<std::int32_t>(&m_value))
        return *value;
    return toInteger<std::int32_t>(*this);
}

std::string Variant::toText() const
{
    if (isText())
        return text();
    if (const auto* flag = std::get_if<bool>(&m_value))
        return *flag ? "True" : "False";
    if (isNumber())
        return platform::doubleToText(number());
    return {};
}

bool operator==(const Variant& left, const Variant& right) noexcept
{
    if (left.isNumber() && right.isNumber())
        return left.number() == right.number();
    if (left.m_value.index() != right.m_value.index())
        return false;
    if (left.isText())
        return left.text() == right.text();
    const auto* flag = std::get_if<bool>(&left.m_value);
    return flag == nullptr || *flag == *std::get_if<bool>(&right.m_value);
}

} // namespace zor
