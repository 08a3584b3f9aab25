#include <zor/platform/text.h>
#include <zor/units/mod_Common.h>

#include <limits>

namespace zor {
namespace {

/// The entry at an index of a comma-separated list; nothing when the list is shorter.
std::optional<std::string_view> entryAt(std::string_view list, std::int16_t index)
{
    for (; index > 0; --index) {
        const auto comma = list.find(',');
        if (comma == std::string_view::npos)
            return std::nullopt;
        list.remove_prefix(comma + 1);
    }
    return list.substr(0, list.find(','));
}

std::string comparable(std::string_view version)
{
    std::string padded = platform::upperCase(platform::trimmed(version));
    s_PadVersion(padded);
    return padded;
}

enum class Side { Minimum, Maximum };

bool isMet(std::string_view list, std::string_view version, std::int16_t index, Side side)
{
    if (platform::trimmed(list).empty())
        return true;
    const std::optional<std::string_view> entry = entryAt(list, index);
    if (!entry)
        return false;
    const std::string limit = comparable(*entry);
    if (limit.empty())
        return true;
    const int order = platform::compareIgnoringCase(comparable(version), limit);
    return side == Side::Minimum ? order >= 0 : order <= 0;
}

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

} // namespace

std::int16_t fi_GetDeviceTypeIndex(std::string_view c_DeviceTypeList, std::string_view c_DeviceType) noexcept
{
    if (platform::trimmed(c_DeviceTypeList).empty())
        return 0;
    const std::string_view wanted = platform::trimmed(c_DeviceType);
    for (std::int16_t index = 0;; ++index) {
        const auto comma = c_DeviceTypeList.find(',');
        if (platform::equalIgnoringCase(platform::trimmed(c_DeviceTypeList.substr(0, comma)), wanted))
            return index;
        // A longer list cannot be indexed; no form has one.
        if (comma == std::string_view::npos || index == std::numeric_limits<std::int16_t>::max())
            return -1;
        c_DeviceTypeList.remove_prefix(comma + 1);
    }
}

bool fb_VersionNotSupported(std::string_view c_MinVersionList, std::string_view c_MaxVersionList,
                            std::string_view c_DeviceVersion, std::int16_t i_TypeIndex)
{
    return i_TypeIndex < 0 || !isMet(c_MinVersionList, c_DeviceVersion, i_TypeIndex, Side::Minimum) ||
           !isMet(c_MaxVersionList, c_DeviceVersion, i_TypeIndex, Side::Maximum);
}

void s_PadVersion(std::string& c_Version)
{
    std::size_t at = 0;
    while (at < c_Version.size() && isDigit(c_Version[at]))
        ++at;
    if (at == c_Version.size())
        return;
    // The separator may be any character, of several bytes too; it stays where it is.
    const std::size_t right = at + platform::byteOffset(std::string_view(c_Version).substr(at), 1);
    const bool padRight = platform::characterCount(std::string_view(c_Version).substr(right)) < 2;
    if (padRight)
        c_Version.insert(right, 1, '0');
    if (at < 2)
        c_Version.insert(0, 1, '0');
}

} // namespace zor
