// From a name to what can be read there.

#include <zor/platform/error.h>
#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <algorithm>

namespace zor::console {

std::string print(const Reading& reading)
{
    switch (reading.form) {
    case Reading::Form::Colour: return printColour(static_cast<Colour>(reading.value.toInt32()));
    case Reading::Form::Word: return reading.value.toText();
    case Reading::Form::Value: break;
    }
    return print(reading.value);
}

std::pair<Session::Object&, std::string_view> resolve(Session& session, std::string_view path)
{
    const auto point = path.find('.');
    Session::Object& object = session.object(path.substr(0, point));
    if (point == std::string_view::npos || point + 1 == path.size())
        raiseError(ErrorNumber::InvalidCall, path);
    return {object, path.substr(point + 1)};
}

platform::Widget& widgetNamed(core::Control& control, std::string_view name)
{
    const auto row = std::ranges::find(control.info().widgets, name, &core::WidgetRow::name);
    platform::Widget* widget = row == control.info().widgets.end() ? nullptr : control.widget(row->widget);
    if (widget == nullptr)
        raiseError(ErrorNumber::ObjectRequired, name);
    return *widget;
}

platform::Widget& widgetNamed(pages::Page& page, std::string_view name)
{
    platform::Widget* widget = page.widget(name);
    if (widget == nullptr)
        raiseError(ErrorNumber::ObjectRequired, name);
    return *widget;
}

std::pair<pages::Page*, std::string_view> resolvePage(Session& session, std::string_view path)
{
    const auto point = path.find('.');
    pages::Page* page = session.page(path.substr(0, point));
    if (page == nullptr)
        return {nullptr, {}};
    if (point == std::string_view::npos || point + 1 == path.size())
        raiseError(ErrorNumber::InvalidCall, path);
    return {page, path.substr(point + 1)};
}

static Reading readPage(pages::Page& page, std::string_view member)
{
    const auto point = member.find('.');
    if (point != std::string_view::npos)
        return aspect(widgetNamed(page, member.substr(0, point)), member.substr(point + 1));
    if (member != "Changed")
        raiseError(ErrorNumber::NoSuchMember, member);
    return {page.isChanged()};
}

Reading read(Session& session, std::string_view path)
{
    if (const auto [page, member] = resolvePage(session, path); page != nullptr)
        return readPage(*page, member);
    const auto [object, member] = resolve(session, path);
    const auto point = member.find('.');
    if (point == std::string_view::npos)
        return {object.control->property(member)};
    return aspect(widgetNamed(*object.control, member.substr(0, point)), member.substr(point + 1));
}

} // namespace zor::console
