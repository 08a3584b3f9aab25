#include <zor/core/control.h>
#include <zor/forms/document.h>
#include <zor/forms/form_error.h>
#include <zor/forms/markup.h>
#include <zor/forms/values.h>
#include <zor/forms/xml_check.h>
#include <zor/platform/error.h>
#include <zor/platform/text.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace zor::forms {
namespace {

using std::string;
using std::string_view;

constexpr string_view kWidgetScope = "zor::";
constexpr string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Qt's own classes, and Designer's line: they are no business of this library.
bool isQtClass(string_view name) { return name.starts_with('Q') || name == "Line"; }

const core::ClassInfo* classOf(const core::ClassRegistry& registry, string_view widget)
{
    if (!widget.starts_with(kWidgetScope))
        return nullptr;
    return registry.find(string(core::ClassInfo::kPrefix).append(widget.substr(kWidgetScope.size())));
}

std::size_t offsetOf(const pugi::xml_node& node)
{
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0));
}

std::optional<platform::Rect> rectOf(const pugi::xml_node& rect)
{
    std::array<double, 4> sides{};
    constexpr std::array kNames{"x", "y", "width", "height"};
    constexpr double kLargest = 16383; // pixels; a form of the platform goes no further
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const auto value = readValue(core::ValueKind::Int32, "number", textOf(rect.child(kNames[i])));
        if (!value || std::abs(value->number()) > kLargest || (i >= 2 && value->number() < 0))
            return std::nullopt;
        sides[i] = value->number() * kTwipsPerPixel;
    }
    return platform::Rect{sides[0], sides[1], sides[2], sides[3]};
}

/// What an element holds, as a note shows it, cut where nobody reads on; nothing for one without a text.
string inQuotes(string_view text)
{
    constexpr std::size_t kMost = 60;
    text = platform::trimmed(text);
    if (text.empty())
        return {};
    const string_view shown = text.substr(0, platform::byteOffset(text, kMost));
    string quotation = string(" (\"").append(shown).append(shown.size() < text.size() ? "...\")" : "\")");
    std::ranges::replace_if(
        quotation, [](unsigned char byte) { return byte < ' '; }, ' ');
    return quotation;
}

/// Qt's own properties begin with a small letter, the published ones with a capital.
bool isQtProperty(string_view name) { return !name.empty() && !(name[0] >= 'A' && name[0] <= 'Z'); }

} // namespace

string widgetClass(const core::ClassInfo& info) { return string(kWidgetScope).append(info.widgetName()); }

std::vector<Variant> storedValues(core::Control& control)
{
    std::vector<Variant> values;
    for (const core::PropertyRow* row : control.info().properties)
        values.push_back(row->isInForms() ? control.get(*row) : Variant());
    return values;
}

string setProperty(core::Control& control, const pugi::xml_node& property, string_view name)
{
    const core::PropertyRow* row = control.info().property(name);
    if (row == nullptr && isQtProperty(name)) {
        const string published = platform::upperCase(name.substr(0, 1)).append(name.substr(1));
        return control.info().property(published) == nullptr ? string() : "no such property: it is " + published;
    }
    if (row == nullptr)
        return "no such property";
    if (row->isFollowing())
        return "follows from other properties and is not set";
    const pugi::xml_node element = firstElement(property);
    const string text = textOf(element);
    const std::optional<Variant> value = readValue(row->field.kind, element.name(), text);
    if (!value)
        return string("<")
            .append(element.name())
            .append("> holds no value of the kind ")
            .append(core::kindName(row->field.kind))
            .append(inQuotes(text));
    try {
        control.put(*row, *value);
    } catch (const RunTimeError& error) {
        return string(error.reason());
    }
    return {};
}

Form::Document::Document(const core::ClassRegistry& registry, string_view text, string fileName)
    : classes(registry), name(std::move(fileName))
{
    if (text.starts_with(kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    checkXml(text, name);
    source = text;
    const pugi::xml_parse_result result =
        xml.load_buffer(source.data(), source.size(), kParseAll, pugi::encoding_utf8);
    if (!result)
        throw FormError(name, lineOf(source, static_cast<std::size_t>(result.offset)), result.description());
    const pugi::xml_node root = xml.document_element();
    if (string_view(root.name()) != "ui")
        throw FormError(name, lineOf(source, offsetOf(root)), "is no form of Qt Designer");
    collect(root);
}

std::size_t Form::Document::line(const pugi::xml_node& node)
{
    const std::size_t offset = offsetOf(node);
    if (offset < m_countedTo) {
        m_countedTo = 0;
        m_countedLine = 1;
    }
    m_countedLine += lineOf(std::string_view(source).substr(m_countedTo), offset - m_countedTo) - 1;
    m_countedTo = offset;
    return m_countedLine;
}

void Form::Document::note(std::size_t at, string_view text) { notes.push_back(located(name, at, text)); }

// No deeper than the check lets a file be.
void Form::Document::collect(const pugi::xml_node& element)
{
    for (const pugi::xml_node& child : element.children()) {
        if (string_view(child.name()) == "widget" && add(child))
            continue;
        if (child.type() == pugi::node_element)
            collect(child);
    }
}

void Form::Document::noteWhatIsLost(const pugi::xml_node& element, const string& item)
{
    std::set<string> names;
    for (const pugi::xml_node& property : element.children("property")) {
        const string name = attributeOf(property, "name");
        if (!names.insert(name).second)
            note(line(property),
                 string(item).append(".").append(name).append(": stands twice, and the last one counts"));
    }
    for (const pugi::xml_node& inside : element.children("widget")) {
        if (classOf(classes, attributeOf(inside, "class")) != nullptr)
            note(line(inside), item + ": a control inside a control is none of the form's");
    }
}

/// Whether it is a control's; what lies inside one is none of the form's controls.
bool Form::Document::add(const pugi::xml_node& element)
{
    const string className = attributeOf(element, "class");
    const core::ClassInfo* info = classOf(classes, className);
    if (info == nullptr) {
        if (!isQtClass(className))
            note(line(element), "unknown class \"" + className + '"');
        return false;
    }
    Item item{info, attributeOf(element, "name"), std::nullopt, line(element), false};
    const pugi::xml_node geometry = element.find_child_by_attribute("property", "name", "geometry");
    if (const pugi::xml_node rect = geometry.child("rect")) {
        item.place = rectOf(rect);
        if (!item.place)
            note(line(geometry), item.name + ".geometry: a rectangle of whole pixels is expected");
    }
    noteWhatIsLost(element, item.name);
    items.push_back(std::move(item));
    elements.push_back(element);
    shown.emplace_back();
    placed.emplace_back();
    return true;
}

} // namespace zor::forms
