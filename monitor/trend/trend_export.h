#pragma once

/// Curves as files.

#include <zor/monitor/trend/plot.h>

#include <string>

namespace zor::monitor {

/// All that is kept of all curves: a column for the time (UTC, ISO 8601 with milliseconds), one for each curve,
/// headed by its tag and the unit that the operator sees, and one for the session's writes. A gap is a line with
/// an empty field; numbers have a decimal point and no grouping, in any language.
[[nodiscard]] std::string trendCsv(const Trend& trend);

/// Saves what the ending of the file's name says: .csv, or .png of what is in view. The reason why it could not,
/// or nothing.
[[nodiscard]] QString saveTrend(const QString& file, const Trend& trend, const PlotView& view,
                                const std::string& language);

/// A write in words: tag or caption, old and new value, what became of it.
[[nodiscard]] std::string describeWrite(const Session& session, const WriteRecord& write,
                                        const std::string& language);

} // namespace zor::monitor
