#include <zor/forms/markup.h>
#include <zor/forms/values.h>

#include <sstream>

namespace zor::forms {
namespace {

std::size_t depthOf(const pugi::xml_node& node)
{
    std::size_t depth = 0;
    for (pugi::xml_node at = node.parent(); at.type() == pugi::node_element; at = at.parent())
        ++depth;
    return depth;
}

bool isBlank(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata &&
           std::string_view(node.value()).find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string lineOfDepth(std::size_t depth) { return '\n' + std::string(depth, ' '); }

} // namespace

std::string markupOf(const pugi::xml_document& document)
{
    std::ostringstream out;
    document.save(out, "", kFormatAll, pugi::encoding_utf8);
    return out.str();
}

std::string textOf(const pugi::xml_node& element)
{
    std::string text;
    for (const pugi::xml_node& part : element.children()) {
        if (part.type() == pugi::node_pcdata)
            text += unescaped(part.value());
        else if (part.type() == pugi::node_cdata)
            text += part.value();
    }
    return text;
}

std::string attributeOf(const pugi::xml_node& element, const char* name)
{
    return unescaped(element.attribute(name).value());
}

pugi::xml_node firstElement(const pugi::xml_node& element)
{
    return element.find_child([](const pugi::xml_node& child) { return child.type() == pugi::node_element; });
}

pugi::xml_node insertElement(pugi::xml_node parent, const char* name, const pugi::xml_node& before)
{
    const std::size_t depth = depthOf(parent) + 1;
    if (before) {
        const pugi::xml_node added = parent.insert_child_before(name, before);
        parent.insert_child_before(pugi::node_pcdata, before).set_value(lineOfDepth(depth).c_str());
        return added;
    }
    const pugi::xml_node last = parent.last_child();
    if (isBlank(last)) {
        // The blanks in front of the end tag stay there.
        parent.insert_child_before(pugi::node_pcdata, last).set_value(lineOfDepth(depth).c_str());
        return parent.insert_child_before(name, last);
    }
    parent.append_child(pugi::node_pcdata).set_value(lineOfDepth(depth).c_str());
    const pugi::xml_node added = parent.append_child(name);
    parent.append_child(pugi::node_pcdata).set_value(lineOfDepth(depth - 1).c_str());
    return added;
}

pugi::xml_node insertText(pugi::xml_node parent, const char* name, std::string_view text)
{
    const pugi::xml_node added = insertElement(parent, name);
    setText(added, text);
    return added;
}

void removeElement(const pugi::xml_node& element)
{
    pugi::xml_node parent = element.parent();
    if (const pugi::xml_node blanks = element.previous_sibling(); isBlank(blanks))
        parent.remove_child(blanks);
    parent.remove_child(element);
}

void setText(pugi::xml_node element, std::string_view text)
{
    element.remove_children();
    if (!text.empty())
        element.append_child(pugi::node_pcdata).set_value(escaped(text).c_str());
}

} // namespace zor::forms
