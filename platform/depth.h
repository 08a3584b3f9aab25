#pragma once

/// How deep something is nested in itself.

namespace zor::platform {

/// Counts how often something is under way, one inside the other. A level lasts as long as a scope, so that an
/// exception ends it too.
class Depth {
public:
    class Level {
    public:
        explicit Level(Depth& depth) noexcept : m_depth(depth) { ++m_depth.m_levels; }
        ~Level() { --m_depth.m_levels; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        Depth& m_depth;
    };

    [[nodiscard]] int levels() const noexcept { return m_levels; }
    [[nodiscard]] bool isNone() const noexcept { return m_levels == 0; }

private:
    int m_levels = 0;
};

} // namespace zor::platform
