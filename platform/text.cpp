#include <zor/platform/text.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace zor::platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isCharacter(char32_t code) noexcept { return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF); }

char32_t upper(char32_t code) noexcept
{
    if (code >= 'a' && code <= 'z')
        return code - 32;
    if (code >= 0xE0 && code <= 0xFE && code != 0xF7)
        return code - 32;
    return code;
}

/// How many bytes stand in front of the first that is not part of valid UTF-8.
std::size_t validFront(std::string_view text) noexcept
{
    const std::size_t size = text.size();
    for (std::uint64_t eight = 0; !text.empty();) {
        // Nearly everything is ASCII, and eight bytes of that are known at a glance.
        if (text.size() >= sizeof eight) {
            std::memcpy(&eight, text.data(), sizeof eight);
            if ((eight & 0x8080808080808080U) == 0) {
                text.remove_prefix(sizeof eight);
                continue;
            }
        }
        const std::size_t before = text.size();
        if (takeCharacter(text) == kReplacement && before - text.size() == 1)
            return size - before;
    }
    return size;
}

} // namespace

char32_t takeCharacter(std::string_view& text) noexcept
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
    if (code < kLeast[length] || !isCharacter(code))
        return take(1, kReplacement);
    return take(length, code);
}

void appendCharacter(std::string& text, char32_t character)
{
    if (!isCharacter(character))
        character = kReplacement;
    const auto append = [&](char32_t bits) { text += static_cast<char>(bits); };
    const auto appendTail = [&](unsigned shift) { append(0x80U | (character >> shift & 0x3FU)); };
    if (character < 0x80)
        return append(character);
    if (character < 0x800) {
        append(0xC0U | character >> 6U);
        return appendTail(0);
    }
    if (character < 0x10000) {
        append(0xE0U | character >> 12U);
    } else {
        append(0xF0U | character >> 18U);
        appendTail(12);
    }
    appendTail(6);
    appendTail(0);
}

std::size_t characterCount(std::string_view text) noexcept
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        takeCharacter(text);
    return count;
}

std::size_t byteOffset(std::string_view text, std::size_t index) noexcept
{
    const std::size_t size = text.size();
    for (; index > 0 && !text.empty(); --index)
        takeCharacter(text);
    return size - text.size();
}

bool isUtf8(std::string_view text) noexcept { return validFront(text) == text.size(); }

std::string validUtf8(std::string_view text)
{
    std::string valid;
    valid.reserve(text.size());
    while (!text.empty()) {
        const std::size_t front = validFront(text);
        valid += text.substr(0, front);
        text.remove_prefix(front);
        if (!text.empty()) {
            valid += "\xEF\xBF\xBD";
            text.remove_prefix(1);
        }
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
        const char32_t a = upper(takeCharacter(left));
        const char32_t b = upper(takeCharacter(right));
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
        const char32_t code = takeCharacter(text);
        const char32_t big = upper(code);
        if (big == code)
            result += before.substr(0, before.size() - text.size());
        else
            appendCharacter(result, big);
    }
    return result;
}

} // namespace zor::platform
