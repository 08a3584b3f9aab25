#pragma once

/// The order in which a form sets the properties of a new control.

#include <zor/core/class_info.h>

#include <vector>

namespace zor::core {

/// All properties of a class, so ordered that setting them one by one on a new control ends with every one of
/// them as it was set: a write refreshes only what stands behind it. Units and kinds first, then numbers, the
/// device's value in those units, texts (the labels that follow a unit among them), and last the flags, which
/// the writes before would clear.
[[nodiscard]] std::vector<const PropertyRow*> settingOrder(const ClassInfo& info);

} // namespace zor::core
