// Writes the reference pages: what the tables of every class say, one Markdown file a class.

#include <zor/controls/registration.h>
#include <zor/core/argument_words.h>
#include <zor/core/control.h>
#include <zor/pages/registration.h>
#include <zor/platform/version.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace zor;
using core::ClassInfo;
using core::PropertyRow;

/// A text as it stands in a cell of a table.
std::string cell(std::string_view text)
{
    std::string result;
    for (const char c : text)
        result += c == '|' ? std::string("\\|") : std::string(1, c);
    return result;
}

std::string code(std::string_view text) { return '`' + cell(text) + '`'; }

std::string literal(const core::Literal& value)
{
    const Variant variant = core::toVariant(value);
    if (variant.isEmpty())
        return "";
    return code(variant.isText() ? '"' + variant.text() + '"' : variant.toText());
}

std::string_view access(const PropertyRow& row)
{
    if (row.get == nullptr && row.field.at == nullptr)
        return "all that it takes; not notified";
    switch (row.access) {
    case core::Access::ReadWrite: return "";
    case core::Access::Silent: return "not notified";
    case core::Access::Derived: return "error 383 at run time, ignored at design time";
    case core::Access::ReadOnly: return "error 383";
    }
    return "";
}

void writeProperties(std::ostream& out, const ClassInfo& info)
{
    out << "## Properties\n\n"
           "In the order in which they are stored. *New* is the value of a new control where it differs from the\n"
           "default, which a missing key reads as. Unless a row says otherwise a write notifies the container.\n\n"
           "| Property | Meaning | Type | Key | Default | New | A write |\n|---|---|---|---|---|---|---|\n";
    for (const PropertyRow* row : info.properties)
        out << "| " << code(row->name) << " | " << cell(row->meaning) << " | " << kindName(row->field.kind)
            << " | " << (row->key.empty() ? "not stored" : code(row->key)) << " | " << literal(row->bagDefault)
            << " | " << literal(row->initial) << " | " << access(*row) << " |\n";
}

void writeMethods(std::ostream& out, const ClassInfo& info)
{
    out << "\n## Methods\n\n| Method | Meaning | Arguments | Answers |\n|---|---|---|---|\n";
    for (const core::MethodRow& row : info.methods) {
        out << "| " << code(row.name) << " | " << cell(row.meaning) << " | ";
        for (std::size_t i = 0; i < row.argumentCount; ++i) {
            const auto& [name, kind] = row.arguments[i];
            out << (i == 0 ? "" : "; ") << code(name) << " (" << kindName(kind)
                << "): " << cell(core::argumentMeaning(name));
        }
        out << " | ";
        if (row.answers == core::MethodRow::Answers::Array)
            out << "array of " << kindName(row.result);
        else if (row.answers == core::MethodRow::Answers::Value)
            out << kindName(row.result);
        out << " |\n";
    }
}

void writeEvents(std::ostream& out, const ClassInfo& info)
{
    constexpr std::array<std::string_view, 5> kTypes{"16-bit integer", "32-bit integer", "single", "boolean",
                                                     "string"};
    static_assert(std::variant_size_v<platform::ArgRef> == kTypes.size());
    out << "\n## Events\n\n"
           "Arguments are by reference: a key code, a character and `Cancel` that a handler changes reach the "
           "widget. An event that\n"
           "no widget's report raises comes from the control itself, or is declared only.\n\n"
           "| No. | Event | Raised when | Arguments | Re-raised from |\n|---|---|---|---|---|\n";
    for (std::size_t i = 0; i < info.events.size(); ++i) {
        const core::EventRow& row = info.events[i];
        out << "| " << i + 1 << " | " << code(row.name) << " | " << cell(core::meaningOf(row)) << " | ";
        for (std::size_t a = 0; a < row.argumentCount; ++a)
            out << (a == 0 ? "" : ", ") << code(row.arguments[a]) << ' ' << kTypes[row.types[a]];
        out << " | ";
        for (const core::WidgetRow& widget : info.widgets) {
            if (row.isRaised && row.notice != platform::Notice::None && widget.widget == row.widget)
                out << code(widget.name);
        }
        out << " |\n";
    }
}

