#pragma once

/// The separators of a Qt locale.

#include <zor/platform/regional.h>

#include <QLocale>

namespace zor::platform::qt {

/// What a system says of its locale, made into what the library accepts: users set a plain blank for grouping.
[[nodiscard]] inline RegionalSettings acceptable(RegionalSettings settings)
{
    if (settings.group == " ")
        settings.group = "\u00A0";
    if (settings.decimal.empty())
        settings.decimal = ".";
    if (settings.group == settings.decimal)
        settings.group.clear();
    return settings;
}

/// The separators of a locale, made acceptable.
[[nodiscard]] inline RegionalSettings localeRegionalSettings(const QLocale& locale = QLocale())
{
    return acceptable({locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()});
}

} // namespace zor::platform::qt
