#include <zor/controls/registration.h>
#include <zor/pages/registration.h>
#include <zor/platform/error.h>
#include <zor/platform/text.h>
#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>
#include <zor/tools/zorsh/session.h>

#include <algorithm>
#include <array>
#include <new>

namespace zor::console {
namespace {

/// How deep handlers may run commands that raise events that run handlers.
constexpr int kDeepest = 50;
constexpr int kOutOfStackSpace = 28;
constexpr int kOutOfMemory = 7;

constexpr std::string_view kNotInNames = " \t.=\"()[]+-*/,#";

std::string_view boxIconName(platform::BoxIcon icon)
{
    constexpr std::array<std::string_view, 3> kNames{"critical", "information", "exclamation"};
    return kNames[static_cast<std::size_t>(icon)];
}

bool isName(std::string_view text)
{
    return !text.empty() && text.find_first_of(kNotInNames) == std::string_view::npos &&
           !(text[0] >= '0' && text[0] <= '9') && platform::isUtf8(text);
}

} // namespace

Session::Session(std::unique_ptr<Stage> stage) : m_stage(std::move(stage))
{
    registerControls(m_registry);
    registerPages(m_pageRegistry);
    m_stage->onPropertyChanged = [this](platform::Component& component, std::string_view name) {
        if (const auto at = m_recorders.find(&component); at != m_recorders.end())
            at->second->notices.add(std::string(name));
    };
    m_stage->onMessage = [this](const platform::MessageBox& box) {
        m_boxes.push_back(std::string(boxIconName(box.icon)) + ' ' + printText(box.title) + ' ' +
                          printText(box.text));
    };
}

Session::~Session()
{
    m_pages.clear();
    while (!m_objects.empty())
        destroy(std::string(m_objects.begin()->first));
    m_stage->settle();
}

std::vector<OutputLine> Session::run(std::string_view line)
{
    m_output.clear();
    m_isRunaway = false;
    runInside(line);
    guard([this] { m_stage->during([this] { m_stage->settle(); }); });
    return std::exchange(m_output, {});
}

void Session::runInside(std::string_view line)
{
    // Once too deep, nothing more is run until the outermost command has ended: two handlers that call each
    // other twice would otherwise go on for 2^50 commands.
    if (m_isRunaway)
        return;
    const platform::Depth::Level level(m_depth);
    if (m_depth.levels() > kDeepest) {
        m_isRunaway = true;
        return printError(kOutOfStackSpace, "handlers run commands that raise events without end");
    }
    guard([&] { dispatch(line); });
}

void Session::guard(const std::function<void()>& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        printError(static_cast<int>(error.number()), error.what());
    } catch (const std::bad_alloc&) {
        printError(kOutOfMemory, "out of memory");
    } catch (const std::exception& error) {
        printError(static_cast<int>(ErrorNumber::InvalidCall), error.what());
    }
}

void Session::dispatch(std::string_view line)
{
    line = withoutComment(line);
    const std::vector<std::string_view> parts = words(line);
    if (parts.empty())
        return;
    const auto command = std::ranges::find(commands(), parts.front(), &Command::name);
    if (command == commands().end())
        raiseError(ErrorNumber::InvalidCall, std::string(parts.front()) + " is no command");
    const auto arguments = std::span(parts).subspan(1);
    if (arguments.size() < command->least || arguments.size() > command->most)
        raiseError(ErrorNumber::WrongArguments, command->usage);
    m_stage->during([&] { command->run(*this, {arguments, line}); });
}

void Session::printError(int number, std::string_view text)
{
    // It may quote a line that is no text.
    print("error " + std::to_string(number) + ' ' + platform::validUtf8(text), OutputLine::Kind::Error);
}

// --- Controls by name

Session::Object& Session::object(std::string_view name)
{
    const auto at = m_objects.find(name);
    if (at == m_objects.end())
        raiseError(ErrorNumber::ObjectRequired, name);
    return at->second;
}

