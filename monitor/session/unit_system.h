#pragma once

/// Units as people in a region use them.

#include <zor/units/unit_types.h>

#include <cstdint>

namespace zor::monitor {

enum class UnitSystem : std::uint8_t { Form, Metric, Us, Device };

/// The unit of the system that stands for the one a form was drawn with; that one where the system has none, and
/// none where the form has none.
[[nodiscard]] MEAS_TYPE unitIn(UnitSystem system, MEAS_TYPE form, MEAS_TYPE device) noexcept;

} // namespace zor::monitor
