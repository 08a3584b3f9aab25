#include <zor/platform/error.h>
#include <zor/platform/text.h>
#include <zor/tools/zorsh/notation.h>
#include <zor/units/mod_Common.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <limits>
#include <optional>

namespace zor::console {
namespace {

struct SystemColour {
    std::string_view name;
    Colour colour;
};
constexpr std::array kSystemColours{SystemColour{"WindowBackground", WindowBackground},
                                    SystemColour{"ButtonFace", ButtonFace},
                                    SystemColour{"ButtonText", ButtonText}};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

/// Length of the quoted text at the front, both quotes included; 0 when it does not end.
std::size_t quotedLength(std::string_view text)
{
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '\\')
            ++i;
        else if (text[i] == '"')
            return i + 1;
    }
    return 0;
}

/// Reads the escape after a backslash; `rest` starts behind the backslash.
void appendEscape(std::string& text, std::string_view& rest)
{
    const char kind = rest.empty() ? '\0' : rest.front();
    if (!rest.empty())
        rest.remove_prefix(1);
    switch (kind) {
    case '"': text.push_back('"'); return;
    case '\\': text.push_back('\\'); return;
    case 'r': text.push_back('\r'); return;
    case 'n': text.push_back('\n'); return;
    case 't': text.push_back('\t'); return;
    default: break;
    }
    if (kind != 'u' || !rest.starts_with('{'))
        raiseError(ErrorNumber::InvalidCall);
    unsigned code = 0;
    const char* stop = rest.data() + rest.size();
    const auto [at, error] = std::from_chars(rest.data() + 1, stop, code, 16);
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    if (error != std::errc() || at == stop || *at != '}' || code > 0x10FFFF || isSurrogate)
        raiseError(ErrorNumber::InvalidCall);
    platform::appendCharacter(text, code);
    rest.remove_prefix(static_cast<std::size_t>(at - rest.data()) + 1);
}

std::string parseText(std::string_view word)
{
    if (quotedLength(word) != word.size())
        raiseError(ErrorNumber::InvalidCall);
    std::string_view rest = word.substr(1, word.size() - 2);
    std::string text;
    while (!rest.empty()) {
        const char c = rest.front();
        rest.remove_prefix(1);
        if (c == '\\')
            appendEscape(text, rest);
        else
            text.push_back(c);
    }
    return text;
}

/// 32 bits are an integer as they stand: 0xFFFFFFFF is -1. More make a double.
std::optional<Variant> parseHexadecimal(std::string_view digits, bool negative)
{
    std::uint64_t bits = 0;
    const char* end = digits.data() + digits.size();
    const auto [at, error] = std::from_chars(digits.data(), end, bits, 16);
    if (error == std::errc::result_out_of_range)
        raiseError(ErrorNumber::Overflow);
    if (error != std::errc() || at != end)
        return std::nullopt;
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    if (bits > kMost)
        return Variant(negative ? -static_cast<double>(bits) : static_cast<double>(bits));
    const auto value = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
    if (negative && value == std::numeric_limits<std::int32_t>::min())
        return Variant(-static_cast<double>(value));
    return Variant(negative ? -value : value);
}

/// Nothing when the word does not start like a number; InvalidCall when it does and goes on otherwise.
std::optional<Variant> parseNumber(std::string_view word)
{
    const bool negative = word.starts_with('-');
    const std::string_view digits = negative ? word.substr(1) : word;
    if (digits.starts_with("0x") || digits.starts_with("0X"))
        return parseHexadecimal(digits.substr(2), negative);
    if (digits.empty() || !((digits[0] >= '0' && digits[0] <= '9') || digits[0] == '.'))
        return std::nullopt;
    const char* begin = word.data();
    const char* end = begin + word.size();
    std::int32_t whole = 0;
    if (const auto [at, error] = std::from_chars(begin, end, whole); error == std::errc() && at == end)
        return Variant(whole);
    double number = 0;
    const auto [at, error] = std::from_chars(begin, end, number);
    if (at != end || error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        // Too small to represent is 0, too large is an error.
        if (word.find_first_of("eE") == std::string_view::npos || word.find('-', 1) == std::string_view::npos)
            raiseError(ErrorNumber::Overflow);
        return Variant(0.0);
    }
    return Variant(number);
}

/// Whether a character would be invisible or confusing where it stands: controls, line and paragraph
/// separators, formatting and direction marks.
bool isUnprintable(char32_t code) noexcept
{
    return code < 0x20 || (code >= 0x7F && code <= 0x9F) || code == 0xAD || (code >= 0x200B && code <= 0x200F) ||
           (code >= 0x2028 && code <= 0x202E) || (code >= 0x2060 && code <= 0x206F) || code == 0xFEFF ||
           (code >= 0xFFF9 && code <= 0xFFFB);
}

std::string hexadecimal(std::string_view prefix, std::uint32_t number, int digits, std::string_view suffix)
{
    std::array<char, 16> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%0*X", digits, static_cast<unsigned>(number));
    return std::string(prefix).append(buffer.data(), static_cast<std::size_t>(length)).append(suffix);
}

