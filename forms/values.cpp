#include <zor/forms/values.h>
#include <zor/platform/text.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zor::forms {
namespace {

using core::ValueKind;
using std::string;
using std::string_view;

constexpr string_view kScope = "zor::ZorWidget::";
constexpr string_view kReplacement = "\xEF\xBF\xBD";

struct Entity {
    string_view name;
    string_view text;
};
constexpr std::array kEntities{Entity{"lt", "<"}, Entity{"gt", ">"}, Entity{"amp", "&"}, Entity{"quot", "\""},
                               Entity{"apos", "'"}};

/// Calls `use(name, value)` for each member of the kind's enumeration.
template <class Use>
void eachMember(ValueKind kind, Use&& use)
{
    const auto all = [&](const auto& rows, auto&& value) {
        for (const auto& row : rows)
            use(row.name, static_cast<std::int32_t>(value(row)));
    };
    switch (kind) {
    case ValueKind::UnitType: return all(units::kUnitTypes, [](const auto& row) { return row.type; });
    case ValueKind::MeasType: return all(units::kUnits, [](const auto& row) { return row.unit; });
    case ValueKind::RegisterType: return all(units::kRegisterTypes, [](const auto& row) { return row.value; });
    case ValueKind::EntryType: return all(units::kEntryTypes, [](const auto& row) { return row.value; });
    default: return;
    }
}

template <class Number>
std::optional<Number> parsed(string_view text)
{
    text = platform::trimmed(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

template <class Number>
string spelled(Number number)
{
    std::array<char, 400> buffer{};
    char* end = nullptr;
    if constexpr (std::is_floating_point_v<Number>)
        end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed).ptr;
    else
        end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

std::optional<Variant> integer(string_view text)
{
    const auto number = parsed<std::int64_t>(text);
    if (!number)
        return std::nullopt;
    using Limits = std::numeric_limits<std::int32_t>;
    if (*number >= Limits::min() && *number <= Limits::max())
        return static_cast<std::int32_t>(*number);
    return static_cast<double>(*number);
}

std::optional<Variant> decimal(string_view text)
{
    const auto number = parsed<double>(text);
    if (!number || !std::isfinite(*number))
        return std::nullopt;
    return *number;
}

std::optional<Variant> truth(string_view text)
{
    text = platform::trimmed(text);
    if (text == "true" || text == "false")
        return text == "true";
    return std::nullopt;
}

std::optional<Variant> member(ValueKind kind, string_view text)
{
    text = platform::trimmed(text);
    if (const auto scope = text.rfind("::"); scope != string_view::npos)
        text.remove_prefix(scope + 2);
    std::optional<Variant> found;
    eachMember(kind, [&](string_view name, std::int32_t value) {
        if (name == text)
            found = value;
    });
    return found;
}

void appendCodePoint(string& text, std::uint32_t code)
{
    const bool isCharacter = code == '\t' || code == '\n' || code == '\r' ||
                             (code >= 0x20 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF));
    platform::appendCharacter(text, isCharacter ? code : U'\uFFFD');
}

void appendReference(string& text, string_view name)
{
    if (!name.starts_with('#')) {
        const auto known = std::ranges::find(kEntities, name, &Entity::name);
        text += known == kEntities.end() ? kReplacement : known->text;
        return;
    }
    const bool isHex = name.starts_with("#x") || name.starts_with("#X");
    const string_view digits = name.substr(isHex ? 2 : 1);
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, isHex ? 16 : 10);
    appendCodePoint(text, error == std::errc() && end == digits.data() + digits.size() ? code : 0);
}

} // namespace

std::optional<Written> writtenValue(ValueKind kind, const Variant& value)
{
    if (value.isEmpty())
        return std::nullopt;
    if (value.isBoolean())
        return Written{"bool", value.toBoolean() ? "true" : "false"};
    if (value.isText())
        return Written{"string", value.text()};
    if (value.holds<double>())
        return Written{"double", spelled(value.number())};
    const std::int32_t number = value.toInt32();
    std::optional<Written> written;
    eachMember(kind, [&](string_view name, std::int32_t member) {
        if (member == number)
            written = Written{"enum", string(kScope).append(name)};
    });
    return written ? written : Written{"number", spelled(number)};
}

std::optional<Variant> readValue(ValueKind kind, string_view element, string_view text)
{
    if (element == "string" || element == "cstring")
        return Variant(text);
    if (element == "bool")
        return truth(text);
    if (element == "enum" || element == "set")
        return member(kind, text);
    if (element == "number" || element == "uint" || element == "longlong" || element == "ulonglong")
        return integer(text);
    if (element == "double" || element == "float")
        return decimal(text);
    return std::nullopt;
}

string unescaped(string_view text)
{
    string plain;
    plain.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto end = text[at] == '&' ? text.find(';', at) : string_view::npos;
        if (end != string_view::npos) {
            appendReference(plain, text.substr(at + 1, end - at - 1));
            at = end;
        } else if (text[at] == '\r') {
            // A line end counts as one character, however it is stored.
            plain += '\n';
            if (at + 1 < text.size() && text[at + 1] == '\n')
                ++at;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

string escaped(string_view text)
{
    string written;
    for (const char c : platform::validUtf8(text)) {
        const auto entity =
            std::ranges::find_if(kEntities, [c](const Entity& known) { return known.text.front() == c; });
        if (c == '\r')
            written += "&#13;";
        else if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n')
            written += kReplacement;
        else if (entity != kEntities.end() && c != '\'')
            written.append("&").append(entity->name).append(";");
        else
            written += c;
    }
    return written;
}

} // namespace zor::forms
