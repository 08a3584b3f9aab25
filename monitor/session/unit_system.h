#pragma once

/// Units as people in a region use them.

#include <zor/core/class_info.h>
#include <zor/monitor/data/parameter_file.h>

#include <cstdint>

namespace zor::monitor {

enum class UnitSystem : std::uint8_t { Form, Metric, Us, Device };

/// The unit of the system that stands for the one a form was drawn with; that one where the system has none, and
/// none where the form has none.
[[nodiscard]] MEAS_TYPE unitIn(UnitSystem system, MEAS_TYPE form, MEAS_TYPE device) noexcept;

/// The unit in which a generated form shows a parameter: none where the unit's own decimals are too few for the
/// register, whose numbers are then shown as they are.
[[nodiscard]] MEAS_TYPE formUnit(const Parameter& parameter, const core::ClassInfo& control);

} // namespace zor::monitor