/// Each argument once: the same name means the same in every event.
void writeArguments(std::ostream& out, const ClassInfo& info)
{
    std::vector<std::string_view> known;
    for (const core::EventRow& row : info.events) {
        for (std::size_t i = 0; i < row.argumentCount; ++i) {
            const std::string_view name = row.arguments[i];
            if (std::ranges::find(known, name) != known.end())
                continue;
            known.push_back(name);
            out << "- " << code(name) << ": " << cell(core::argumentMeaning(name)) << '\n';
        }
    }
}

void writeMessages(std::ostream& out, const ClassInfo& info)
{
    out << "\n## Messages\n\n| No. | Identifier | Property | Meaning |\n|---|---|---|---|\n";
    for (std::size_t i = 0; i < info.messages.size(); ++i)
        out << "| " << i + 1 << " | " << code(info.messages[i].identifier) << " | "
            << code(info.messages[i].property->name) << " | " << cell(info.messages[i].property->meaning)
            << " |\n";
    out << "\nThe identifier of any other number is " << code(info.otherMessage) << ".\n";
}

std::string page(const ClassInfo& info)
{
    std::ostringstream out;
    out << "# " << info.name << "\n\n"
        << info.meaning << "\n\nWritten from the class's tables by `scripts/reference`.\n\n";
    writeProperties(out, info);
    writeMethods(out, info);
    writeEvents(out, info);
    writeMessages(out, info);
    out << "\n## Widgets\n\n";
    for (const core::WidgetRow& row : info.widgets)
        out << "- " << code(row.name) << ": " << cell(row.meaning) << '\n';
    out << "\n## Arguments of events\n\n";
    writeArguments(out, info);
    return out.str();
}

std::string page(const pages::PageInfo& info)
{
    std::ostringstream out;
    out << "# " << info.name
        << "\n\nWritten from the page's table by `scripts/reference`. A property page captioned \"" << info.caption
        << "\", made for";
    for (const std::string_view control : info.controls)
        out << (control == info.controls.front() ? " " : ", ") << code(control);
    out << ". " << info.meaning
        << " It shows the first selected control; Apply writes all of its fields, but for a list in which\n"
           "nothing is chosen because the property has a value that it does not offer.\n\n"
           "| Field | Caption | Meaning | Kind | Property | Choices |\n|---|---|---|---|---|---|\n";
    for (const pages::Field* field : info.fields) {
        out << "| " << code(field->widget) << " | " << cell(field->caption) << " | " << cell(field->meaning)
            << " | " << pages::kindName(field->kind) << " | " << code(field->property) << " | ";
        for (const std::string_view item : field->items)
            out << (item == field->items.front() ? "" : ", ") << cell(item);
        if (field->kind == pages::FieldKind::Number)
            out << field->minimum << " to " << field->maximum << ", by " << code(field->spinButton);
        out << " |\n";
    }
    return out.str();
}

std::map<std::string, std::string> allPages()
{
    core::ClassRegistry registry;
    registerControls(registry);
    std::map<std::string, std::string> result;
    std::string index = "# Reference\n\nOne page a class: the controls, then the property pages.\n\n";
    for (const ClassInfo* info : registry.classes()) {
        const std::string file = std::string(info->name) + ".md";
        result[file] = page(*info);
        index += "- [" + std::string(info->name) + "](" + file + ")\n";
    }
    pages::PageRegistry pageClasses;
    registerPages(pageClasses);
    for (const pages::PageInfo* info : pageClasses.rows()) {
        const std::string file = std::string(info->name) + ".md";
        result[file] = page(*info);
        index += "- [" + std::string(info->name) + "](" + file + ")\n";
    }
    result["README.md"] = index;
    return result;
}

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace

int main(int argc, char** argv)
{
    const bool check = argc == 3 && std::string_view(argv[1]) == "--check";
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::cout << "zor-reference " << version() << '\n';
        return 0;
    }
    if (argc != 2 && !check) {
        std::cerr << "usage: zor-reference [--check] FOLDER | --version\n";
        return 2;
    }
    const std::filesystem::path folder = argv[argc - 1];
    bool stale = false;
    for (const auto& [file, text] : allPages()) {
        if (contentOf(folder / file) == text)
            continue;
        stale = true;
        if (check)
            std::cerr << (folder / file).string() << " is out of date: run scripts/reference\n";
        else if (!(std::ofstream(folder / file, std::ios::binary) << text)) {
            std::cerr << "zor-reference: cannot write " << (folder / file).string() << '\n';
            return 1;
        }
    }
    return check && stale ? 1 : 0;
}
