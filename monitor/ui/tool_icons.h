#pragma once

/// The icons of the tool bar.

#include <QIcon>
#include <QPalette>

#include <string_view>

namespace zor::monitor {

/// Drawn in the colours of the text, so that they can be seen on every theme. Empty for another name than "open",
/// "save", "compare", "write" and "undo".
[[nodiscard]] QIcon toolIcon(std::string_view name, const QPalette& palette, double pixelRatio);

} // namespace zor::monitor
