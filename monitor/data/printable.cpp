#include <zor/monitor/data/printable.h>

#include <algorithm>

namespace zor::monitor {

std::string printable(std::string_view utf8)
{
    std::string safe(utf8);
    for (std::size_t i = 0; i < safe.size(); ++i) {
        const auto byte = static_cast<unsigned char>(safe[i]);
        // Those from U+0080 on take two bytes.
        const bool second =
            byte == 0xC2U && i + 1 < safe.size() && static_cast<unsigned char>(safe[i + 1]) < 0xA0U;
        if (second)
            safe.replace(i, 2, "?");
        else if (byte < 0x20U || byte == 0x7FU)
            safe[i] = '?';
    }
    return safe;
}

std::string printableAscii(std::string_view bytes)
{
    std::string safe(bytes);
    std::ranges::replace_if(
        safe, [](char c) { return c < ' ' || c > '~'; }, '?');
    return safe;
}

} // namespace zor::monitor
