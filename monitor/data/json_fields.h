#pragma once

/// Typed access to a JSON tree; whatever is not as expected raises FileError with its line.

#include <zor/monitor/data/json_document.h>

#include <QtGlobal>

#include <initializer_list>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zor::monitor {

class Fields;

/// The names with commas between them, for a message.
[[nodiscard]] std::string joined(std::span<const std::string_view> names);

/// A value of the file. The tree and the file's name must outlive it.
class Value {
public:
    Value(const JsonNode& node, const std::string& file) : m_node(&node), m_file(&file) {}

    [[nodiscard]] int line() const { return m_node->line; }
    /// As message() does; the error names the line.
    [[noreturn]] void fail(const char* english, std::initializer_list<std::string> parts = {}) const;

    [[nodiscard]] bool isText() const;
    [[nodiscard]] const std::string& text() const;
    [[nodiscard]] bool boolean() const;
    [[nodiscard]] double number() const; ///< finite
    [[nodiscard]] long long integer(long long lowest, long long highest) const;
    void version(long long known) const; ///< of the format; fails for any other
    [[nodiscard]] std::vector<Value> array() const;
    [[nodiscard]] Fields object() const;

private:
    const JsonNode* m_node;
    const std::string* m_file;
};

/// The members of an object. What has not been asked for when the reading ends is a mistake in the file.
class Fields {
public:
    Fields(const Value& owner, const JsonNode::Object& members, const std::string& file)
        : m_owner(owner), m_members(&members), m_file(&file)
    {}

    [[nodiscard]] Value need(std::string_view name);
    std::optional<Value> take(std::string_view name);
    void finish() const;

private:
    Value m_owner;
    const JsonNode::Object* m_members;
    const std::string* m_file;
    std::set<std::string, std::less<>> m_taken;
};

} // namespace zor::monitor
