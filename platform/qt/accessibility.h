#pragma once

/// What screen readers are told of the widgets of this platform.

namespace zor::platform::qt {

/// Answers for the widgets of this platform from now on. Nothing is stored with a widget: every name, state and
/// value is asked for when somebody wants to hear it.
void installAccessibility();

} // namespace zor::platform::qt
