#include <zor/fuzz/target.h>
#include <zor/platform/text.h>
#include <zor/units/mod_Common.h>

namespace zor::fuzz {
namespace {

std::vector<std::string_view> entries(std::string_view list)
{
    std::vector<std::string_view> all;
    for (std::size_t comma = 0; comma != std::string_view::npos;
         list.remove_prefix(std::min(comma + 1, list.size()))) {
        comma = list.find(',');
        all.push_back(platform::trimmed(list.substr(0, comma)));
        if (comma == std::string_view::npos)
            break;
    }
    return all;
}

std::string padded(std::string_view version)
{
    std::string text = platform::upperCase(version);
    const std::size_t separator = text.find_first_not_of("0123456789");
    if (separator == std::string::npos)
        return text;
    std::string_view right = std::string_view(text).substr(separator);
    platform::takeCharacter(right);
    const std::string left = text.substr(0, text.size() - right.size());
    return (separator < 2 ? "0" : "") + left + (platform::characterCount(right) < 2 ? "0" : "") +
           std::string(right);
}

bool isOutside(std::string_view list, std::string_view version, std::size_t index, int side)
{
    const std::vector<std::string_view> limits = entries(list);
    if (platform::trimmed(list).empty())
        return false;
    if (index >= limits.size())
        return true;
    const int order = platform::compareIgnoringCase(padded(platform::trimmed(version)), padded(limits[index]));
    return !limits[index].empty() && order * side < 0;
}

/// Types, a type, lowest and highest versions, a version: a line each.
std::string play(std::string_view input)
{
    Pieces pieces(input);
    const std::string_view types = pieces.line();
    const std::string_view type = pieces.line();
    const std::string_view lowest = pieces.line();
    const std::string_view highest = pieces.line();
    const std::string_view version = pieces.line();

    const std::vector<std::string_view> all = entries(types);
    const auto at = std::ranges::find_if(
        all, [&](std::string_view entry) { return platform::equalIgnoringCase(entry, platform::trimmed(type)); });
    const auto wanted = at == all.end() ? -1 : at - all.begin();
    const std::int16_t index = fi_GetDeviceTypeIndex(types, type);
    if (index != (platform::trimmed(types).empty() ? 0 : wanted))
        return "another index: " + std::to_string(index);
    const auto position = static_cast<std::size_t>(index);
    const bool isRefused =
        index < 0 || isOutside(lowest, version, position, 1) || isOutside(highest, version, position, -1);
    if (fb_VersionNotSupported(lowest, highest, version, index) != isRefused)
        return isRefused ? "supported" : "not supported";
    return {};
}

const Registered kVersions({"versions", play});

} // namespace
} // namespace zor::fuzz
