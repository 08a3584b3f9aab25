// Writes the QWidgets out of the controls' tables: zor_enumerations.h, zor_widgets.h and zor_widgets.cpp.

#include <zor/controls/registration.h>
#include <zor/core/control.h>
#include <zor/core/setting_order.h>
#include <zor/platform/version.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

namespace {

using namespace zor;
using std::string;
using std::string_view;

constexpr string_view kNotice = "// Generated from the controls' tables; see widgets/generate in the sources.\n\n";

string qtType(core::ValueKind kind)
{
    using enum core::ValueKind;
    switch (kind) {
    case Boolean: return "bool";
    case Int16:
    case Int32: return "int";
    case Double: return "double";
    case Text: return "QString";
    case Any: return "QVariant";
    case UnitType: return "UNIT_TYPE";
    case MeasType: return "MEAS_TYPE";
    case RegisterType: return "REGISTER_TYPE";
    case EntryType: return "ENTRY_TYPE";
    case Colour: return "uint";
    }
    return "QVariant";
}

string argument(core::ValueKind kind, string_view name)
{
    const string type = qtType(kind);
    const bool byReference = type.front() == 'Q';
    return (byReference ? "const " + type + "& " : type + ' ') + string(name);
}

/// Type of a signal's argument, and how to read it; by position in platform::ArgRef.
struct ArgumentType {
    string_view type;
    string_view read;
    string_view close = ")";
};
constexpr std::array kArgumentTypes{
    ArgumentType{"int", "*std::get<std::int16_t*>"}, ArgumentType{"int", "*std::get<std::int32_t*>"},
    ArgumentType{"double", "*std::get<float*>"}, ArgumentType{"bool", "*std::get<bool*>"},
    ArgumentType{"const QString&", "QString::fromStdString(*std::get<std::string*>", "))"}};
static_assert(kArgumentTypes.size() == std::variant_size_v<platform::ArgRef>);

string widgetName(const core::ClassInfo& info) { return string(info.widgetName()); }

bool isReadable(const core::PropertyRow& row) { return row.get != nullptr || row.field.at != nullptr; }

/// The signal that tells of a change of a property which can change without being written; empty for any other.
/// The value handed over has the signal that tells of it for all classes.
string notifierOf(const core::PropertyRow& row)
{
    if (row.name == "OutputValue" || row.name == "ModifiedValue")
        return "valueChanged";
    return isReadable(row) && (row.isLive || row.isFollowing()) ? string(row.name) + "Changed" : string();
}

std::size_t indexOf(const core::ClassInfo& info, const core::PropertyRow* row)
{
    return static_cast<std::size_t>(std::ranges::find(info.properties, row) - info.properties.begin());
}

// --- The enumerations

template <class Rows, class Value>
void writeEnumeration(std::ostream& out, string_view name, const Rows& rows, Value&& value)
{
    out << "    /// As zor::" << name << ".\n    enum " << name << " : qint32 {\n";
    for (const auto& row : rows)
        out << "        " << row.name << " = " << value(row) << ",\n";
    out << "    };\n    Q_ENUM(" << name << ")\n";
}

string enumerations()
{
    std::ostringstream out;
    out << "#pragma once\n\n"
        << kNotice
        << "#include <zor/platform/macros_aside.h>\n\n#include <QWidget>\n\nnamespace zor {\n\n"
           "/// The published enumerations, with names that Qt can look up. The setters refuse any other "
           "integer.\n"
           "class ZorWidget : public QWidget {\n    Q_OBJECT\n\npublic:\n";
    const auto plain = [](const auto& row) { return row.value; };
    writeEnumeration(out, "UNIT_TYPE", units::kUnitTypes,
                     [](const auto& row) { return static_cast<std::int32_t>(row.type); });
    writeEnumeration(out, "MEAS_TYPE", units::kUnits,
                     [](const auto& row) { return static_cast<std::int32_t>(row.unit); });
    writeEnumeration(out, "REGISTER_TYPE", units::kRegisterTypes, plain);
    writeEnumeration(out, "ENTRY_TYPE", units::kEntryTypes, plain);
    out << "\nprotected:\n    using QWidget::QWidget;\n};\n\n} // namespace zor\n\n"
           "#include <zor/platform/macros_back.h>\n";
    return out.str();
}

// --- The header

void declareProperties(std::ostream& out, const core::ClassInfo& info)
{
    for (const core::PropertyRow* row : core::settingOrder(info)) {
        const string name(row->name);
        const string notifier = notifierOf(*row);
        out << "    Q_PROPERTY(" << qtType(row->field.kind) << ' ' << name << " READ " << name << " WRITE set"
            << name << (notifier.empty() ? "" : " NOTIFY " + notifier) << (row->isInForms() ? "" : " STORED false")
            << ")\n";
    }
}

string signalOf(const core::EventRow& row)
{
    string text = string(row.name) + '(';
    for (std::size_t i = 0; i < row.argumentCount; ++i)
        text.append(i == 0 ? "" : ", ")
            .append(kArgumentTypes[row.types[i]].type)
            .append(" ")
            .append(row.arguments[i]);
    return text + ')';
}

string methodOf(const core::MethodRow& row, string_view scope)
{
    using Answers = core::MethodRow::Answers;
    string text = row.answers == Answers::Nothing ? "void"
                  : row.answers == Answers::Array ? "QVariantList"
                                                  : qtType(row.result);
    // Outside the class the enumerations need their scope.
    if (!scope.empty() && text.find("_TYPE") != string::npos)
        text.insert(0, scope);
    text.append(" ").append(scope).append(row.name).append("(");
    for (std::size_t i = 0; i < row.argumentCount; ++i)
        text.append(i == 0 ? "" : ", ").append(argument(row.arguments[i].kind, row.arguments[i].name));
    return text + ')';
}

void declareClass(std::ostream& out, const core::ClassInfo& info)
{
    const string name = widgetName(info);
    out << "/// " << info.name << " as a QWidget.\nclass " << name << " : public ZorControl {\n    Q_OBJECT\n";
    declareProperties(out, info);
    out << "\npublic:\n    /// In user mode.\n    explicit " << name
        << "(QWidget* parent = nullptr);\n    /// The control itself, with everything that it offers.\n    "
           "[[nodiscard]] "
        << info.name << "& control() const noexcept;\n\n";
    for (const core::PropertyRow* row : info.properties)
        out << "    /// " << row->meaning << "\n    [[nodiscard]] " << qtType(row->field.kind) << ' ' << row->name
            << "() const;\n";
    out << '\n';
    for (const core::MethodRow& row : info.methods)
        out << "    /// " << row.meaning << "\n    Q_INVOKABLE " << methodOf(row, {}) << ";\n";
    out << "\npublic Q_SLOTS:\n";
    for (const core::PropertyRow* row : info.properties)
        out << "    void set" << row->name << '(' << argument(row->field.kind, "value") << ");\n";
    out << "\nQ_SIGNALS:\n";
    for (const core::EventRow& row : info.events) {
        if (row.isRaised)
            out << "    /// " << core::meaningOf(row) << "\n    void " << signalOf(row) << ";\n";
    }
    for (const core::PropertyRow* row : info.properties) {
        if (const string notifier = notifierOf(*row); !notifier.empty() && notifier != "valueChanged")
            out << "    /// " << row->name << " is another one.\n    void " << notifier << "();\n";
    }
    out << "\nprotected:\n    void emitEvent(std::size_t event, platform::EventArgs arguments) override;\n};\n\n";
}

string header(const core::ClassRegistry& registry)
{
    std::ostringstream out;
    out << "#pragma once\n\n" << kNotice << "#include <zor/widgets/zor_control.h>\n\nnamespace zor {\n\n";
    for (const core::ClassInfo* info : registry.classes())
        out << "class " << info->name << ";\n";
    out << '\n';
    for (const core::ClassInfo* info : registry.classes())
        declareClass(out, *info);
    out << "} // namespace zor\n";
    return out.str();
}

// --- The source

void defineEvents(std::ostream& out, const core::ClassInfo& info)
{
    out << "void " << widgetName(info)
        << "::emitEvent(std::size_t event, [[maybe_unused]] platform::EventArgs arguments)\n{\n"
           "    switch (event) {\n";
    for (std::size_t number = 0; number < info.events.size(); ++number) {
        const core::EventRow& row = info.events[number];
        if (!row.isRaised)
            continue;
        out << "    case " << number << ": emit " << row.name << '(';
        for (std::size_t i = 0; i < row.argumentCount; ++i) {
            const auto& [type, read, close] = kArgumentTypes[row.types[i]];
            out << (i == 0 ? "" : ", ") << read << "(arguments[" << i << "]" << close;
        }
        out << "); break;\n";
    }
    out << "    default: break;\n    }\n}\n\n";
}

void defineMethods(std::ostream& out, const core::ClassInfo& info)
{
    using Answers = core::MethodRow::Answers;
    const string scope = widgetName(info) + "::";
    for (std::size_t number = 0; number < info.methods.size(); ++number) {
        const core::MethodRow& row = info.methods[number];
        string arguments;
        for (std::size_t i = 0; i < row.argumentCount; ++i)
            arguments.append(i == 0 ? "" : ", ").append("of(").append(row.arguments[i].name).append(")");
        string whole = row.answers == Answers::Array ? "callForArray(" : "callMethod(";
        whole.append(std::to_string(number)).append(", {").append(arguments).append("})");
        out << methodOf(row, scope) << " { ";
        if (row.answers == Answers::Value)
            out << "return as<" << qtType(row.result) << ">(" << whole << ");";
        else
            out << (row.answers == Answers::Array ? "return " : "") << whole << ';';
        out << " }\n";
    }
    out << '\n';
}

void defineClass(std::ostream& out, const core::ClassInfo& info)
{
    const string name = widgetName(info);
    out << "// --- " << name << "\n\n"
        << name << "::" << name << "(QWidget* parent) : ZorControl(\"" << info.name << "\", parent) {}\n"
        << info.name << "& " << name << "::control() const noexcept\n{\n    return static_cast<" << info.name
        << "&>(ZorControl::control());\n}\n\n";
    for (const core::PropertyRow* row : info.properties) {
        const string type = qtType(row->field.kind);
        const std::size_t index = indexOf(info, row);
        out << (type.find("_TYPE") == string::npos ? "" : name + "::") << type << ' ' << name << "::" << row->name
            << "() const { return "
            << (isReadable(*row) ? "as<" + type + ">(readProperty(" + std::to_string(index) + "))" : type + "{}")
            << "; }\nvoid " << name << "::set" << row->name << '(' << argument(row->field.kind, "value")
            << ") { writeProperty(" << index << (type == "QVariant" ? ", value); }\n" : ", of(value)); }\n");
    }
    out << '\n';
    defineMethods(out, info);
    defineEvents(out, info);
}

/// The header of a control's class, as the sources include it.
string headerOf(const core::ClassInfo& info, const std::filesystem::path& top)
{
    const string file = string(info.name) + ".h";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top / "controls")) {
        if (entry.path().filename() == file)
            return std::filesystem::relative(entry.path(), top).generic_string();
    }
    throw std::runtime_error("no header " + file);
}

