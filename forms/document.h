#pragma once

/// A form file as it stands, and what was found in it.

#include <zor/forms/form.h>

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zor::forms {

inline constexpr double kTwipsPerPixel = 15;

/// The class that Designer and uic know a control by ("zor::ZorTextBox").
[[nodiscard]] std::string widgetClass(const core::ClassInfo& info);

/// What a form has of a control, in the order of its class's table; Empty for all else.
[[nodiscard]] std::vector<Variant> storedValues(core::Control& control);

/// Sets one property from its element; says what was wrong with it, nothing when all was well.
[[nodiscard]] std::string setProperty(core::Control& control, const pugi::xml_node& property,
                                      std::string_view name);

struct Form::Document {
    /// Raises FormError for what is no form.
    Document(const core::ClassRegistry& registry, std::string_view text, std::string fileName);

    /// The line of a node. Quick when nodes are asked in the order of the file.
    [[nodiscard]] std::size_t line(const pugi::xml_node& node);
    void note(std::size_t at, std::string_view text);
    /// The item that a control is stored in; a new one stands at the end of the form's own widget.
    [[nodiscard]] std::size_t itemFor(std::string_view wanted, core::Control& control,
                                      platform::Container& container);
    /// A control as opening the item gives it.
    [[nodiscard]] core::ControlPtr<> opened(std::size_t item, platform::Container& container) const;

    const core::ClassRegistry& classes;
    std::string name;
    std::string source;
    pugi::xml_document xml;
    std::vector<Item> items;
    /// Of each item: its element, and its properties as the form has them, as storedValues() gives them.
    std::vector<pugi::xml_node> elements;
    std::vector<std::vector<Variant>> shown;
    std::vector<platform::Rect> placed;
    std::vector<std::string> notes;

private:
    void collect(const pugi::xml_node& element);
    void noteWhatIsLost(const pugi::xml_node& element, const std::string& item);
    bool add(const pugi::xml_node& element);

    std::size_t m_countedTo = 0;
    std::size_t m_countedLine = 1;
};

} // namespace zor::forms
