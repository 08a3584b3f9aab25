#pragma once

/// What the fuzzers share. Each file *_fuzz.cpp registers one target, which becomes one libFuzzer program, and
/// part of the program that replays corpora and finds.

#include <zor/controls/registration.h>
#include <zor/core/class_info.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace zor::fuzz {

/// What is fuzzed under a name.
struct Target {
    std::string_view name;
    /// Plays one input and answers what is wrong; nothing when all is well, or the input is refused as promised.
    std::string (*play)(std::string_view input);
};

/// All that the program has.
inline std::vector<Target>& targets()
{
    static std::vector<Target> all;
    return all;
}

/// Registers a target.
struct Registered {
    explicit Registered(const Target& target) { targets().push_back(target); }
};

/// An input taken apart; what is missing is 0 or empty.
class Pieces {
public:
    explicit Pieces(std::string_view input) : m_rest(input) {}

    [[nodiscard]] bool isEmpty() const { return m_rest.empty(); }
    /// A value in the machine's own bytes.
    template <class T>
    T take()
    {
        T value{};
        const std::string_view bytes = text(sizeof(T));
        if (bytes.size() == sizeof(T))
            std::memcpy(&value, bytes.data(), sizeof(T));
        return value;
    }
    std::size_t below(std::size_t count) { return take<std::uint8_t>() % count; }
    std::string_view text(std::size_t length)
    {
        const std::string_view front = m_rest.substr(0, length);
        m_rest.remove_prefix(front.size());
        return front;
    }
    /// Up to the next end of a line, or to the end.
    std::string_view line()
    {
        const std::string_view front = text(std::min(m_rest.find('\n'), m_rest.size()));
        text(1);
        return front;
    }

private:
    std::string_view m_rest;
};

/// The nine controls.
inline const core::ClassRegistry& classes()
{
    static const core::ClassRegistry all = [] {
        core::ClassRegistry classes;
        registerControls(classes);
        return classes;
    }();
    return all;
}

} // namespace zor::fuzz
