#include <zor/monitor/trend/history.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zor::monitor {
namespace {

/// Of some samples the first, the least, the greatest and the last.
struct Extremes {
    Sample first, low, high, last;
    explicit Extremes(const Sample& one) : first(one), low(one), high(one), last(one) {}
    void take(const Sample& sample)
    {
        last = sample;
        if (sample.value < low.value)
            low = sample;
        if (sample.value > high.value)
            high = sample;
    }
    [[nodiscard]] const Sample& earlier() const { return low.time <= high.time ? low : high; }
    [[nodiscard]] const Sample& later() const { return low.time <= high.time ? high : low; }
};

} // namespace

void History::add(std::int64_t time, double value)
{
    const bool gap = !std::isfinite(value);
    if (gap && (isEmpty() || last().isGap()))
        return;
    m_levels.front().push_back({time, gap ? std::numeric_limits<double>::quiet_NaN() : value});
    for (std::size_t level = 0; level < kLevels; ++level) {
        if (m_levels[level].size() > kPerLevel)
            thin(level);
    }
}

void History::thin(std::size_t level)
{
    Level& from = m_levels[level];
    std::optional<Extremes> group;
    std::size_t taken = 0;
    bool ended = false;
    while (taken < kGroup && !ended) {
        const Sample sample = from[taken++];
        ended = sample.isGap();
        if (ended)
            break;
        if (group)
            group->take(sample);
        else
            group.emplace(sample);
    }
    if (level + 1 < kLevels) {
        Level& to = m_levels[level + 1];
        if (group) {
            to.push_back(group->earlier());
            // Of equal ones the first and the last say as much.
            if (group->low.value < group->high.value)
                to.push_back(group->later());
            else if (group->last.time > group->first.time)
                to.push_back(group->last);
        }
        if (ended && !to.empty() && !to.back().isGap())
            to.push_back(from[taken - 1]);
    }
    from.erase(from.begin(), from.begin() + static_cast<std::ptrdiff_t>(taken));
}

std::size_t History::size() const
{
    std::size_t size = 0;
    for (const Level& level : m_levels)
        size += level.size();
    return size;
}

const Sample& History::first() const { return sample(0); }

const Sample& History::sample(std::size_t index) const
{
    for (auto level = m_levels.rbegin();; ++level) {
        if (index < level->size())
            return (*level)[index];
        index -= level->size();
    }
}

std::size_t History::before(std::int64_t time) const
{
    std::size_t count = 0;
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level) {
        const auto end = std::ranges::lower_bound(*level, time, {}, &Sample::time);
        count += static_cast<std::size_t>(end - level->begin());
        if (end != level->end())
            break;
    }
    return count;
}

template <class Visit>
void History::each(std::size_t first, std::size_t end, Visit&& visit) const
{
    std::size_t begin = 0;
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level) {
        const std::size_t after = begin + level->size();
        for (std::size_t i = std::max(first, begin); i < std::min(end, after); ++i)
            visit((*level)[i - begin]);
        begin = after;
    }
}

std::optional<Sample> History::at(std::int64_t time) const
{
    if (isEmpty() || time < first().time)
        return std::nullopt;
    const std::size_t next = before(time);
    if (next == size())
        return last();
    const Sample& after = sample(next);
    if (next == 0 || after.time == time)
        return after;
    const Sample& previous = sample(next - 1);
    return time - previous.time <= after.time - time ? previous : after;
}

std::vector<Sample> History::outline(std::int64_t from, std::int64_t to, int columns) const
{
    std::vector<Sample> result;
    const std::int64_t span = std::max<std::int64_t>(1, to - from);
    const auto push = [&](const Sample& sample) {
        const bool known =
            !result.empty() && result.back().time == sample.time && result.back().value == sample.value;
        if (!known)
            result.push_back(sample);
    };
    std::optional<Extremes> group;
    std::int64_t column = 0;
    const auto flush = [&] {
        if (!group)
            return;
        for (const Sample& sample : {group->first, group->earlier(), group->later(), group->last})
            push(sample);
        group.reset();
    };
    const std::size_t begin = before(from);
    const std::size_t end = std::min(size(), before(to + 1) + 1);
    each(begin > 0 ? begin - 1 : 0, end, [&](const Sample& sample) {
        const bool inside = sample.time >= from && sample.time <= to;
        const std::int64_t own = (sample.time - from) * columns / span;
        if (!group || own != column || !inside || sample.isGap())
            flush();
        if (sample.isGap() || !inside)
            push(sample);
        else if (group)
            group->take(sample);
        else
            group.emplace(sample);
        column = own;
    });
    flush();
    return result;
}

std::vector<Sample> History::samples() const
{
    std::vector<Sample> all;
    all.reserve(size());
    each(0, size(), [&](const Sample& sample) { all.push_back(sample); });
    return all;
}

} // namespace zor::monitor
