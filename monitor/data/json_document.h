#pragma once

/// A JSON text as a tree that remembers the line of every value, so that an error can name it.

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zor::monitor {

/// What is wrong with a file: "FILE:LINE: reason".
class FileError : public std::runtime_error {
public:
    FileError(const std::string& file, int line, const std::string& reason);
    [[nodiscard]] int line() const noexcept { return m_line; } ///< counted from 1; 0 when no line is to blame

private:
    int m_line;
};

struct JsonMember;

struct JsonNode {
    using Array = std::vector<JsonNode>;
    /// In the order of the file; no name stands twice.
    using Object = std::vector<JsonMember>;

    std::variant<std::monostate, bool, double, std::string, Array, Object> value;
    int line = 0;
};

struct JsonMember {
    std::string name;
    JsonNode value;
};

/// Reads a text whole. Raises FileError for anything that is not JSON, for a name that stands twice in an
/// object, and for more than 32 levels.
[[nodiscard]] JsonNode parseJson(std::string_view text, const std::string& file);

} // namespace zor::monitor
