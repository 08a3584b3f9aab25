// What a class's tables say, for people.

#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <array>

namespace zor::console {
namespace {

/// Between what a table says for programs and what it says for people.
constexpr std::string_view kMeaning = " - ";

std::string_view accessNote(const core::PropertyRow& row)
{
    if (row.access == core::Access::Derived)
        return " read-only at run time";
    if (row.access == core::Access::ReadOnly)
        return " read-only";
    return row.get == nullptr && row.field.at == nullptr ? " write-only" : "";
}

std::string propertyLine(const core::PropertyRow& row)
{
    const auto literal = [](const core::Literal& value) { return print(core::toVariant(value)); };
    std::string line = "property " + std::string(row.name) + ' ' + std::string(kindName(row.field.kind));
    const bool hasDefault = !std::holds_alternative<std::monostate>(row.bagDefault);
    if (!row.key.empty())
        line += " key " + printText(row.key);
    else
        line += " not stored";
    if (hasDefault)
        line += " default " + literal(row.bagDefault);
    if (!std::holds_alternative<std::monostate>(row.initial))
        line += " initially " + literal(row.initial);
    return line.append(accessNote(row)).append(kMeaning).append(row.meaning);
}

std::string eventLine(std::size_t number, const core::EventRow& row)
{
    std::string line = "event " + std::to_string(number) + ' ' + std::string(row.name);
    for (std::size_t i = 0; i < row.argumentCount; ++i)
        line.append(" ").append(row.arguments[i]);
    return line.append(kMeaning).append(core::meaningOf(row));
}

std::string methodLine(const core::MethodRow& row)
{
    std::string line = "method " + std::string(row.name);
    for (std::size_t i = 0; i < row.argumentCount; ++i)
        line.append(" ").append(row.arguments[i].name);
    return line.append(kMeaning).append(row.meaning);
}

std::string messageLine(std::size_t number, const core::MessageRow& row)
{
    std::string line = "message " + std::to_string(number) + ' ' + std::string(row.identifier);
    return line.append(" ").append(row.property->name).append(kMeaning).append(row.property->meaning);
}

std::string fieldLine(const pages::Field& field)
{
    std::string line = "field " + std::string(field.widget) + ' ' + std::string(pages::kindName(field.kind)) +
                       ' ' + printText(field.caption) + " edits " + std::string(field.property);
    for (const std::string_view item : field.items)
        line.append(" ").append(printText(item));
    if (field.kind == pages::FieldKind::Number)
        line += ' ' + std::to_string(field.minimum) + " to " + std::to_string(field.maximum) + " by " +
                std::string(field.spinButton);
    return line.append(kMeaning).append(field.meaning);
}

} // namespace

void describeAll(Session& session)
{
    for (const core::ClassInfo* info : session.classes().classes())
        session.print("class " + std::string(info->name));
    for (const pages::PageInfo* info : session.pageClasses().rows())
        session.print("page " + std::string(info->name));
}

void describe(Session& session, const pages::PageInfo& info)
{
    session.print(
        ("page " + std::string(info.name) + ' ' + printText(info.caption)).append(kMeaning).append(info.meaning));
    for (const std::string_view control : info.controls)
        session.print("for " + std::string(control));
    for (const pages::Field* field : info.fields)
        session.print(fieldLine(*field));
}

void describe(Session& session, const core::ClassInfo& info)
{
    session.print("class " + std::string(info.name));
    for (const core::PropertyRow* row : info.properties)
        session.print(propertyLine(*row));
    for (const core::MethodRow& row : info.methods)
        session.print(methodLine(row));
    for (std::size_t i = 0; i < info.events.size(); ++i)
        session.print(eventLine(i + 1, info.events[i]));
    for (std::size_t i = 0; i < info.messages.size(); ++i)
        session.print(messageLine(i + 1, info.messages[i]));
    session.print("message other " + std::string(info.otherMessage));
    for (const core::WidgetRow& row : info.widgets)
        session.print(std::string("widget ").append(row.name).append(kMeaning).append(row.meaning));
}

} // namespace zor::console
