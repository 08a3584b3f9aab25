#pragma once

/// Finding parameters by what people know of them.

#include <zor/monitor/session/session.h>

#include <QString>

#include <vector>

namespace zor::monitor {

/// A parameter that has been found, as it is shown.
struct Hit {
    std::size_t parameter;
    QString caption;
    QString value; ///< with its unit, as last read; empty when it never was
};

/// The parameters on the form that have the text in their tag, their caption in `language` or their value,
/// whatever its case; the best first: a tag that is the text, then beginnings, then tags and captions with the
/// text in them, then values. At most `most` of them; none for an empty text.
[[nodiscard]] std::vector<Hit> search(const Session& session, const QString& text, const std::string& language,
                                      std::size_t most);

} // namespace zor::monitor
