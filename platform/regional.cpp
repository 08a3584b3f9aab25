#include <zor/platform/error.h>
#include <zor/platform/regional.h>

#include <string_view>
#include <utility>

namespace zor::platform {
namespace {

RegionalSettings& current() noexcept
{
    static RegionalSettings settings;
    return settings;
}

std::uint32_t revision = 0;

/// Why a text cannot separate; nothing when it can.
std::string_view objection(std::string_view separator) noexcept
{
    if (separator.find_first_of("0123456789+-eE") != std::string_view::npos)
        return "a digit, a sign or an E belongs to the number and separates nothing";
    if (separator.starts_with(' ') || separator.ends_with(' '))
        return "a blank separates nothing; regions group with a no-break space (U+00A0 or U+202F)";
    return {};
}

} // namespace

const RegionalSettings& regionalSettings() noexcept { return current(); }

std::uint32_t regionalRevision() noexcept { return revision; }

void setRegionalSettings(RegionalSettings settings)
{
    if (settings.decimal.empty())
        raiseError(ErrorNumber::InvalidCall, "there must be a decimal separator");
    if (settings.decimal == settings.group)
        raiseError(ErrorNumber::InvalidCall, "one character cannot separate both decimals and groups");
    for (const std::string& separator : {settings.decimal, settings.group}) {
        if (const std::string_view why = objection(separator); !why.empty())
            raiseError(ErrorNumber::InvalidCall, why);
    }
    current() = std::move(settings);
    ++revision;
}

} // namespace zor::platform
