#pragma once

/// What the arguments of methods and events mean: the same name means the same everywhere.

#include <algorithm>
#include <array>
#include <string_view>

namespace zor::core {

struct ArgumentWords {
    std::string_view name;
    std::string_view meaning;
};

inline constexpr std::array kArgumentWords{
    // of methods
    ArgumentWords{"i_MessageNumber", "number of the message, from 1"},
    ArgumentWords{"c_MessageString", "the new text"},
    ArgumentWords{"l_ColorValue", "0xRRGGBB, or a system colour (the highest bit set)"},
    ArgumentWords{"i_UnitType", "the quantity"},
    ArgumentWords{"i_FromUnit", "the unit a value is in"},
    ArgumentWords{"i_ToUnit", "the unit it is wanted in"},
    ArgumentWords{"Identifier", "text of the entry"},
    ArgumentWords{"EnumEntryValue", "value that the entry stands for"},
    ArgumentWords{"EnumText", "text of the entry, letter for letter"},
    ArgumentWords{"BitFieldEntryValue", "number of the bit, from 0"},
    ArgumentWords{"BitFieldText", "text of the entry, letter for letter"},
    ArgumentWords{"MaxCount", "number of rows; less than 0 lists no bits at all"},
    ArgumentWords{"Index", "row of the table, from 0"},
    // of events
    ArgumentWords{"Button", "mouse button: 1 left, 2 right, 4 middle"},
    ArgumentWords{"Shift", "keys held, a bit each: 1 Shift, 2 Ctrl, 4 Alt"},
    ArgumentWords{"X", "from the left edge of the widget, in twips"},
    ArgumentWords{"Y", "from the top edge of the widget, in twips"},
    ArgumentWords{"KeyCode", "the key; 0 afterwards swallows it, another code makes it that key"},
    ArgumentWords{"KeyAscii", "the character; 0 afterwards swallows it, another takes its place"},
    ArgumentWords{"Cancel", "True afterwards refuses"},
    ArgumentWords{"LinkErr", "number of the link's error"},
    ArgumentWords{"Item", "position of the entry"},
    ArgumentWords{"Effect", "what the drop does: 0 nothing, 1 copy, 2 move"},
    ArgumentWords{"DefaultCursors", "False afterwards leaves the cursor to the handler"},
    ArgumentWords{"Data", "what is dragged"},
    ArgumentWords{"DataFormat", "format that is asked for"},
    ArgumentWords{"AllowedEffects", "effects that the source allows"},
    ArgumentWords{"State", "0 the drag enters, 1 leaves, 2 moves over"},
};

/// The words for an argument; empty for a name that is not in the table.
[[nodiscard]] constexpr std::string_view argumentMeaning(std::string_view name) noexcept
{
    const auto at = std::ranges::find(kArgumentWords, name, &ArgumentWords::name);
    return at == kArgumentWords.end() ? std::string_view() : at->meaning;
}

} // namespace zor::core
