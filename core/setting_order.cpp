#include <zor/core/setting_order.h>

#include <algorithm>

namespace zor::core {
namespace {

enum class Place { Kinds, Numbers, DeviceValue, Values, Texts, Flags };

Place placeOf(const PropertyRow* row)
{
    if (row->placing != Placing::ByKind)
        return row->placing == Placing::Device ? Place::DeviceValue : Place::Values;
    switch (row->field.kind) {
    case ValueKind::UnitType:
    case ValueKind::MeasType:
    case ValueKind::RegisterType:
    case ValueKind::EntryType: return Place::Kinds;
    case ValueKind::Int16:
    case ValueKind::Int32:
    case ValueKind::Double:
    case ValueKind::Colour: return Place::Numbers;
    case ValueKind::Any: return Place::Values;
    case ValueKind::Text: return Place::Texts;
    case ValueKind::Boolean: return Place::Flags;
    }
    return Place::Flags;
}

} // namespace

std::vector<const PropertyRow*> settingOrder(const ClassInfo& info)
{
    std::vector<const PropertyRow*> rows(info.properties.begin(), info.properties.end());
    std::ranges::stable_sort(rows, {}, placeOf);
    return rows;
}

} // namespace zor::core
