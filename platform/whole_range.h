#pragma once

/// The arithmetic of widgets with a whole value between two ends, the same on every platform.

#include <zor/platform/notice.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace zor::platform {

/// A value that never leaves its ends. Where the ends are turned upside down it stands at `minimum`.
struct WholeRange {
    std::int32_t value = 0;    ///< where it stands
    std::int32_t minimum = 0;  ///< the lower end
    std::int32_t maximum = 10; ///< the upper end

    /// Cut to the ends; whether the value has changed.
    bool moveTo(std::int32_t position) noexcept
    {
        const std::int32_t cut = std::max(std::min(position, maximum), minimum);
        return std::exchange(value, cut) != cut;
    }
    /// One step within the ends; whether the value has changed.
    bool step(bool up) noexcept
    {
        if (up ? value >= maximum : value <= minimum)
            return false;
        value += up ? 1 : -1;
        return true;
    }
};

/// Number of ticks that stand `frequency` (at least 1) apart on a track, both ends included.
[[nodiscard]] constexpr std::int32_t tickCount(const WholeRange& range, std::int32_t frequency) noexcept
{
    const std::int64_t length = std::int64_t{range.maximum} - range.minimum;
    const std::int64_t count = length <= 0 ? 1 : (length + frequency - 1) / frequency + 1;
    return static_cast<std::int32_t>(std::min<std::int64_t>(count, std::numeric_limits<std::int32_t>::max()));
}

/// How far Page Up and Page Down move a track: ten pages from end to end.
[[nodiscard]] constexpr std::int32_t pageStep(const WholeRange& range) noexcept
{
    constexpr std::int64_t kPages = 10;
    const std::int64_t length = std::int64_t{range.maximum} - range.minimum;
    return static_cast<std::int32_t>(std::max<std::int64_t>(length / kPages, 1));
}

/// A platform's widget with such a value, on its base for that interface, which reports.
template <class Base>
class Ranged : public Base {
public:
    using Base::Base;

    /// Where it stands.
    [[nodiscard]] std::int32_t value() const override { return m_range.value; }
    /// Cut to the ends; a change is reported.
    void setValue(std::int32_t value) override
    {
        if (m_range.moveTo(value))
            this->report(Notice::Change);
    }
    /// The lower end.
    [[nodiscard]] std::int32_t minimum() const override { return m_range.minimum; }
    /// The upper end.
    [[nodiscard]] std::int32_t maximum() const override { return m_range.maximum; }
    /// The value is cut to it.
    void setMinimum(std::int32_t minimum) override
    {
        m_range.minimum = minimum;
        setValue(value());
    }
    /// The value is cut to it.
    void setMaximum(std::int32_t maximum) override
    {
        m_range.maximum = maximum;
        setValue(value());
    }

protected:
    WholeRange m_range;
};

} // namespace zor::platform
