#include <zor/monitor/session/search.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <optional>

namespace zor::monitor {
namespace {

enum class Rank : std::uint8_t { IsTag, Begins, Contains, Value };

std::optional<Rank> rankOf(const QString& text, const QString& tag, const Hit& hit)
{
    const auto has = [&](const QString& whole) { return whole.contains(text, Qt::CaseInsensitive); };
    const auto begins = [&](const QString& whole) { return whole.startsWith(text, Qt::CaseInsensitive); };
    if (tag.compare(text, Qt::CaseInsensitive) == 0)
        return Rank::IsTag;
    if (begins(tag) || begins(hit.caption))
        return Rank::Begins;
    if (has(tag) || has(hit.caption))
        return Rank::Contains;
    return has(hit.value) ? std::optional(Rank::Value) : std::nullopt;
}

Hit hitOf(const Session& session, std::size_t parameter, const std::string& language)
{
    const Parameter& row = session.file().parameters[parameter];
    Hit hit{parameter, QString::fromStdString(row.captionIn(language)), {}};
    if (!session.held(parameter).empty()) {
        const ShownValue value = describe(row, session.held(parameter), session.shownUnit(parameter), language);
        const std::string_view unit = fc_GetUnitLabel(value.unit);
        hit.value = QString::fromStdString(value.text + (unit.empty() ? "" : " ") + std::string(unit));
    }
    return hit;
}

} // namespace

std::vector<Hit> search(const Session& session, const QString& text, const std::string& language, std::size_t most)
{
    std::vector<std::pair<Rank, Hit>> found;
    const QString wanted = text.trimmed();
    for (std::size_t i = 0; !wanted.isEmpty() && i < session.file().parameters.size(); ++i) {
        if (!session.hasControl(i))
            continue;
        Hit hit = hitOf(session, i, language);
        const QString tag = QString::fromStdString(session.file().parameters[i].tag);
        if (const auto rank = rankOf(wanted, tag, hit))
            found.emplace_back(*rank, std::move(hit));
    }
    std::ranges::stable_sort(found, {}, &std::pair<Rank, Hit>::first);
    std::vector<Hit> hits;
    for (auto& [rank, hit] : found) {
        if (hits.size() < most)
            hits.push_back(std::move(hit));
    }
    return hits;
}

} // namespace zor::monitor
