#pragma once

/// What fits together in a parameter of the file.

#include <zor/monitor/data/json_fields.h>
#include <zor/monitor/data/parameter_file.h>

namespace zor::monitor {

/// The class of control that shows a parameter when the file names none.
[[nodiscard]] std::string usualControl(const Parameter& parameter);

/// Raises FileError, with the line of the member to blame, for a parameter each member of which is right by itself
/// but that cannot be meant: a control that cannot show it, limits or entries that its type cannot hold, lists
/// that belong together and are of different length. `fields` are those that the parameter was read from.
void checkParameter(const Parameter& parameter, Fields& fields);

} // namespace zor::monitor
