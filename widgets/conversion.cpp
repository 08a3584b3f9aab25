#include <zor/platform/error.h>
#include <zor/widgets/conversion.h>

#include <limits>

namespace zor::widgets {

QVariant toQVariant(const Variant& value)
{
    return std::visit(
        [](const auto& held) -> QVariant {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return {};
            else if constexpr (std::is_same_v<T, std::string>)
                return QString::fromStdString(held);
            else if constexpr (std::is_same_v<T, std::int16_t>)
                return int{held};
            else
                return held;
        },
        value.storage());
}

Variant fromQVariant(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool: return value.toBool();
    case QMetaType::Double:
    case QMetaType::Float: return value.toDouble();
    case QMetaType::QString: return Variant(value.toString().toStdString());
    case QMetaType::UnknownType: return {};
    // As a signed number the upper half of them would be negative.
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        if (const qulonglong number = value.toULongLong(); number > std::numeric_limits<std::int32_t>::max())
            return static_cast<double>(number);
        break;
    default: break;
    }
    if (value.canConvert<qlonglong>()) {
        bool isInteger = false;
        const qlonglong integer = value.toLongLong(&isInteger);
        using Limits = std::numeric_limits<std::int32_t>;
        if (isInteger && integer >= Limits::min() && integer <= Limits::max())
            return static_cast<std::int32_t>(integer);
        if (isInteger)
            return value.toDouble();
    }
    if (!value.canConvert<QString>())
        raiseError(ErrorNumber::TypeMismatch);
    return Variant(value.toString().toStdString());
}

} // namespace zor::widgets
