#include <zor/tools/zorsh/script.h>
#include <zor/tools/zorsh/terminal.h>

#include <iostream>
#include <optional>
#include <string>

#ifdef ZOR_HAS_READLINE
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <readline/history.h>
#include <readline/readline.h>
#endif

namespace zor::console {
namespace {

constexpr const char* kPrompt = "zorsh> ";

#ifdef ZOR_HAS_READLINE

// The line editor calls plain functions: what they work on stands here while it runs.
Session* talking = nullptr;
std::vector<std::string> offered;

char* nextOffer(const char* /*text*/, int state)
{
    static std::size_t at = 0;
    if (state == 0)
        at = 0;
    return at < offered.size() ? strdup(offered[at++].c_str()) : nullptr;
}

char** complete(const char* text, int /*start*/, int /*end*/)
{
    rl_attempted_completion_over = 1; // no file names
    offered = talking->completions(text);
    if (offered.size() == 1 && offered.front().ends_with('.'))
        rl_completion_append_character = '\0';
    return rl_completion_matches(text, nextOffer);
}

/// Widgets on a screen stay alive while the person thinks.
int whileWaiting()
{
    talking->stage().settle();
    return 0;
}

void prepare(Session& session)
{
    talking = &session;
    rl_attempted_completion_function = complete;
    rl_basic_word_break_characters = " \t(+-*/";
    rl_event_hook = whileWaiting;
}

std::optional<std::string> nextLine()
{
    const std::unique_ptr<char, decltype(&std::free)> line(readline(kPrompt), &std::free);
    if (!line)
        return std::nullopt;
    if (*line != '\0')
        add_history(line.get());
    return line.get();
}

#else

void prepare(Session&) {}

std::optional<std::string> nextLine()
{
    std::string line;
    if (std::cout << kPrompt << std::flush && std::getline(std::cin, line))
        return line;
    return std::nullopt;
}

#endif

} // namespace

int converse(Session& session)
{
    prepare(session);
    Script script(session, "terminal", {true, true}, std::cout, std::cerr);
    std::optional<std::string> line;
    do {
        line = nextLine();
    } while (line && script.feed(*line));
    script.finish();
    return script.failures();
}

} // namespace zor::console