void appendPrinted(std::string& result, std::string_view character, char32_t code)
{
    constexpr std::string_view kEscaped = "\"\\\r\n\t";
    constexpr std::string_view kLetters = "\"\\rnt";
    const auto escape = kEscaped.find(character[0]);
    if (escape != std::string_view::npos) {
        result.push_back('\\');
        result.push_back(kLetters[escape]);
        return;
    }
    if (isUnprintable(code))
        result += hexadecimal("\\u{", code, 1, "}");
    else
        result += character;
}

} // namespace

std::string_view withoutComment(std::string_view line) noexcept
{
    std::size_t end = line.size();
    bool afterBlank = true;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '#' && afterBlank) {
            end = i;
            break;
        }
        if (line[i] == '"') {
            const std::size_t length = quotedLength(line.substr(i));
            // A string that does not end is reported by whoever reads the words.
            if (length == 0)
                break;
            i += length - 1;
        }
        afterBlank = isBlank(line[i]);
    }
    line = line.substr(0, end);
    while (!line.empty() && isBlank(line.front()))
        line.remove_prefix(1);
    while (!line.empty() && isBlank(line.back()))
        line.remove_suffix(1);
    return line;
}

std::vector<std::string_view> words(std::string_view line)
{
    line = withoutComment(line);
    std::vector<std::string_view> result;
    std::size_t at = 0;
    while (at < line.size()) {
        if (isBlank(line[at])) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        while (at < line.size() && !isBlank(line[at])) {
            const std::size_t length = line[at] == '"' ? quotedLength(line.substr(at)) : 1;
            if (length == 0)
                raiseError(ErrorNumber::InvalidCall);
            at += length;
        }
        result.push_back(line.substr(start, at - start));
    }
    return result;
}

static Variant parseWord(std::string_view word)
{
    if (word.starts_with('"'))
        return parseText(word);
    if (word == "True" || word == "False")
        return word == "True";
    if (word == "Empty")
        return {};
    if (std::optional<Variant> number = parseNumber(word))
        return *number;
    if (const std::optional<std::int32_t> member = memberValue(word))
        return *member;
    for (const SystemColour& colour : kSystemColours) {
        if (colour.name == word)
            return static_cast<std::int32_t>(colour.colour);
    }
    raiseError(ErrorNumber::InvalidCall);
}

Variant parseValue(std::string_view word)
{
    return naming(word, [&] { return parseWord(word); });
}

std::string canonical(std::string_view line)
{
    std::string result;
    while (!line.empty()) {
        if (const std::size_t length = line.front() == '"' ? quotedLength(line) : 0; length != 0) {
            const std::string_view quoted = line.substr(0, length);
            try {
                result += printText(parseText(quoted));
            } catch (const RunTimeError&) {
                result += quoted;
            }
            line.remove_prefix(length);
            continue;
        }
        const char c = line.front();
        line.remove_prefix(1);
        if (!isBlank(c))
            result.push_back(c);
        else if (!result.empty() && result.back() != ' ' && result.back() != ',')
            result.push_back(' ');
    }
    if (result.ends_with(' '))
        result.pop_back();
    return result;
}

std::string print(double value)
{
    if (value == 0.0)
        return "0";
    std::array<char, 40> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::general, std::numeric_limits<double>::digits10);
    return {buffer.data(), end};
}

std::string printText(std::string_view text)
{
    const std::string valid = platform::validUtf8(text);
    std::string result = "\"";
    result.reserve(valid.size() + 2);
    for (std::string_view rest = valid; !rest.empty();) {
        const std::string_view before = rest;
        const char32_t code = platform::takeCharacter(rest);
        appendPrinted(result, before.substr(0, before.size() - rest.size()), code);
    }
    result.push_back('"');
    return result;
}

std::string print(const Variant& value)
{
    if (value.isText())
        return printText(value.text());
    if (value.isBoolean())
        return value.toBoolean() ? "True" : "False";
    return value.isEmpty() ? "Empty" : print(value.number());
}

std::string print(const core::MethodResult& result)
{
    if (const auto* value = std::get_if<Variant>(&result))
        return print(*value);
    std::string text = "[";
    for (const Variant& value : std::get<std::vector<Variant>>(result)) {
        if (text.size() > 1)
            text += ", ";
        text += print(value);
    }
    return text + ']';
}

std::string printColour(Colour colour)
{
    for (const SystemColour& system : kSystemColours) {
        if (system.colour == colour)
            return std::string(system.name);
    }
    return hexadecimal("#", colour & 0xFFFFFFU, 6, "");
}

/// A single-precision number has no more digits to show than this.
static std::string printSingle(float value)
{
    std::array<char, 40> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::general, std::numeric_limits<float>::digits10 + 1);
    return value == 0.0F ? "0" : std::string(buffer.data(), end);
}

std::string printEvent(std::string_view name, platform::EventArgs args)
{
    std::string text(name);
    for (std::size_t i = 0; i < args.size(); ++i) {
        // Without blanks, so that an event stays one word of the list.
        text += i == 0 ? "(" : ",";
        text += std::visit(
            [](const auto* value) {
                if constexpr (std::is_same_v<decltype(value), const float*>)
                    return printSingle(*value);
                else
                    return print(Variant(*value));
            },
            args[i]);
    }
    return args.empty() ? text : text + ')';
}

} // namespace zor::console
