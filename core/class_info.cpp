#include <zor/core/class_info.h>

#include <algorithm>

namespace zor::core {

const PropertyRow* ClassInfo::property(std::string_view wanted) const noexcept
{
    const auto at = std::ranges::find(properties, wanted, [](const PropertyRow* row) { return row->name; });
    return at == properties.end() ? nullptr : *at;
}

const MethodRow* ClassInfo::method(std::string_view wanted) const noexcept
{
    const auto at = std::ranges::find(methods, wanted, &MethodRow::name);
    return at == methods.end() ? nullptr : &*at;
}

const EventRow* ClassInfo::event(std::string_view wanted) const noexcept
{
    const auto at = std::ranges::find(events, wanted, &EventRow::name);
    return at == events.end() ? nullptr : &*at;
}

} // namespace zor::core
