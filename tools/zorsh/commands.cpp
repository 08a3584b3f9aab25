// The commands of the console, as a table.

#include <zor/platform/error.h>
#include <zor/platform/headless/memory_bag.h>
#include <zor/platform/regional.h>
#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

namespace zor::console {
namespace {

using platform::headless::MemoryPropertyBag;

constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();

/// KEY and VALUE of KEY=VALUE.
std::pair<std::string_view, Variant> assignment(std::string_view word)
{
    const auto equals = word.find('=');
    if (equals == std::string_view::npos || equals == 0)
        raiseError(ErrorNumber::InvalidCall, word);
    return {word.substr(0, equals), parseValue(word.substr(equals + 1))};
}

// --- The form

void userMode(Session& session, const Call& call)
{
    if (call[0] != "on" && call[0] != "off")
        raiseError(ErrorNumber::InvalidCall, call[0]);
    session.stage().setUserMode(call[0] == "on");
}

/// A separator stands in quotes, or bare where it is no quote itself.
std::string separator(std::string_view word)
{
    return word.starts_with('"') ? parseValue(word).text() : std::string(word);
}

void locale(Session&, const Call& call)
{
    platform::setRegionalSettings(
        {separator(call[0]), call.words.size() > 1 ? separator(call[1]) : std::string()});
}

void theme(Session& session, const Call& call)
{
    if (call[0] != "light" && call[0] != "dark")
        raiseError(ErrorNumber::InvalidCall, call[0]);
    session.stage().setTheme(call[0] == "dark");
}

void create(Session& session, const Call& call)
{
    session.create(session.classNamed(call[0]), call[1],
                   [](core::Control& control) { control.initialiseProperties(); });
}

void restore(Session& session, const Call& call)
{
    const core::ClassInfo& info = session.classNamed(call[0]);
    MemoryPropertyBag bag;
    for (const std::string_view word : call.words.subspan(2)) {
        const auto [key, value] = assignment(word);
        bag.set(key, value);
    }
    session.create(info, call[1], [&](core::Control& control) { control.readProperties(bag); });
}

void clone(Session& session, const Call& call)
{
    MemoryPropertyBag bag;
    core::Control& original = session.control(call[0]);
    original.writeProperties(bag);
    session.create(original.info(), call[1], [&](core::Control& control) { control.readProperties(bag); });
}

void printBag(Session& session, const Call& call)
{
    MemoryPropertyBag bag;
    session.control(call[0]).writeProperties(bag);
    for (const auto& [key, value] : bag.entries())
        session.print(key + '=' + print(value));
}

void destroy(Session& session, const Call& call) { session.destroy(call[0]); }

void resize(Session& session, const Call& call)
{
    core::Control& control = session.control(call[0]);
    const auto length = [](std::string_view word) {
        constexpr double kLargest = 245745; // twips; a form of the platform goes no further
        const double twips = naming(word, [&] { return parseValue(word).toDouble(); });
        if (!(twips >= 0 && twips <= kLargest))
            raiseError(ErrorNumber::InvalidCall, word);
        return twips;
    };
    platform::Rect area = control.surface().geometry();
    area.width = length(call[1]);
    area.height = length(call[2]);
    place(control, area);
}

void list(Session& session, const Call&)
{
    std::vector<const Session::Objects::value_type*> objects;
    for (const auto& object : session.objects())
        objects.push_back(&object);
    std::ranges::sort(objects, {}, [](const auto* object) { return object->second.number; });
    for (const auto* object : objects)
        session.print(object->first + ' ' + std::string(object->second.control->info().name));
}

// --- The host

/// The member that was looked up, if there is one.
template <class Row>
const Row* memberOf(const core::Control& control, std::string_view name, const Row* row)
{
    if (row == nullptr)
        naming(control.info().name, name, [] { raiseError(ErrorNumber::NoSuchMember); });
    return row;
}

void put(core::Control& control, std::string_view member, std::string_view value)
{
    // A member that does not exist is reported before a value that cannot be read.
    const core::PropertyRow* row = memberOf(control, member, control.info().property(member));
    control.put(*row, parseValue(value));
}

/// Several properties of a control in one line; the first that fails ends it. The control may end on the way.
void putAll(Session& session, const Call& call)
{
    for (const std::string_view word : call.words.subspan(1)) {
        const auto equals = word.find('=');
        if (equals == std::string_view::npos)
            raiseError(ErrorNumber::InvalidCall, word);
        put(session.control(call[0]), word.substr(0, equals), word.substr(equals + 1));
    }
}

void put(Session& session, const Call& call)
{
    if (call[0].find('.') == std::string_view::npos)
        return putAll(session, call);
    const auto [object, member] = resolve(session, call[0]);
    if (call.words.size() != 2)
        raiseError(ErrorNumber::WrongArguments, member);
    put(*object.control, member, call[1]);
}

void get(Session& session, const Call& call)
{
    std::string line;
    for (const std::string_view path : call.words)
        line.append(line.empty() ? "" : " ").append(print(read(session, path)));
    session.print(std::move(line));
}

void callMethod(Session& session, const Call& call)
{
    const auto [object, method] = resolve(session, call[0]);
    memberOf(*object.control, method, object.control->info().method(method));
    std::vector<Variant> values;
    std::ranges::transform(call.words.subspan(1), std::back_inserter(values), parseValue);
    const core::MethodResult result = object.control->call(method, values);
    if (!std::holds_alternative<std::monostate>(result))
        session.print(print(result));
}

void calculate(Session& session, const Call& call) { session.print(print(evaluate(call.from(0), session))); }

void setArgument(const platform::ArgRef& argument, const Variant& value)
{
    std::visit(
        [&](auto* target) {
            using T = std::remove_pointer_t<decltype(target)>;
            if constexpr (std::is_same_v<T, bool>)
                *target = value.toBoolean();
            else if constexpr (std::is_same_v<T, std::int16_t>)
                *target = value.toInt16();
            else if constexpr (std::is_same_v<T, std::int32_t>)
                *target = value.toInt32();
            else if constexpr (std::is_same_v<T, float>)
                *target = static_cast<float>(value.toDouble());
            else
                *target = value.toText();
        },
        argument);
}

/// What the words behind the event's name say that the host does in it.
std::function<void(platform::EventArgs)> actionOf(Session& session, const core::EventRow& event, const Call& call)
{
    const bool isRun = call[1] == "run";
    if (isRun || call[1] == "raise") {
        if (call.words.size() < 3 || (!isRun && call.words.size() > 3))
            raiseError(ErrorNumber::WrongArguments, call[1]);
        if (isRun)
            return [&session, command = std::string(call.from(2))](auto) { session.runInside(command); };
        return [number = static_cast<ErrorNumber>(parseValue(call[2]).toInt32())](auto) { raiseError(number); };
    }
    const auto [name, value] = assignment(call[1]);
    if (call.words.size() != 2)
        raiseError(ErrorNumber::WrongArguments, call[2]);
    const auto names = std::span(event.arguments).first(event.argumentCount);
    const auto argument = std::ranges::find(names, name);
    if (argument == names.end())
        raiseError(ErrorNumber::NoSuchMember, name);
    return [&session, at = static_cast<std::size_t>(argument - names.begin()),
            value = value](platform::EventArgs args) { session.guard([&] { setArgument(args[at], value); }); };
}

void host(Session& session, const Call& call)
{
    const auto [object, eventName] = resolve(session, call[0]);
    const core::EventRow* event = memberOf(*object.control, eventName, object.control->info().event(eventName));
    if (call[1] != "off")
        return object.recorder->addHandler({event->name, actionOf(session, *event, call)});
    if (call.words.size() != 2)
        raiseError(ErrorNumber::WrongArguments, call[1]);
    object.recorder->removeHandlers(event->name);
}

/// Whether the word behind says that what is taken is not to be printed.
bool isQuiet(const Call& call, std::size_t at)
{
    if (call.words.size() <= at)
        return false;
    if (call[at] != "quiet")
        raiseError(ErrorNumber::InvalidCall, call[at]);
    return true;
}

template <Log Recorder::*TheLog>
void take(Session& session, const Call& call)
{
    const bool quiet = isQuiet(call, 1);
    std::string items = ((*session.object(call[0]).recorder).*TheLog).take();
    if (!quiet)
        session.print(std::move(items));
}

void boxes(Session& session, const Call& call)
{
    const bool quiet = isQuiet(call, 0);
    std::vector<std::string> shown = session.takeBoxes();
    if (quiet)
        return;
    if (shown.empty())
        shown.emplace_back("-");
    for (std::string& box : shown)
        session.print(std::move(box));
}

// --- The operator

void operate(Session& session, const Call& call)
{
    if (const auto [page, widget] = resolvePage(session, call[0]); page != nullptr)
        return act(session, widgetNamed(*page, widget), call.words.subspan(1));
    const auto [object, widget] = resolve(session, call[0]);
    act(session, *object.control, widget, call.words.subspan(1));
}

void menu(Session& session, const Call&)
{
    const platform::PopupMenu* open = session.stage().openMenu();
    session.print(std::string(open == nullptr ? "none" : kMenuName));
}

// --- Property pages

std::vector<core::Control*> controlsNamed(Session& session, std::span<const std::string_view> names)
{
    std::vector<core::Control*> controls;
    for (const std::string_view name : names)
        controls.push_back(&session.control(name));
    return controls;
}

pages::Page& pageNamed(Session& session, std::string_view name)
{
    pages::Page* page = session.page(name);
    if (page == nullptr)
        raiseError(ErrorNumber::ObjectRequired, name);
    return *page;
}

void openPage(Session& session, const Call& call)
{
    session.openPage(call[0], call[1], controlsNamed(session, call.words.subspan(2)));
}

void select(Session& session, const Call& call)
{
    pageNamed(session, call[0]).select(controlsNamed(session, call.words.subspan(1)));
}

void apply(Session& session, const Call& call)
{
    naming(call[0], [&] { pageNamed(session, call[0]).apply(); });
}

// --- Help

void describeClass(Session& session, const Call& call)
{
    if (call.words.empty())
        return describeAll(session);
    if (const pages::PageInfo* page = session.pageClasses().find(call[0]))
        return describe(session, *page);
    describe(session, session.classNamed(call[0]));
}

void help(Session& session, const Call& call)
{
    if (call.words.empty()) {
        for (const Command& command : commands())
            session.print(std::string(command.usage));
        return;
    }
    const auto command = std::ranges::find(commands(), call[0], &Command::name);
    if (command == commands().end())
        raiseError(ErrorNumber::InvalidCall, std::string(call[0]) + " is no command");
    session.print(std::string(command->usage));
    session.print(std::string(command->help));
}

void quit(Session& session, const Call&) { session.end(); }

constexpr std::array kCommands{
    Command{"usermode", "usermode on|off", "run time or design time", 1, 1, userMode},
    Command{"locale", "locale DECIMAL [GROUP]", "changes the user's separators; without GROUP nothing is grouped",
            1, 2, locale},
    Command{"theme", "theme light|dark", "the system's colours; a platform without a screen has none", 1, 1,
            theme},
    Command{"new", "new CLASS NAME", "creates a control and initialises it", 2, 2, create},
    Command{"restore", "restore CLASS NAME KEY=VALUE ...",
            "creates a control and reads the keys; after an error there is no control", 2, kAny, restore},
    Command{"clone", "clone NAME NEWNAME", "stores a control and restores another from it", 2, 2, clone},
    Command{"bag", "bag NAME", "prints what a control stores", 1, 1, printBag},
    Command{"destroy", "destroy NAME", "destroys a control, or closes a page", 1, 1, destroy},
    Command{"size", "size NAME WIDTH HEIGHT", "the container resizes a control (twips)", 3, 3, resize},
    Command{"put", "put NAME.PROPERTY VALUE | NAME PROPERTY=VALUE ...", "the host writes properties", 2, kAny,
            put},
    Command{"get", "get NAME.PROPERTY or NAME.WIDGET.ASPECT ...",
            "prints properties, or what the operator sees, in one line", 1, kAny, get},
    Command{"call", "call NAME.METHOD VALUE ...", "the host calls a method; prints its result", 1, kAny,
            callMethod},
    Command{"calc", "calc EXPRESSION", "evaluates + - * / ( ) over numbers and what get prints", 1, kAny,
            calculate},
    Command{"do", "do NAME.WIDGET ACTION ...", "the operator acts on a widget", 2, kAny, operate},
    Command{"menu", "menu", "prints the menu that is open, or none", 0, 0, menu},
    Command{
        "events", "events NAME [quiet]",
        "prints the events since it was last asked, or since the control stood on the form; quiet forgets them", 1,
        2, take<&Recorder::events>},
    Command{
        "notices", "notices NAME [quiet]",
        "prints the properties notified since it was last asked, or since the control stood on the form; quiet "
        "forgets them",
        1, 2, take<&Recorder::notices>},
    Command{"boxes", "boxes [quiet]", "prints the message boxes shown since it was last asked; quiet forgets them",
            0, 1, boxes},
    Command{
        "host", "host NAME.EVENT ARGUMENT=VALUE | run COMMAND | raise NUMBER | off",
        "what the host's handler does from now on; several add up and happen in their order, off takes all away",
        2, kAny, host},
    Command{"open", "open FILE", "opens a form of Qt Designer: its controls under their object names", 1, 1,
            openForm},
    Command{"save", "save FILE",
            "writes the form that was opened last, or a new one, with the controls as they are", 1, 1, saveForm},
    Command{"page", "page CLASS NAME CONTROL ...",
            "opens a property page on the selected controls, first one first", 3, kAny, openPage},
    Command{"select", "select NAME CONTROL ...", "the frame tells a page of a new selection", 2, kAny, select},
    Command{"apply", "apply NAME", "Apply: the page writes into the first selected control", 1, 1, apply},
    Command{"list", "list", "the controls on the form, oldest first", 0, 0, list},
    Command{
        "describe", "describe [CLASS]",
        "the classes of controls and pages, or what a class has: properties, methods, events, messages, widgets",
        0, 1, describeClass},
    Command{"help", "help [COMMAND]", "the commands, or what one does", 0, 1, help},
    Command{"quit", "quit", "ends the session, or this file", 0, 0, quit},
};

} // namespace

std::span<const Command> commands() noexcept { return kCommands; }

} // namespace zor::console