const core::ClassInfo& Session::classNamed(std::string_view name) const
{
    const core::ClassInfo* info = m_registry.find(name);
    if (info == nullptr)
        raiseError(ErrorNumber::ObjectRequired, name);
    return *info;
}

std::string Session::objection(std::string_view name) const
{
    if (!isName(name))
        return std::string(name) + " is no name";
    if (m_objects.contains(name) || m_pages.contains(name))
        return std::string(name) + " is the name of another";
    return {};
}

void Session::requireFree(std::string_view name) const
{
    if (const std::string why = objection(name); !why.empty())
        raiseError(ErrorNumber::InvalidCall, why);
}

forms::Form& Session::form()
{
    if (!m_form)
        m_form.emplace(m_registry);
    return *m_form;
}

void Session::create(const core::ClassInfo& info, std::string_view name,
                     const std::function<void(core::Control&)>& prepare)
{
    requireFree(name);
    core::ControlPtr<> created = info.create(m_stage->container());
    prepare(*created);
    // The host connects itself once the control stands: what came before is not its business.
    auto recorder = std::make_shared<Recorder>(*created);
    m_recorders.emplace(created.get(), recorder);
    m_objects.emplace(name, Object{std::move(created), std::move(recorder), m_created++});
}

void Session::destroy(std::string_view name)
{
    if (const auto page = m_pages.find(name); page != m_pages.end()) {
        m_pages.erase(page);
        return;
    }
    const auto at = m_objects.find(name);
    if (at == m_objects.end())
        raiseError(ErrorNumber::ObjectRequired, name);
    // The name is free before the control ends, whatever its end brings about.
    const Object object = std::move(at->second);
    m_objects.erase(at);
    m_recorders.erase(object.control.get());
    object.recorder->detach();
}

// --- Property pages

void Session::openPage(std::string_view pageClass, std::string_view name, std::span<core::Control* const> controls)
{
    const pages::PageInfo* info = m_pageRegistry.find(pageClass);
    if (info == nullptr)
        raiseError(ErrorNumber::ObjectRequired, pageClass);
    requireFree(name);
    OpenPage open{m_stage->createPageFrame(), nullptr};
    open.page = std::make_unique<pages::Page>(*info, *open.frame);
    open.page->select(controls);
    m_pages.emplace(name, std::move(open));
}

pages::Page* Session::page(std::string_view name) const noexcept
{
    const auto at = m_pages.find(name);
    return at == m_pages.end() ? nullptr : at->second.page.get();
}

// --- Completion

std::vector<std::string> Session::completions(std::string_view word) const
{
    std::vector<std::string> found;
    const auto offer = [&](std::string name) {
        if (name.starts_with(word))
            found.push_back(std::move(name));
    };
    const auto point = word.find('.');
    if (point == std::string_view::npos) {
        for (const Command& command : commands())
            offer(std::string(command.name));
        for (const core::ClassInfo* info : m_registry.classes())
            offer(std::string(info->name));
        for (const pages::PageInfo* info : m_pageRegistry.rows())
            offer(std::string(info->name));
        for (const auto& [name, object] : m_objects)
            offer(name + '.');
        for (const auto& [name, open] : m_pages)
            offer(name + '.');
    } else if (const auto at = m_objects.find(word.substr(0, point)); at != m_objects.end()) {
        const core::ClassInfo& info = at->second.control->info();
        const std::string prefix = at->first + '.';
        for (const core::PropertyRow* row : info.properties)
            offer(prefix + std::string(row->name));
        for (const core::MethodRow& row : info.methods)
            offer(prefix + std::string(row.name));
        for (const core::WidgetRow& row : info.widgets)
            offer(prefix + std::string(row.name));
        for (const core::EventRow& row : info.events)
            offer(prefix + std::string(row.name));
    } else if (const pages::Page* open = page(word.substr(0, point))) {
        const std::string prefix(word.substr(0, point + 1));
        offer(prefix + "Changed");
        for (const std::string& name : open->widgetNames())
            offer(prefix + name);
    }
    return found;
}

} // namespace zor::console
