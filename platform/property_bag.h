#pragma once

/// The container's store for a control's settings.

#include <zor/platform/variant.h>

#include <string_view>

namespace zor::platform {

/// A set of named values. Key names are case-sensitive.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    /// The value under the name, or the default when there is none.
    [[nodiscard]] virtual Variant ReadProperty(std::string_view name, const Variant& defaultValue) const = 0;

    /// Stores the value in place of an earlier one, unless it equals the default: then the bag has nothing under
    /// the name.
    virtual void WriteProperty(std::string_view name, const Variant& value, const Variant& defaultValue) = 0;
};

} // namespace zor::platform
