#pragma once

/// What goes wrong with form files.

#include <stdexcept>
#include <string>
#include <string_view>

namespace zor::forms {

/// "FILE:LINE: TEXT", or "FILE: TEXT" where there is no line (0).
[[nodiscard]] inline std::string located(std::string_view file, std::size_t line, std::string_view text)
{
    std::string whole(file);
    if (line != 0)
        whole.append(":").append(std::to_string(line));
    return whole.append(": ").append(text);
}

/// A form file that cannot be read or written at all. The text names file and line.
class FormError : public std::runtime_error {
public:
    /// For a file, a line (0: none) and what is wrong.
    FormError(std::string_view file, std::size_t line, std::string_view text)
        : std::runtime_error(located(file, line, text))
    {}
};

} // namespace zor::forms
