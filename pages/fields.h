#pragma once

/// The fields that the property pages are made of. Each stands here once; a page lists those it has.

#include <zor/pages/field.h>

#include <span>

namespace zor::pages {

extern const Field kDeviceTag;
extern const Field kRegisterType;
extern const Field kDeviceTypes;
extern const Field kMinVersions;
extern const Field kMaxVersions;
extern const Field kEntryType;
extern const Field kMaxLength;
extern const Field kNumberOfDigits;
extern const Field kUnitEnable;
extern const Field kUnitType;
extern const Field kIconEnable;

/// All of them in the order in which Apply writes: what a control's own refreshes need comes first, and the
/// units, which convert what is shown, come last.
[[nodiscard]] std::span<const Field* const> writeOrder() noexcept;

} // namespace zor::pages
