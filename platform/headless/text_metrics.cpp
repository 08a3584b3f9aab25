#include <zor/platform/headless/text_metrics.h>
#include <zor/platform/text.h>

namespace zor::platform::headless {
namespace {

constexpr Twips kNarrow = 45;
constexpr Twips kCommon = 90;
constexpr Twips kWide = 135;
constexpr Twips kBeyondLatin = 165;
constexpr Twips kBoldExtra = 15;

Twips asciiWidth(char c) noexcept
{
    constexpr std::string_view kNarrowOnes = " !'(),.:;I[]`fijlrt|/\\";
    constexpr std::string_view kWideOnes = "%@MWmw";
    if (kNarrowOnes.find(c) != std::string_view::npos)
        return kNarrow;
    return kWideOnes.find(c) != std::string_view::npos ? kWide : kCommon;
}

} // namespace

Twips textWidth(std::string_view text, bool bold) noexcept
{
    Twips width = 0;
    while (!text.empty()) {
        const std::size_t length = byteOffset(text, 1);
        if (length == 1)
            width += static_cast<unsigned char>(text.front()) < 0x80 ? asciiWidth(text.front()) : kCommon;
        else
            width += length == 2 ? kCommon : kBeyondLatin;
        width += bold ? kBoldExtra : 0;
        text.remove_prefix(length);
    }
    return width;
}

} // namespace zor::platform::headless
