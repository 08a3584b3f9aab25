// Writes the reference pages: what the tables of every class say, one Markdown file a class.

#include <zor/controls/registration.h>
#include <zor/core/control.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <string_view>

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
           "| Property | Type | Key | Default | New | A write |\n|---|---|---|---|---|---|\n";
    for (const PropertyRow* row : info.properties)
        out << "| " << code(row->name) << " | " << kindName(row->field.kind) << " | "
            << (row->key.empty() ? "not stored" : code(row->key)) << " | " << literal(row->bagDefault) << " | "
            << literal(row->initial) << " | " << access(*row) << " |\n";
}

void writeMethods(std::ostream& out, const ClassInfo& info)
{
    out << "\n## Methods\n\n| Method | Arguments | Answers |\n|---|---|---|\n";
    for (const core::MethodRow& row : info.methods) {
        out << "| " << code(row.name) << " | ";
        for (std::size_t i = 0; i < row.argumentCount; ++i)
            out << (i == 0 ? "" : ", ") << code(row.arguments[i].name) << ' ' << kindName(row.arguments[i].kind);
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
           "Arguments are by reference: what a handler changes reaches the widget. An event that no widget's "
           "report\n"
           "raises comes from the control itself, or is declared only.\n\n"
           "| No. | Event | Arguments | Re-raised from |\n|---|---|---|---|\n";
    for (std::size_t i = 0; i < info.events.size(); ++i) {
        const core::EventRow& row = info.events[i];
        out << "| " << i + 1 << " | " << code(row.name) << " | ";
        for (std::size_t a = 0; a < row.argumentCount; ++a)
            out << (a == 0 ? "" : ", ") << code(row.arguments[a]) << ' ' << kTypes[row.types[a]];
        out << " | ";
        for (const core::WidgetRow& widget : info.widgets) {
            if (row.notice != platform::Notice::None && widget.widget == row.widget)
                out << code(widget.name);
        }
        out << " |\n";
    }
}

void writeMessages(std::ostream& out, const ClassInfo& info)
{
    out << "\n## Messages\n\n| No. | Identifier | Property |\n|---|---|---|\n";
    for (std::size_t i = 0; i < info.messages.size(); ++i)
        out << "| " << i + 1 << " | " << code(info.messages[i].identifier) << " | "
            << code(info.messages[i].property->name) << " |\n";
    out << "\nThe identifier of any other number is " << code(info.otherMessage) << ".\n";
}

std::string page(const ClassInfo& info)
{
    std::ostringstream out;
    out << "# " << info.name
        << "\n\nWritten from the class's tables by `scripts/reference`. What each member means stands in the\n"
           "class's header.\n\n";
    writeProperties(out, info);
    writeMethods(out, info);
    writeEvents(out, info);
    writeMessages(out, info);
    out << "\n## Widgets\n\n";
    for (const core::WidgetRow& row : info.widgets)
        out << "- " << code(row.name) << '\n';
    return out.str();
}

std::map<std::string, std::string> pages()
{
    core::ClassRegistry registry;
    registerControls(registry);
    std::map<std::string, std::string> result;
    std::string index = "# Reference\n\nThe controls, one page a class.\n\n";
    for (const ClassInfo* info : registry.classes()) {
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
    if (argc != 2 && !check) {
        std::cerr << "usage: zor-reference [--check] FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[argc - 1];
    bool stale = false;
    for (const auto& [file, text] : pages()) {
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
