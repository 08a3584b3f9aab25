#pragma once

/// What a value has been through, in bounded memory.

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace zor::monitor {

/// A value as it was read; one that is no number (NaN) is a gap.
struct Sample {
    std::int64_t time = 0; ///< milliseconds
    double value = 0;
    [[nodiscard]] bool isGap() const { return value != value; }
};

/// Every value of the last while and, the further back, the fewer: of some neighbours only the least and the
/// greatest stay, so that no peak is lost. Whatever it holds was measured, at its own time; nothing is averaged. A
/// gap is never bridged, so that a curve of nothing but gaps goes back less far.
class History {
public:
    static constexpr std::size_t kLevels = 5;
    static constexpr std::size_t kPerLevel = 4096;
    /// Neighbours of which two stay when they go to the next level.
    static constexpr std::size_t kGroup = 8;

    /// Times must not decrease. Of gaps that follow each other, or that nothing comes before, one or none stays;
    /// an infinite value is a gap.
    void add(std::int64_t time, double value);

    [[nodiscard]] bool isEmpty() const { return m_levels.front().empty(); }
    [[nodiscard]] std::size_t size() const;
    /// Of one that is not empty.
    [[nodiscard]] const Sample& first() const;
    [[nodiscard]] const Sample& last() const { return m_levels.front().back(); }

    /// The sample that is next to a time, and may be a gap. Nothing before the first.
    [[nodiscard]] std::optional<Sample> at(std::int64_t time) const;

    /// What it takes to draw a time in so many columns: of each column the first, the least, the greatest and the
    /// last sample, in their order, and from beyond either end the next one, from where the curve comes and to
    /// where it goes.
    [[nodiscard]] std::vector<Sample> outline(std::int64_t from, std::int64_t to, int columns) const;

    /// All samples, the oldest first.
    [[nodiscard]] std::vector<Sample> samples() const;

private:
    using Level = std::deque<Sample>;

    void thin(std::size_t level);
    [[nodiscard]] const Sample& sample(std::size_t index) const;
    /// The number of samples before the time, itself excluded.
    [[nodiscard]] std::size_t before(std::int64_t time) const;
    template <class Visit>
    void each(std::size_t first, std::size_t end, Visit&& visit) const;

    std::array<Level, kLevels> m_levels; ///< the newest first
};

} // namespace zor::monitor
