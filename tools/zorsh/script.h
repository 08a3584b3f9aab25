#pragma once

/// Scripts: commands and what they are expected to print.

#include <zor/tools/zorsh/session.h>

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace zor::console {

struct ScriptOptions {
    /// Print what a command prints at once, for someone who waits for it; else only what no `=` line names.
    bool echoAll = false;
    /// An error or a refusal is something to look at, not a failure.
    bool errorsAllowed = false;
};

/// Runs the lines of a script and compares.
class Script {
public:
    /// `name` stands in front of the line number in each failure.
    Script(Session& session, std::string name, ScriptOptions options, std::ostream& output,
           std::ostream& failures);

    /// Takes the next line. False when the script has ended with `quit`.
    bool feed(std::string_view line);
    /// Takes all lines of a stream, and compares the last command.
    void feedAll(std::istream& input);
    /// Compares the last command.
    void finish();

    [[nodiscard]] int failures() const noexcept { return m_failureCount; }
    /// How many commands were compared.
    [[nodiscard]] int expectations() const noexcept { return m_expectationCount; }

private:
    struct Expected {
        std::string text; ///< canonical
        int line = 0;
    };

    void expect(std::string_view text);
    void judge();
    void compare();
    void fail(int line, std::string_view expected, std::string_view got);

    Session& m_session;
    std::string m_name;
    ScriptOptions m_options;
    std::ostream& m_output;
    std::ostream& m_failures;
    std::vector<OutputLine> m_came;
    std::vector<Expected> m_expected;
    std::string m_command;
    int m_line = 0;
    int m_commandLine = 0; ///< 0 before the first command
    int m_failureCount = 0;
    int m_expectationCount = 0;
};

} // namespace zor::console
