#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/regional.h>
#include <zor/platform/text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

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

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// Reads a number text; `out` receives the same number in the form from_chars reads, byte by byte.
template <class Out>
bool scanNumber(std::string_view text, Out&& out) noexcept
{
    const RegionalSettings& regional = regionalSettings();
    text = trimmed(text);
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        if (text.front() == '-')
            out('-');
        text.remove_prefix(1);
    }
    bool digits = false;
    while (!text.empty()) {
        if (isDigit(text.front())) {
            digits = true;
            out(text.front());
            text.remove_prefix(1);
        } else if (digits && !regional.group.empty() && text.starts_with(regional.group) &&
                   text.size() > regional.group.size() && isDigit(text[regional.group.size()])) {
            text.remove_prefix(regional.group.size());
        } else {
            break;
        }
    }
    if (text.starts_with(regional.decimal)) {
        text.remove_prefix(regional.decimal.size());
        out(digits ? '.' : '0');
        if (!digits)
            out('.');
        while (!text.empty() && isDigit(text.front())) {
            digits = true;
            out(text.front());
            text.remove_prefix(1);
        }
    }
    if (!digits)
        return false;
    if (text.empty())
        return true;
    if (text.front() != 'e' && text.front() != 'E')
        return false;
    text.remove_prefix(1);
    out('e');
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        if (text.front() == '-')
            out('-');
        text.remove_prefix(1);
    }
    if (text.empty())
        return false;
    for (const char c : text) {
        if (!isDigit(c))
            return false;
        out(c);
    }
    return true;
}

constexpr std::array kPowersOfTen{1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

/// A number of few digits without an exponent, as the form shows it: digits and power of ten are exact, so is the
/// rounding of their quotient. False for all others.
bool parseShort(const char* begin, const char* end, double& value) noexcept
{
    constexpr std::ptrdiff_t kMost = 17; // sign, point and 15 digits
    if (end - begin > kMost)
        return false;
    const bool negative = *begin == '-';
    std::uint64_t digits = 0;
    const char* point = end;
    for (const char* at = begin + (negative ? 1 : 0); at != end; ++at) {
        if (*at == '.')
            point = at + 1;
        else if (isDigit(*at))
            digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
        else
            return false;
    }
    const auto decimals = static_cast<std::size_t>(end - point);
    if (digits > 999'999'999'999'999 || decimals >= kPowersOfTen.size())
        return false;
    const double magnitude = static_cast<double>(digits) / kPowersOfTen[decimals];
    value = negative ? -magnitude : magnitude;
    return true;
}

bool parse(const char* begin, const char* end, double& value) noexcept
{
    if (parseShort(begin, end, value))
        return true;
    double result = 0;
    const auto [at, error] = std::from_chars(begin, end, result);
    if (error == std::errc::result_out_of_range) {
        // Too small is 0; too large has no value. from_chars tells neither, so the exponent must.
        std::string_view text(begin, static_cast<std::size_t>(end - begin));
        const auto exponent = text.find('e');
        const std::string_view mantissa = text.substr(0, exponent);
        long long power = 0;
        if (exponent != std::string_view::npos &&
            std::from_chars(begin + exponent + 1, end, power).ec == std::errc::result_out_of_range)
            power = text[exponent + 1] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
        const auto first = mantissa.find_first_of("123456789");
        const auto dot = std::min(mantissa.find('.'), mantissa.size());
        const long long magnitude = static_cast<long long>(dot) - static_cast<long long>(first) + power;
        if (magnitude > 0)
            return false;
        value = text.front() == '-' ? -0.0 : 0.0;
        return true;
    }
    if (error != std::errc())
        return false;
    value = result;
    return true;
}

/// Most values by far are small and not close to a half: then the value and its shortest decimal round alike, and
/// whole numbers do. False for all others, and `text` is as it was.
bool formatSmall(double value, int decimals, std::string& text)
{
    constexpr int kMostDecimals = 3;
    constexpr double kLimit = 1e9;
    constexpr double kCloseToHalf = 1e-6; // scaling errs by less than 1e9 x 2^-52
    if (decimals < 0 || decimals > kMostDecimals)
        return false;
    const double scaled = std::fabs(value) * kPowersOfTen[static_cast<std::size_t>(decimals)];
    if (!(scaled < kLimit))
        return false;
    auto number = static_cast<std::uint32_t>(scaled);
    const double fraction = scaled - number;
    if (std::fabs(fraction - 0.5) <= kCloseToHalf)
        return false;
    number += fraction > 0.5 ? 1 : 0;
    std::array<char, 16> digits{};
    char* const end = digits.data() + digits.size();
    char* at = end;
    for (; number != 0 || end - at <= decimals; number /= 10)
        *--at = static_cast<char>('0' + number % 10);
    if (std::signbit(value))
        text.push_back('-');
    text.append(at, end - decimals);
    if (decimals > 0)
        text.append(regionalSettings().decimal).append(end - decimals, end);
    return true;
}

} // namespace

std::string formatFixed(double value, int decimals)
{
    std::string text;
    if (formatSmall(value, decimals, text))
        return text;
    Decimal decimal = shortest(value);
    roundTo(decimal, decimal.point + decimals);
    if (decimal.negative)
        text.push_back('-');
    if (decimal.point > 0 && decimal.count > 0)
        appendDigits(text, decimal, 0, decimal.point);
    else
        text.push_back('0');
    if (decimals > 0) {
        text += regionalSettings().decimal;
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

bool isNumericText(std::string_view text) noexcept
{
    return scanNumber(text, [](char) {});
}

bool tryTextToDouble(std::string_view text, double& value) noexcept
{
    std::array<char, 64> buffer;
    std::size_t length = 0;
    if (!scanNumber(text, [&](char c) {
            if (length < buffer.size())
                buffer[length] = c;
            ++length;
        }))
        return false;
    if (length <= buffer.size())
        return parse(buffer.data(), buffer.data() + length, value);
    // A longer number than any that is shown: worth an allocation.
    std::string whole;
    whole.reserve(length);
    scanNumber(text, [&](char c) { whole.push_back(c); });
    return parse(whole.data(), whole.data() + whole.size(), value);
}

double textToDouble(std::string_view text)
{
    double value = 0;
    if (tryTextToDouble(text, value))
        return value;
    raiseError(isNumericText(text) ? ErrorNumber::Overflow : ErrorNumber::TypeMismatch);
}

double leadingNumber(std::string_view text) noexcept
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    if (text.empty() || !(isDigit(text.front()) || text.front() == '-' || text.front() == '.'))
        return 0;
    const std::size_t sign = text.front() == '-' ? 1 : 0;
    if (sign == 1 && (text.size() < 2 || !(isDigit(text[1]) || text[1] == '.')))
        return 0;
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace zor::platform
