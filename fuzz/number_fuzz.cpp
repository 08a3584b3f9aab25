#include <zor/fuzz/target.h>
#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/regional.h>
#include <zor/units/mod_Common.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace zor::fuzz {
namespace {

/// A number in the words of another reader, as the standard library takes it; nothing for any other text.
std::optional<std::string> plain(std::string_view text)
{
    const auto& [decimal, group] = platform::regionalSettings();
    std::string number;
    const auto take = [&](std::string_view what, std::string_view as = {}) {
        if (what.empty() || !text.starts_with(what))
            return false;
        text.remove_prefix(what.size());
        number += as;
        return true;
    };
    const auto digits = [&] {
        const std::string_view front = text.substr(0, text.find_first_not_of("0123456789"));
        return take(front, front);
    };
    const auto sign = [&] { return take("-", "-") || take("+"); };
    while (take(" ")) {
    }
    while (text.ends_with(' '))
        text.remove_suffix(1);
    sign();
    bool isNumber = digits();
    for (std::string_view rest = text; isNumber && take(group); rest = text) {
        if (!digits()) {
            text = rest;
            break;
        }
    }
    if (take(decimal, "."))
        isNumber = digits() || isNumber;
    if (isNumber && (take("e", "e") || take("E", "e"))) {
        sign();
        isNumber = digits();
    }
    return isNumber && text.empty() ? std::optional(number) : std::nullopt;
}

std::string read(const std::string& text)
{
    const std::optional<std::string> number = plain(text);
    const bool isNumber = number.has_value();
    std::optional<double> wanted;
    if (isNumber && std::isfinite(std::strtod(number->c_str(), nullptr)))
        wanted = std::strtod(number->c_str(), nullptr);
    const auto reading = platform::readNumber(text);
    if (platform::isNumericText(text) != isNumber || reading.has_value() != wanted.has_value() ||
        (wanted && reading->value != *wanted))
        return "read otherwise: " + text;
    try {
        if (platform::textToDouble(text) != wanted)
            return "two readings: " + text;
    } catch (const RunTimeError& error) {
        if (wanted || (error.number() == ErrorNumber::Overflow) != isNumber)
            return "another error: " + text;
    }
    static_cast<void>(platform::leadingNumber(text));
    const auto valid = validNumber(std::string_view(text));
    return valid && !wanted ? "valid and no number: " + text : std::string();
}

/// The text of a number, once more: read and written again it is the same.
std::string write(double value, int decimals)
{
    if (!std::isfinite(value))
        return {};
    const std::string fixed = platform::formatFixed(value, decimals);
    const auto back = platform::readNumber(fixed);
    const double unit = std::pow(10, -decimals);
    if (!back || std::fabs(back->value - value) > 0.5 * unit * (1 + 1e-6) + std::fabs(value) * 1e-15)
        return "rounded wrongly: " + fixed;
    if (std::fabs(value) < 1e15 * unit && platform::formatFixed(back->value, decimals) != fixed)
        return "not the same again: " + fixed;
    const std::string plain = platform::doubleToText(value);
    const auto again = platform::readNumber(plain);
    // The largest numbers round up to none.
    if (!again)
        return std::fabs(value) > 1.7976931348623e308 ? std::string() : "unreadable: " + plain;
    // Half a unit of the fifteenth digit, of the shortest text of the number instead of itself.
    if (std::fabs(again->value - value) > std::fabs(value) * 5.3e-15 + 1e-323 ||
        platform::doubleToText(again->value) != plain)
        return "not the same again: " + plain;
    return {};
}

/// Where the ranges of numbers and of the integers that count places end.
constexpr std::array<const char*, 12> kExponents{"e308",
                                                 "e309",
                                                 "e-308",
                                                 "e-324",
                                                 "e32768",
                                                 "e2147483647",
                                                 "e-2147483648",
                                                 "e4294967296",
                                                 "e9223372036854775807",
                                                 "e-9223372036854775808",
                                                 "e18446744073709551616",
                                                 "e-99999999999999999999"};

std::string play(std::string_view input)
{
    static const std::array<platform::RegionalSettings, 5> kRegions{
        {{".", ","}, {",", "."}, {",", "\u202F"}, {".", ""}, {";", "'"}}};
    Pieces pieces(input);
    platform::setRegionalSettings(kRegions.at(pieces.below(kRegions.size())));
    const int decimals = static_cast<int>(pieces.below(21));
    std::string wrong = write(pieces.take<double>(), decimals);
    const std::string text(pieces.text(400));
    wrong += read(text);
    // By the length: an exponent where an integer's range ends is too rare among any bytes.
    wrong += read(text + kExponents.at(input.size() % kExponents.size()));
    for (const int unit : {-1, 0, 5, 15, 52, 53})
        static_cast<void>(fc_FormatValue(text, MEAS_TYPE{unit}, static_cast<std::int16_t>(decimals)));
    platform::setRegionalSettings({});
    return wrong;
}

const Registered kNumber({"number", play});

} // namespace
} // namespace zor::fuzz
