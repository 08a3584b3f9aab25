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

bool canSeparate(std::string_view separator) noexcept
{
    return separator.find_first_of("0123456789+-eE") == std::string_view::npos && separator != " ";
}

} // namespace

const RegionalSettings& regionalSettings() noexcept { return current(); }

void setRegionalSettings(RegionalSettings settings)
{
    if (settings.decimal.empty() || settings.decimal == settings.group || !canSeparate(settings.decimal) ||
        !canSeparate(settings.group))
        raiseError(ErrorNumber::InvalidCall);
    current() = std::move(settings);
}

} // namespace zor::platform
