#pragma once

/// What Designer says about controls and their properties.

#include <zor/core/class_info.h>
#include <zor/widgets/conversion.h>

#include <QString>

#include <string_view>

namespace zor::designer {

struct Description {
    std::string_view controlClass;
    std::string_view title;
    std::string_view toolTip;
};

/// A class's description; a general one for a class without its own.
[[nodiscard]] const Description& descriptionOf(std::string_view controlClass) noexcept;

using widgets::toQString;

/// The heading under which the property editor shows a property.
[[nodiscard]] std::string_view headingOf(const core::PropertyRow& row) noexcept;

} // namespace zor::designer
