#include <zor/platform/version.h>

namespace zor {

#define ZOR_TEXT_OF(number) #number
#define ZOR_TEXT(number) ZOR_TEXT_OF(number)

std::string_view version() noexcept
{
    return ZOR_TEXT(ZOR_VERSION_MAJOR) "." ZOR_TEXT(ZOR_VERSION_MINOR) "." ZOR_TEXT(ZOR_VERSION_PATCH);
}

int versionNumber() noexcept { return ZOR_VERSION; }

} // namespace zor
