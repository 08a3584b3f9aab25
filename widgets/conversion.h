#pragma once

/// Values between Qt and the controls.

#include <zor/platform/variant.h>

#include <QString>
#include <QVariant>

#include <string_view>
#include <type_traits>

namespace zor::widgets {

[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] QVariant toQVariant(const Variant& value);
/// Booleans, numbers and texts as they are, no value as Empty; anything else by its text. An integer that does not
/// fit 32 bits becomes a double. Raises TypeMismatch for what has no text.
[[nodiscard]] Variant fromQVariant(const QVariant& value);

/// What a Qt accessor hands out. A value of another kind gives the type's default.
template <class T>
[[nodiscard]] T as(const Variant& value)
{
    if constexpr (std::is_same_v<T, QVariant>) {
        return toQVariant(value);
    } else if constexpr (std::is_same_v<T, QString>) {
        return value.isEmpty() ? QString() : QString::fromStdString(value.toText());
    } else if constexpr (std::is_same_v<T, bool>) {
        return value.isBoolean() && value.toBoolean();
    } else if constexpr (std::is_same_v<T, double>) {
        return value.isNumber() ? value.number() : 0;
    } else {
        return static_cast<T>(value.isNumber() ? value.toInt32() : 0);
    }
}

/// What a Qt accessor takes in.
template <class T>
[[nodiscard]] Variant of(const T& value)
{
    if constexpr (std::is_same_v<T, QVariant>)
        return fromQVariant(value);
    else if constexpr (std::is_same_v<T, QString>)
        return Variant(value.toStdString());
    else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, double>)
        return Variant(value);
    else
        return Variant(static_cast<std::int32_t>(value));
}

} // namespace zor::widgets
