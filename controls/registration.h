#pragma once

/// All controls of the library, for programs that create them by class name.

#include <zor/core/class_info.h>

namespace zor {

/// Adds the library's classes to a registry.
void registerControls(core::ClassRegistry& registry);

} // namespace zor
