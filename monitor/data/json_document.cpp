#include <zor/monitor/data/json_document.h>
#include <zor/monitor/data/message.h>

#include <QtGlobal>
#include <nlohmann/json.hpp>

#include <cstddef>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace zor::monitor {
namespace {

constexpr std::size_t kDeepest = 32;

/// Counts the lines that the parser has read. The parser looks one character beyond a number; that may be the
/// end of its line, so a line ends only with the character after its end.
struct LineCount {
    int line = 1;
    bool ended = false;

    void see(char character)
    {
        line += ended ? 1 : 0;
        ended = character == '\n';
    }
};

class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, LineCount* count) : m_at(at), m_count(count) {}
    reference operator*() const { return *m_at; }
    CountingIterator& operator++()
    {
        m_count->see(*m_at++);
        return *this;
    }
    CountingIterator operator++(int)
    {
        const CountingIterator old = *this;
        ++*this;
        return old;
    }
    bool operator==(const CountingIterator& other) const { return m_at == other.m_at; }

private:
    const char* m_at;
    LineCount* m_count;
};

/// Builds the tree from what the parser reports.
class Builder {
public:
    Builder(const std::string& file, const LineCount& count) : m_file(file), m_count(count) {}

    bool null() { return add({}); }
    bool boolean(bool value) { return add(value); }
    bool number_integer(std::int64_t value) { return add(static_cast<double>(value)); }
    bool number_unsigned(std::uint64_t value) { return add(static_cast<double>(value)); }
    bool number_float(double value, const std::string& /*text*/) { return add(value); }
    bool string(std::string& value) { return add(std::move(value)); }
    bool binary(std::vector<std::uint8_t>& /*value*/) { return false; }
    bool start_object(std::size_t /*size*/) { return open(JsonNode::Object{}); }
    bool start_array(std::size_t /*size*/) { return open(JsonNode::Array{}); }
    bool end_object() { return close(); }
    bool end_array() { return close(); }
    bool key(std::string& name)
    {
        if (!m_open.back().names.insert(name).second)
            fail(QT_TRANSLATE_NOOP("texts", "\"%1\" stands twice"), {name});
        m_key = std::move(name);
        return true;
    }
    bool parse_error(std::size_t /*position*/, const std::string& last, const nlohmann::json::exception& /*error*/)
    {
        // Texts in it have quotes of their own.
        if (last.empty())
            fail(QT_TRANSLATE_NOOP("texts", "this is not JSON"));
        fail(QT_TRANSLATE_NOOP("texts", "this is not JSON, at %1"), {last.substr(0, kShown)});
    }

    JsonNode take() { return std::move(m_root); }

private:
    static constexpr std::size_t kShown = 40;
    using Value = decltype(JsonNode::value);
    struct Level {
        JsonNode* node;
        std::unordered_set<std::string> names; ///< of an object's members
    };

    [[noreturn]] void fail(const char* english, std::initializer_list<std::string> parts = {}) const
    {
        throw FileError(m_file, m_count.line, message(english, parts));
    }
    bool add(Value value)
    {
        place(std::move(value));
        return true;
    }
    bool open(Value value)
    {
        if (m_open.size() >= kDeepest)
            fail(QT_TRANSLATE_NOOP("texts", "nested too deeply"));
        // A list grows only while its newest element is closed, so the pointers stay good.
        m_open.push_back({&place(std::move(value)), {}});
        return true;
    }
    bool close()
    {
        m_open.pop_back();
        return true;
    }
    JsonNode& place(Value value)
    {
        JsonNode node{std::move(value), m_count.line};
        if (m_open.empty())
            return m_root = std::move(node);
        if (auto* array = std::get_if<JsonNode::Array>(&m_open.back().node->value))
            return array->emplace_back(std::move(node));
        auto& object = std::get<JsonNode::Object>(m_open.back().node->value);
        object.push_back({std::move(m_key), std::move(node)});
        return object.back().value;
    }

    const std::string& m_file;
    const LineCount& m_count;
    JsonNode m_root;
    std::vector<Level> m_open;
    std::string m_key;
};

} // namespace

FileError::FileError(const std::string& file, int line, const std::string& reason)
    : std::runtime_error(line > 0 ? file + ':' + std::to_string(line) + ": " + reason : file + ": " + reason),
      m_line(line)
{}

JsonNode parseJson(std::string_view text, const std::string& file)
{
    LineCount count;
    Builder builder(file, count);
    nlohmann::json::sax_parse(CountingIterator(text.data(), &count),
                              CountingIterator(text.data() + text.size(), &count), &builder);
    return builder.take();
}

} // namespace zor::monitor
