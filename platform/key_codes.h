#pragma once

/// The codes and characters of keys, as events carry them, and what a handler may make of a key on its way to a
/// widget.

#include <zor/platform/notice.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace zor::platform {

/// The code of every key that writes a character and has none of its own.
inline constexpr std::int16_t kCharacterKey = 231;

/// The key code that goes with a character: the upper-case letter, the digit, the code of the key on which a mark
/// stands, kCharacterKey for any other.
[[nodiscard]] constexpr std::int16_t keyCodeOf(std::int16_t character) noexcept
{
    if (character >= 'a' && character <= 'z')
        return static_cast<std::int16_t>(character - 'a' + 'A');
    if ((character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') || character == ' ')
        return character;
    struct Marks {
        std::string_view characters;
        std::int16_t code;
    };
    constexpr std::array kMarks{Marks{";:", 186},  Marks{"=+", 187}, Marks{",<", 188}, Marks{"-_", 189},
                                Marks{".>", 190},  Marks{"/?", 191}, Marks{"`~", 192}, Marks{"[{", 219},
                                Marks{"\\|", 220}, Marks{"]}", 221}, Marks{"'\"", 222}};
    for (const Marks& marks : kMarks) {
        if (character > ' ' && character < 0x7F &&
            marks.characters.find(static_cast<char>(character)) != std::string_view::npos)
            return marks.code;
    }
    constexpr std::string_view kOverDigits = ")!@#$%^&*(";
    const auto digit = character > ' ' && character < 0x7F ? kOverDigits.find(static_cast<char>(character))
                                                           : std::string_view::npos;
    return digit == std::string_view::npos ? kCharacterKey : static_cast<std::int16_t>('0' + digit);
}

/// Whether a character is a key's command rather than a mark: Backspace, Enter, Escape, blank.
[[nodiscard]] constexpr bool isCommand(std::int16_t character) noexcept
{
    return character == 8 || character == 13 || character == 27 || character == ' ';
}

/// The character that a key writes by itself, which has the key's own code; 0 for a key that writes none.
[[nodiscard]] constexpr std::int16_t characterOfKey(std::int16_t code) noexcept
{
    const bool isPrinted = code > ' ' && code <= 'Z' && keyCodeOf(code) == code;
    return isCommand(code) || isPrinted ? code : std::int16_t{0};
}

/// A key that is struck.
struct Stroke {
    std::int16_t code;      ///< 0 for a key without one
    std::int16_t character; ///< 1 to 255, 0 for none
    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// Reports a key going down and its character, with what handlers make of them; whether the widget is to act on
/// it. Another code makes it that key, with that key's character; another character makes it the key that writes
/// it.
template <class Report, class IsReachable>
[[nodiscard]] bool isHeard(Stroke& stroke, std::int16_t shift, Report&& report, IsReachable&& isReachable)
{
    const Stroke struck = stroke;
    report(Notice::KeyDown, std::array<ArgRef, 2>{&stroke.code, &shift});
    if ((stroke.code == 0 && struck.code != 0) || !isReachable())
        return false;
    if (stroke.code != struck.code)
        stroke.character = characterOfKey(stroke.code);
    const std::int16_t typed = stroke.character;
    if (typed == 0)
        return true;
    report(Notice::KeyPress, std::array<ArgRef, 1>{&stroke.character});
    // No character has a number below 0.
    if (stroke.character <= 0 || !isReachable())
        return false;
    if (stroke.character != typed)
        stroke.code = isCommand(stroke.character) ? stroke.character : keyCodeOf(stroke.character);
    return true;
}

} // namespace zor::platform