string source(const core::ClassRegistry& registry, const std::filesystem::path& top)
{
    std::ostringstream out;
    out << kNotice << "#include <zor/widgets/zor_widgets.h>\n\n";
    for (const core::ClassInfo* info : registry.classes())
        out << "#include <zor/" << headerOf(*info, top) << ">\n";
    out << "#include <zor/widgets/conversion.h>\n\n#include <array>\n\nnamespace zor {\n\n"
           "using widgets::as;\nusing widgets::of;\n\n";
    for (const core::ClassInfo* info : registry.classes())
        defineClass(out, *info);
    out << "std::span<const WidgetClass> widgetClasses() noexcept\n{\n    static constexpr std::array kClasses{\n";
    for (const core::ClassInfo* info : registry.classes()) {
        const string name = widgetName(*info);
        out << "        WidgetClass{\"zor::" << name << "\", \"" << info->name
            << "\", [](QWidget* parent) -> ZorControl* { return new " << name << "(parent); }},\n";
    }
    out << "    };\n    return kClasses;\n}\n\n} // namespace zor\n";
    return out.str();
}

/// A file that would come out as it is keeps its time, so that nothing is built again for it.
void write(const std::filesystem::path& file, const string& text)
{
    std::ifstream before(file, std::ios::binary);
    std::ostringstream old;
    old << before.rdbuf();
    if (before && old.str() == text)
        return;
    std::ofstream out(file, std::ios::binary);
    out << text;
    out.flush();
    if (!out)
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && string_view(argv[1]) == "--version") {
        std::cout << "zor-generate-widgets " << version() << '\n';
        return 0;
    }
    if (argc != 3) {
        std::cerr << "usage: zor-generate-widgets SOURCES FOLDER | --version\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[2];
        core::ClassRegistry registry;
        registerControls(registry);
        std::filesystem::create_directories(folder);
        write(folder / "zor_enumerations.h", enumerations());
        write(folder / "zor_widgets.h", header(registry));
        write(folder / "zor_widgets.cpp", source(registry, argv[1]));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "zor-generate-widgets: " << error.what() << '\n';
        return 1;
    }
}
