// What a class's tables say, for people.

#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

namespace zor::console {
namespace {

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
    if (row.access == core::Access::Derived)
        line += " read-only at run time";
    return line;
}

std::string eventLine(std::size_t number, const core::EventRow& row)
{
    std::string line = "event " + std::to_string(number) + ' ' + std::string(row.name);
    for (std::size_t i = 0; i < row.argumentCount; ++i)
        line.append(" ").append(row.arguments[i]);
    return line;
}

std::string methodLine(const core::MethodRow& row)
{
    std::string line = "method " + std::string(row.name);
    for (std::size_t i = 0; i < row.argumentCount; ++i)
        line.append(" ").append(row.arguments[i].name);
    return line;
}

} // namespace

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
        session.print("message " + std::to_string(i + 1) + ' ' + std::string(info.messages[i].identifier) + ' ' +
                      std::string(info.messages[i].property->name));
    session.print("message other " + std::string(info.otherMessage));
    for (const core::WidgetRow& row : info.widgets)
        session.print("widget " + std::string(row.name));
}

} // namespace zor::console
