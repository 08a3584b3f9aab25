#include <zor/monitor/data/json_fields.h>
#include <zor/monitor/data/message.h>

#include <algorithm>
#include <cmath>

namespace zor::monitor {

std::string joined(std::span<const std::string_view> names)
{
    std::string all;
    for (const std::string_view name : names)
        all.append(all.empty() ? "" : ", ").append(name);
    return all;
}

void Value::fail(const char* english, std::initializer_list<std::string> parts) const
{
    throw FileError(*m_file, m_node->line, message(english, parts));
}

bool Value::isText() const { return std::holds_alternative<std::string>(m_node->value); }

const std::string& Value::text() const
{
    if (const auto* text = std::get_if<std::string>(&m_node->value))
        return *text;
    fail(QT_TRANSLATE_NOOP("texts", "a text is expected here"));
}

bool Value::boolean() const
{
    if (const auto* value = std::get_if<bool>(&m_node->value))
        return *value;
    fail(QT_TRANSLATE_NOOP("texts", "true or false is expected here"));
}

double Value::number() const
{
    const auto* value = std::get_if<double>(&m_node->value);
    if (value == nullptr || !std::isfinite(*value))
        fail(QT_TRANSLATE_NOOP("texts", "a number is expected here"));
    return *value;
}

long long Value::integer(long long lowest, long long highest) const
{
    const double value = number();
    if (value != std::floor(value) || value < static_cast<double>(lowest) || value > static_cast<double>(highest))
        fail(QT_TRANSLATE_NOOP("texts", "a whole number from %1 to %2 is expected here"),
             {std::to_string(lowest), std::to_string(highest)});
    return static_cast<long long>(value);
}

void Value::version(long long known) const
{
    if (number() != static_cast<double>(known))
        fail(QT_TRANSLATE_NOOP("texts", "version %1 is expected here, and this program knows no other"),
             {std::to_string(known)});
}

std::vector<Value> Value::array() const
{
    const auto* array = std::get_if<JsonNode::Array>(&m_node->value);
    if (array == nullptr)
        fail(QT_TRANSLATE_NOOP("texts", "a list is expected here"));
    std::vector<Value> values;
    for (const JsonNode& node : *array)
        values.emplace_back(node, *m_file);
    return values;
}

Fields Value::object() const
{
    const auto* object = std::get_if<JsonNode::Object>(&m_node->value);
    if (object == nullptr)
        fail(QT_TRANSLATE_NOOP("texts", "an object is expected here"));
    return {*this, *object, *m_file};
}

Value Fields::need(std::string_view name)
{
    if (auto value = take(name))
        return *value;
    m_owner.fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is missing"), {std::string(name)});
}

std::optional<Value> Fields::take(std::string_view name)
{
    m_taken.emplace(name);
    const auto found = std::ranges::find(*m_members, name, &JsonMember::name);
    return found == m_members->end() ? std::nullopt : std::optional(Value(found->value, *m_file));
}

void Fields::finish() const
{
    for (const auto& [name, node] : *m_members) {
        if (!m_taken.contains(name))
            Value(node, *m_file).fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is not known here"), {name});
    }
}

} // namespace zor::monitor
