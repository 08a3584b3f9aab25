#pragma once

/// A value that holds for the length of a scope.

#include <utility>

namespace zor::platform {

/// Gives a variable another value, and at the end of the scope the one it had: also where an exception ends it,
/// and where one such scope lies in another. The variable must outlive it.
template <class T>
class Temporarily {
public:
    Temporarily(T& variable, T value) : m_variable(variable), m_before(std::exchange(variable, std::move(value)))
    {}
    ~Temporarily() { m_variable = std::move(m_before); }
    Temporarily(const Temporarily&) = delete;
    Temporarily& operator=(const Temporarily&) = delete;

private:
    T& m_variable;
    T m_before;
};

} // namespace zor::platform
