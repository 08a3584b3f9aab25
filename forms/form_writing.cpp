// Out of controls into a form.

#include <zor/core/control.h>
#include <zor/core/setting_order.h>
#include <zor/forms/document.h>
#include <zor/forms/form_error.h>
#include <zor/forms/markup.h>
#include <zor/forms/values.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <system_error>

namespace zor::forms {
namespace {

using std::string;
using std::string_view;

void writeValue(pugi::xml_node property, const core::PropertyRow& row, const Written& written)
{
    const pugi::xml_node old = firstElement(property);
    if (old && written.element == old.name())
        return setText(old, written.text);
    property.remove_children();
    const pugi::xml_node value = insertText(property, written.element.c_str(), written.text);
    if (written.element == "string" && (row.isIdentifier || row.field.kind == core::ValueKind::Any))
        pugi::xml_node(value).append_attribute("notr").set_value("true");
    // A number that is no member can be set by name only.
    property.remove_attribute("stdset");
    if (core::isEnumeration(row.field.kind) && written.element == "number")
        property.append_attribute("stdset").set_value("0");
}

/// The property's element; a new one stands where a form sets it.
pugi::xml_node propertyElement(pugi::xml_node widget, const core::ClassInfo& info, string_view name)
{
    const auto order = core::settingOrder(info);
    const auto placeOf = [&](string_view wanted) {
        return std::ranges::find(order, wanted, &core::PropertyRow::name) - order.begin();
    };
    pugi::xml_node last; // where it stands twice, that one counts
    for (const pugi::xml_node& property : widget.children("property")) {
        if (attributeOf(property, "name") == name)
            last = property;
    }
    if (last)
        return last;
    pugi::xml_node before;
    for (const pugi::xml_node& property : widget.children("property")) {
        const string present = attributeOf(property, "name");
        if (!before && info.property(present) != nullptr && placeOf(present) > placeOf(name))
            before = property;
    }
    if (!before && !widget.child("property"))
        before = firstElement(widget);
    pugi::xml_node added = insertElement(widget, "property", before);
    added.append_attribute("name").set_value(string(name).c_str());
    return added;
}

void writePlace(pugi::xml_node widget, const platform::Rect& place)
{
    pugi::xml_node property = widget.find_child_by_attribute("property", "name", "geometry");
    if (!property) {
        property = insertElement(widget, "property", firstElement(widget));
        property.append_attribute("name").set_value("geometry");
    }
    const pugi::xml_node old = property.child("rect");
    const pugi::xml_node rect = old ? old : insertElement(property, "rect");
    const auto side = [&](const char* name, double twips) {
        const std::string pixels = std::to_string(std::lround(twips / kTwipsPerPixel));
        if (const pugi::xml_node present = rect.child(name))
            setText(present, pixels);
        else
            insertText(rect, name, pixels);
    };
    side("x", place.left);
    side("y", place.top);
    side("width", place.width);
    side("height", place.height);
}

/// Says where the class comes from, once.
void declareClass(pugi::xml_node ui, const string& className)
{
    pugi::xml_node list = ui.child("customwidgets");
    for (const pugi::xml_node& entry : list.children("customwidget")) {
        if (textOf(entry.child("class")) == className)
            return;
    }
    if (!list) {
        pugi::xml_node behind = ui.child("widget").next_sibling();
        while (behind && behind.type() != pugi::node_element)
            behind = behind.next_sibling();
        list = insertElement(ui, "customwidgets", behind);
    }
    const pugi::xml_node entry = insertElement(list, "customwidget");
    insertText(entry, "class", className);
    insertText(entry, "extends", "QWidget");
    insertText(entry, "header", "zor/widgets.h");
}

/// Writes what differs; whether anything did.
bool writeChanges(pugi::xml_node widget, const core::ClassInfo& info, const std::vector<Variant>& before,
                  const std::vector<Variant>& now)
{
    bool any = false;
    for (const core::PropertyRow* row : core::settingOrder(info)) {
        const auto column =
            static_cast<std::size_t>(std::ranges::find(info.properties, row) - info.properties.begin());
        if (!row->isInForms() || now[column] == before[column])
            continue;
        const std::optional<Written> written = writtenValue(row->field.kind, now[column]);
        if (!written)
            continue;
        writeValue(propertyElement(widget, info, row->name), *row, *written);
        any = true;
    }
    return any;
}

} // namespace

std::size_t Form::Document::itemFor(string_view wanted, core::Control& control, platform::Container& container)
{
    const core::ClassInfo& info = control.info();
    const auto fits = [&](const Item& item) { return item.name == wanted && item.info == &info; };
    auto at = std::ranges::find_if(items, [&](const Item& item) { return item.isTaken && fits(item); });
    if (at != items.end())
        return static_cast<std::size_t>(at - items.begin());
    at = std::ranges::find_if(items, fits);
    auto index = static_cast<std::size_t>(at - items.begin());
    if (at == items.end()) {
        pugi::xml_node root = xml.document_element();
        if (!root.child("widget"))
            throw FormError(name, 0, "has no widget that a control could lie on");
        pugi::xml_node element = insertElement(root.child("widget"), "widget");
        element.append_attribute("class").set_value(widgetClass(info).c_str());
        element.append_attribute("name").set_value(escaped(wanted).c_str());
        writePlace(element, control.surface().geometry());
        declareClass(root, widgetClass(info));
        items.push_back({&info, string(wanted), control.surface().geometry(), 0, false});
        elements.push_back(element);
        shown.emplace_back();
        placed.push_back(control.surface().geometry());
    }
    shown[index] = storedValues(*opened(index, container));
    items[index].isTaken = true;
    return index;
}

core::ControlPtr<> Form::Document::opened(std::size_t item, platform::Container& container) const
{
    core::ControlPtr<> control = items[item].info->create(container);
    control->initialiseProperties();
    for (const pugi::xml_node& property : elements[item].children("property"))
        static_cast<void>(setProperty(*control, property, attributeOf(property, "name")));
    return control;
}

void Form::store(string_view name, core::Control& control, platform::Container& container)
{
    Document& document = *m_document;
    const std::size_t item = document.itemFor(name, control, container);
    const pugi::xml_node element = document.elements[item];
    std::vector<Variant> now = storedValues(control);
    bool any = writeChanges(element, control.info(), document.shown[item], now);
    // A property that has its fresh value again may still be moved by one that is written: then it is written too.
    constexpr int kRounds = 3;
    for (int round = 0; any && round < kRounds; ++round)
        any = writeChanges(element, control.info(), storedValues(*document.opened(item, container)), now);
    document.shown[item] = std::move(now);

    const platform::Rect place = control.surface().geometry();
    if (document.items[item].place && !(place == document.placed[item]))
        writePlace(element, place);
    document.placed[item] = place;
}

void Form::keepOnly(const std::function<bool(const Item&)>& keep)
{
    Document& document = *m_document;
    for (std::size_t i = document.items.size(); i-- > 0;) {
        if (keep(document.items[i]))
            continue;
        const pugi::xml_node element = document.elements[i];
        const bool isInLayout = string_view(element.parent().name()) == "item";
        removeElement(isInLayout ? element.parent() : element);
        const auto at = static_cast<std::ptrdiff_t>(i);
        document.items.erase(document.items.begin() + at);
        document.elements.erase(document.elements.begin() + at);
        document.shown.erase(document.shown.begin() + at);
        document.placed.erase(document.placed.begin() + at);
    }
}

string Form::text() const { return markupOf(m_document->xml); }

namespace {

/// A name beside a file that nothing has.
std::filesystem::path nameBeside(const std::filesystem::path& file)
{
    std::filesystem::path beside;
    int number = 0;
    std::error_code ignored;
    do {
        beside = file;
        beside += number == 0 ? ".new" : ".new" + std::to_string(number);
        ++number;
    } while (std::filesystem::exists(std::filesystem::symlink_status(beside, ignored)));
    return beside;
}

} // namespace

void Form::write(const std::filesystem::path& file) const
{
    // What a link leads to is written, the link stays.
    std::error_code failure;
    std::filesystem::path target = std::filesystem::weakly_canonical(file, failure);
    if (failure)
        target = file;
    // Beside the file first: a full disk leaves the old form as it was.
    const std::filesystem::path beside = nameBeside(target);
    std::ofstream out(beside, std::ios::binary | std::ios::trunc);
    out << text();
    out.close();
    std::error_code ignored;
    if (const auto old = std::filesystem::status(target, ignored); std::filesystem::exists(old))
        std::filesystem::permissions(beside, old.permissions(), ignored);
    failure.clear();
    if (out)
        std::filesystem::rename(beside, target, failure);
    if (!out || failure) {
        std::filesystem::remove(beside, ignored);
        throw FormError(file.string(), 0, "cannot be written");
    }
}

} // namespace zor::forms
