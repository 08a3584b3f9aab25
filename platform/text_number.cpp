#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/powers_of_ten.h>
#include <zor/platform/regional.h>
#include <zor/platform/text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>

namespace zor::platform {
namespace {

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

bool startsWith(std::string_view text, std::string_view separator) noexcept
{
    if (text.size() < separator.size())
        return false;
    for (std::size_t i = 0; i < separator.size(); ++i) {
        if (text[i] != separator[i])
            return false;
    }
    return true;
}

/// Takes the digits in front, and the grouping separators between them; whether there were digits.
template <class Reader>
bool scanWhole(std::string_view& text, std::string_view group, Reader& reader) noexcept
{
    bool digits = false;
    while (!text.empty()) {
        if (isDigit(text.front())) {
            digits = true;
            reader.digit(text.front());
            text.remove_prefix(1);
        } else if (digits && !group.empty() && text.size() > group.size() && startsWith(text, group) &&
                   isDigit(text[group.size()])) {
            reader.group();
            text.remove_prefix(group.size());
        } else {
            break;
        }
    }
    return digits;
}

/// Takes the digits in front; whether there were any.
template <class Reader>
bool scanDigits(std::string_view& text, Reader& reader) noexcept
{
    const std::size_t size = text.size();
    for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1))
        reader.digit(text.front());
    return text.size() < size;
}

template <class Reader>
void scanSign(std::string_view& text, Reader& reader) noexcept
{
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return;
    if (text.front() == '-')
        reader.minus();
    text.remove_prefix(1);
}

/// Whether a text is a number; the reader is told what stands in it, up to where it ceases to be one.
template <class Reader>
bool scanNumber(std::string_view text, Reader& reader) noexcept
{
    const RegionalSettings& regional = regionalSettings();
    text = trimmed(text);
    scanSign(text, reader);
    bool digits = scanWhole(text, regional.group, reader);
    if (startsWith(text, regional.decimal)) {
        text.remove_prefix(regional.decimal.size());
        reader.point();
        digits = scanDigits(text, reader) || digits;
    }
    if (!digits || text.empty())
        return digits;
    if (text.front() != 'e' && text.front() != 'E')
        return false;
    reader.exponent(text.data());
    text.remove_prefix(1);
    scanSign(text, reader);
    return scanDigits(text, reader) && text.empty();
}

/// A number as it is scanned. Of few digits and without an exponent, as forms show it, its value is exact: digits
/// and power of ten are, so is the rounding of their quotient.
struct ShortNumber {
    std::uint64_t digits = 0; // the last 19 for sure
    std::size_t count = 0;
    std::size_t whole = 0;        // how many stand before the point
    const char* letter = nullptr; // of the exponent
    bool hasPoint = false;
    bool isNegative = false;
    bool isGrouped = false;

    void minus() noexcept { isNegative = true; }
    void group() noexcept { isGrouped = true; }
    void exponent(const char* at) noexcept { letter = at; }
    void point() noexcept
    {
        hasPoint = true;
        whole = count;
    }
    void digit(char c) noexcept
    {
        digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
        ++count;
    }

    [[nodiscard]] std::size_t decimals() const noexcept { return hasPoint ? count - whole : 0; }
    [[nodiscard]] bool isExact() const noexcept
    {
        constexpr std::size_t kMostDigits = 15;
        return letter == nullptr && count <= kMostDigits && decimals() < kPowersOfTen.size();
    }
    [[nodiscard]] double value() const noexcept
    {
        const double magnitude = static_cast<double>(digits) / kPowersOfTen[decimals()];
        return isNegative ? -magnitude : magnitude;
    }
};

/// A number as it is scanned, in the form from_chars reads. It is no longer than the text.
struct Spelling {
    char* end;

    void minus() noexcept { *end++ = '-'; }
    void group() noexcept {}
    void exponent(const char* /*letter*/) noexcept { *end++ = 'e'; }
    void point() noexcept { *end++ = '.'; }
    void digit(char c) noexcept { *end++ = c; }
};

bool parse(const char* begin, const char* end, double& value) noexcept
{
    double result = 0;
    const auto [at, error] = std::from_chars(begin, end, result);
    if (error == std::errc::result_out_of_range) {
        // Too small is 0; too large has no value. from_chars tells neither, so the exponent must.
        std::string_view text(begin, static_cast<std::size_t>(end - begin));
        const auto exponent = text.find('e');
        const std::string_view mantissa = text.substr(0, exponent);
        // Far beyond every number, and far from where a sum ends.
        constexpr long long kLeast = std::numeric_limits<int>::min();
        constexpr long long kMost = std::numeric_limits<int>::max();
        long long power = 0;
        if (exponent != std::string_view::npos &&
            std::from_chars(begin + exponent + 1, end, power).ec == std::errc::result_out_of_range)
            power = text[exponent + 1] == '-' ? kLeast : kMost;
        power = std::clamp(power, kLeast, kMost);
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

/// The number of a text that is one, whatever its length; false when it is too large.
bool parseLong(std::string_view text, double& value) noexcept
{
    std::array<char, 64> buffer;
    std::string large; // longer than any number that is shown: worth an allocation
    char* begin = buffer.data();
    if (text.size() > buffer.size()) {
        large.resize(text.size());
        begin = large.data();
    }
    Spelling spelling{begin};
    scanNumber(text, spelling);
    return parse(begin, spelling.end, value);
}

} // namespace

bool isNumericText(std::string_view text) noexcept
{
    ShortNumber number;
    return scanNumber(text, number);
}

std::optional<NumberReading> readNumber(std::string_view text) noexcept
{
    ShortNumber number;
    if (!scanNumber(text, number))
        return std::nullopt;
    NumberReading reading{0, text.size(), number.isGrouped};
    if (number.letter != nullptr)
        reading.mantissa = static_cast<std::size_t>(number.letter - text.data());
    if (number.isExact())
        reading.value = number.value();
    else if (!parseLong(text, reading.value))
        return std::nullopt;
    return reading;
}

double textToDouble(std::string_view text)
{
    if (const std::optional<NumberReading> reading = readNumber(text))
        return reading->value;
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
