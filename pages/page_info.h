#pragma once

/// A class of property pages as data, and the registry of those a program offers.

#include <zor/core/class_info.h>
#include <zor/pages/field.h>

#include <span>
#include <string_view>

namespace zor::pages {

/// A class of pages.
struct PageInfo {
    /// Its published name.
    std::string_view name;
    /// What a frame calls it.
    std::string_view caption;
    /// What a form designer says on it.
    std::string_view meaning;
    /// From top to bottom.
    std::span<const Field* const> fields;
    /// The classes of controls that the page is made for.
    std::span<const std::string_view> controls;
};

/// The pages that a program offers.
class PageRegistry : public core::Registry<PageInfo> {
public:
    /// The page for a class of controls; nullptr for a class without one.
    [[nodiscard]] const PageInfo* forControl(std::string_view controlClass) const noexcept;
};

} // namespace zor::pages
