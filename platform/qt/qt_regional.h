#pragma once

/// The separators of a Qt locale.

#include <zor/platform/regional.h>

#include <QLocale>

namespace zor::platform::qt {

[[nodiscard]] inline RegionalSettings localeRegionalSettings(const QLocale& locale = QLocale())
{
    return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

} // namespace zor::platform::qt
