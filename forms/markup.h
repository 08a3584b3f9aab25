#pragma once

/// Reading and changing a form's XML so that what is not touched keeps every byte.

#include <pugixml.hpp>

#include <initializer_list>
#include <string>
#include <string_view>

namespace zor::forms {

/// Keeps comments, blanks, sections and escapes as they stand.
inline constexpr unsigned kParseAll = pugi::parse_cdata | pugi::parse_comments | pugi::parse_pi |
                                      pugi::parse_declaration | pugi::parse_ws_pcdata | pugi::parse_fragment;
inline constexpr unsigned kFormatAll = pugi::format_raw | pugi::format_no_escapes | pugi::format_no_declaration;

[[nodiscard]] std::string markupOf(const pugi::xml_document& document);

/// The text inside an element, references replaced.
[[nodiscard]] std::string textOf(const pugi::xml_node& element);
/// An attribute's value, references replaced.
[[nodiscard]] std::string attributeOf(const pugi::xml_node& element, const char* name);
/// The first child that is an element.
[[nodiscard]] pugi::xml_node firstElement(const pugi::xml_node& element);

/// Puts a new element behind the last one of `parent`, or in front of `before`, on a line of its own and indented
/// as deep as it lies.
pugi::xml_node insertElement(pugi::xml_node parent, const char* name, const pugi::xml_node& before = {});
/// The same with a text inside.
pugi::xml_node insertText(pugi::xml_node parent, const char* name, std::string_view text);
/// Takes an element out together with the blanks in front of it.
void removeElement(const pugi::xml_node& element);
void setText(pugi::xml_node element, std::string_view text);

} // namespace zor::forms
