#pragma once

/// What a random test takes its numbers from. Such a test has `Random` in its name: scripts/fresh-seeds finds it
/// by that.

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

namespace zor::tests {

/// The numbers of ZOR_SEED, or of a fixed seed, so that a check fails for what was changed only. A failure prints
/// the seed that repeats it.
class Random : public std::mt19937 {
public:
    Random() : Random(std::getenv("ZOR_SEED")) {}

private:
    explicit Random(const char* given) : Random(given != nullptr ? std::strtoul(given, nullptr, 10) : 1) {}
    explicit Random(unsigned long seed)
        : std::mt19937(static_cast<unsigned>(seed)),
          m_trace(__FILE__, __LINE__, "ZOR_SEED=" + std::to_string(seed))
    {}

    testing::ScopedTrace m_trace;
};

} // namespace zor::tests
