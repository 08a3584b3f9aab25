#include <zor/platform/headless/text_metrics.h>
#include <zor/platform/text.h>

#include <array>

namespace zor::platform::headless {
namespace {

constexpr Twips kNarrow = 45;
constexpr Twips kCommon = 90;
constexpr Twips kWide = 135;
constexpr Twips kBeyondLatin = 165;
constexpr Twips kBoldExtra = 15;

/// By character of ASCII.
constexpr std::array<Twips, 128> kAsciiWidths = [] {
    std::array<Twips, 128> widths{};
    widths.fill(kCommon);
    for (const char c : std::string_view(" !'(),.:;I[]`fijlrt|/\\"))
        widths[static_cast<unsigned char>(c)] = kNarrow;
    for (const char c : std::string_view("%@MWmw"))
        widths[static_cast<unsigned char>(c)] = kWide;
    return widths;
}();

} // namespace

Twips textWidth(std::string_view text, bool bold) noexcept
{
    Twips width = 0;
    const Twips extra = bold ? kBoldExtra : 0;
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.front());
        const std::size_t length = byte < kAsciiWidths.size() ? 1 : byteOffset(text, 1);
        if (length == 1)
            width += byte < kAsciiWidths.size() ? kAsciiWidths[byte] : kCommon;
        else
            width += length == 2 ? kCommon : kBeyondLatin;
        width += extra;
        text.remove_prefix(length);
    }
    return width;
}

} // namespace zor::platform::headless
