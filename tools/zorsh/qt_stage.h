#pragma once

#include <zor/tools/zorsh/stage.h>

namespace zor::console {

/// Starts Qt, offscreen where there is no display.
[[nodiscard]] std::shared_ptr<void> startQt();

/// Qt must have been started.
[[nodiscard]] std::unique_ptr<Stage> qtStage();

} // namespace zor::console
