#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/powers_of_ten.h>
#include <zor/platform/regional.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace zor::platform {
namespace {

/// A double as its shortest decimal: digits d1 d2 d3 ..., value 0.d1d2d3... x 10^point.
struct Decimal {
    std::array<char, 24> digits{};
    int count = 0;
    int point = 0;
    bool negative = false;
};

Decimal shortest(double value)
{
    if (!std::isfinite(value))
        raiseError(ErrorNumber::Overflow);
    Decimal result;
    result.negative = std::signbit(value);
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::scientific);
    const char* at = buffer.data();
    for (; *at != 'e'; ++at) {
        if (*at != '.')
            result.digits[static_cast<std::size_t>(result.count++)] = *at;
    }
    ++at;
    if (*at == '+')
        ++at;
    int exponent = 0;
    std::from_chars(at, end.ptr, exponent);
    result.point = exponent + 1;
    if (result.digits[0] == '0')
        result.count = 0;
    return result;
}

/// Cuts to `keep` digits, rounding half away from zero.
void roundTo(Decimal& decimal, int keep)
{
    if (keep >= decimal.count)
        return;
    const bool up = keep >= 0 && decimal.digits[static_cast<std::size_t>(keep)] >= '5';
    decimal.count = keep < 0 ? 0 : keep;
    if (!up)
        return;
    int at = decimal.count - 1;
    while (at >= 0 && decimal.digits[static_cast<std::size_t>(at)] == '9')
        --at;
    if (at < 0) {
        decimal.digits[0] = '1';
        decimal.count = 1;
        ++decimal.point;
        return;
    }
    ++decimal.digits[static_cast<std::size_t>(at)];
    decimal.count = at + 1;
}

/// The digits from position `from` to `to`, counted from the first one that is not zero; zeros where there are
/// none.
void appendDigits(std::string& text, const Decimal& decimal, int from, int to)
{
    const int first = std::clamp(0, from, to);
    const int last = std::clamp(decimal.count, first, to);
    text.append(static_cast<std::size_t>(first - from), '0');
    text.append(decimal.digits.data() + first, static_cast<std::size_t>(last - first));
    text.append(static_cast<std::size_t>(to - last), '0');
}

void dropTrailingZeros(Decimal& decimal)
{
    while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0')
        --decimal.count;
}

/// The value in whole units of 10^-decimals, rounded as its shortest decimal, where that needs no shortest
/// decimal: the middle between two such numbers of 14 digits has 15, so it is a shortest decimal itself, and a
/// value has reached it when it has reached the double nearest to it. Nothing for larger numbers.
std::optional<std::uint64_t> roundedShort(double magnitude, int decimals) noexcept
{
    constexpr double kLimit = 1e14;
    if (decimals < 0 || std::cmp_greater_equal(decimals, kPowersOfTen.size()))
        return std::nullopt;
    const double power = kPowersOfTen[static_cast<std::size_t>(decimals)];
    const double scaled = magnitude * power;
    if (!(scaled < kLimit))
        return std::nullopt;
    const auto whole = static_cast<std::int64_t>(scaled);
    const double middle = (static_cast<double>(whole) + 0.5) / power;
    return static_cast<std::uint64_t>(magnitude >= middle ? whole + 1 : whole);
}

/// "00" to "99": every division yields two digits.
constexpr auto kPairs = [] {
    std::array<std::array<char, 2>, 100> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {static_cast<char>('0' + i / 10), static_cast<char>('0' + i % 10)};
    return pairs;
}();

/// A decimal separator of at most so many bytes leaves room for all digits below.
constexpr std::size_t kLongestPoint = 8;

/// The text of a number of units of 10^-decimals, of 15 digits at the most.
std::string shortText(bool isNegative, std::uint64_t number, std::size_t decimals, std::string_view point)
{
    std::array<char, 2 * kPowersOfTen.size()> buffer{};
    static_assert(buffer.size() >= 1 + kPowersOfTen.size() + kLongestPoint); // a sign, 0 and its decimals
    char* const end = buffer.data() + buffer.size();
    char* at = end; // from the last character to the first
    const auto putPair = [&] {
        at -= 2;
        std::copy_n(kPairs[number % 100].data(), 2, at);
        number /= 100;
    };
    const auto putDigit = [&] {
        *--at = static_cast<char>('0' + number % 10);
        number /= 10;
    };
    if (decimals > 0) {
        for (; decimals > 1; decimals -= 2)
            putPair();
        if (decimals == 1)
            putDigit();
        for (auto byte = point.rbegin(); byte != point.rend(); ++byte)
            *--at = *byte;
    }
    while (number >= 100)
        putPair();
    if (number >= 10)
        putPair();
    else
        putDigit();
    if (isNegative)
        *--at = '-';
    return {at, end};
}

} // namespace

std::string formatFixed(double value, int decimals)
{
    const std::string& point = regionalSettings().decimal;
    const std::optional<std::uint64_t> number = roundedShort(std::fabs(value), decimals);
    if (number && point.size() <= kLongestPoint)
        return shortText(std::signbit(value), *number, static_cast<std::size_t>(decimals), point);
    std::string text;
    Decimal decimal = shortest(value);
    roundTo(decimal, decimal.point + decimals);
    if (decimal.negative)
        text.push_back('-');
    if (decimal.point > 0 && decimal.count > 0)
        appendDigits(text, decimal, 0, decimal.point);
    else
        text.push_back('0');
    if (decimals > 0) {
        text += point;
        const int from = decimal.count > 0 ? decimal.point : 0;
        appendDigits(text, decimal, from, from + decimals);
    }
    return text;
}

std::string doubleToText(double value)
{
    Decimal decimal = shortest(value);
    roundTo(decimal, 15);
    dropTrailingZeros(decimal);
    if (decimal.count == 0)
        return "0";
    std::string text;
    if (decimal.negative)
        text.push_back('-');
    const std::string& point = regionalSettings().decimal;
    if (decimal.point > 15 || decimal.point < -3) {
        text.push_back(decimal.digits[0]);
        if (decimal.count > 1) {
            text += point;
            appendDigits(text, decimal, 1, decimal.count);
        }
        const int exponent = decimal.point - 1;
        text.append(exponent < 0 ? "E-" : "E+");
        const int size = std::abs(exponent);
        if (size < 10)
            text.push_back('0');
        text += std::to_string(size);
        return text;
    }
    if (decimal.point > 0)
        appendDigits(text, decimal, 0, decimal.point);
    else
        text.push_back('0');
    if (decimal.count > decimal.point) {
        text += point;
        appendDigits(text, decimal, decimal.point, decimal.count);
    }
    return text;
}

} // namespace zor::platform
