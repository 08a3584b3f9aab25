#pragma once

/// What every control of the library needs before it can be trusted to show a parameter.

#include <zor/core/control.h>
#include <zor/monitor/data/parameter_file.h>

namespace zor::monitor {

/// Gives a control the limits of its parameter, unless its form has set some: those of the file, and where the
/// file has none those of the type.
void applyLimits(core::Control& control, const Parameter& parameter);

/// Puts the control's limits into the unit that it shows now, which it does itself only when it shows a number.
void renewLimits(core::Control& control);

/// Shows no value: what was never read must not look like a reading. Ends an edit.
void showNothing(core::Control& control);

} // namespace zor::monitor
