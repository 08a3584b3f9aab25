#pragma once

/// Where files lie, whatever they are called.

#include <QString>

namespace zor::monitor {

/// The same for every name of a file, whether it is there already or not; empty for no name, and for what is no
/// plain file: a pipe or a terminal may be written by several.
[[nodiscard]] QString placeOf(const QString& name);

} // namespace zor::monitor
