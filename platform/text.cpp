#include <zor/platform/text.h>

#include <algorithm>

namespace zor::platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Takes the next character off the front; a byte that is not valid UTF-8 counts as one replacement.
char32_t next(std::string_view& text) noexcept
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const auto take = [&](std::size_t length, char32_t code) {
        text.remove_prefix(length);
        return code;
    };
    if (lead < 0x80)
        return take(1, lead);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return take(1, kReplacement);
    char32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U)
            return take(1, kReplacement);
        code = code << 6U | (byte(i) & 0x3FU);
    }
    constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < kLeast[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return take(1, kReplacement);
    return take(length, code);
}

char32_t upper(char32_t code) noexcept
{
    if (code >= 'a' && code <= 'z')
        return code - 32;
    if (code >= 0xE0 && code <= 0xFE && code != 0xF7)
        return code - 32;
    return code;
}

} // namespace

std::size_t characterCount(std::string_view text) noexcept
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        next(text);
    return count;
}

std::size_t byteOffset(std::string_view text, std::size_t index) noexcept
{
    const std::size_t size = text.size();
    for (; index > 0 && !text.empty(); --index)
        next(text);
    return size - text.size();
}

std::string validUtf8(std::string_view text)
{
    std::string valid;
    valid.reserve(text.size());
    while (!text.empty()) {
        const std::string_view before = text;
        if (next(text) == kReplacement)
            valid += "\xEF\xBF\xBD";
        else
            valid += before.substr(0, before.size() - text.size());
    }
    return valid;
}

std::string_view trimmed(std::string_view text) noexcept
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

int compareIgnoringCase(std::string_view left, std::string_view right) noexcept
{
    while (!left.empty() && !right.empty()) {
        const char32_t a = upper(next(left));
        const char32_t b = upper(next(right));
        if (a != b)
            return a < b ? -1 : 1;
    }
    return left.empty() ? (right.empty() ? 0 : -1) : 1;
}

bool equalIgnoringCase(std::string_view left, std::string_view right) noexcept
{
    return compareIgnoringCase(left, right) == 0;
}

std::string upperCase(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t code = next(text);
        const char32_t big = upper(code);
        if (big == code)
            result += before.substr(0, before.size() - text.size());
        else if (big < 0x80)
            result += static_cast<char>(big);
        else
            result.append({static_cast<char>(0xC0U | big >> 6U), static_cast<char>(0x80U | (big & 0x3FU))});
    }
    return result;
}

} // namespace zor::platform
