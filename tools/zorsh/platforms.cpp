#include <zor/tools/zorsh/stage.h>

#ifdef ZOR_HAS_QT
#include <zor/tools/zorsh/qt_stage.h>
#endif

#include <array>

namespace zor::console {

std::span<const PlatformRow> platforms() noexcept
{
    static constexpr std::array kPlatforms{
        PlatformRow{"headless", [] { return std::shared_ptr<void>(); }, headlessStage},
#ifdef ZOR_HAS_QT
        PlatformRow{"qt", startQt, qtStage},
#endif
    };
    return kPlatforms;
}

} // namespace zor::console
