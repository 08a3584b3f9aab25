#include <zor/platform/error.h>
#include <zor/platform/regional.h>
#include <zor/platform/text.h>
#include <zor/platform/version.h>
#include <zor/tools/zorsh/script.h>
#include <zor/tools/zorsh/terminal.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace zor::console {
namespace {

struct Settings {
    std::string platform{platforms().front().name};
    std::string locale = ".,";
    std::vector<std::string> files;
    bool requireExpectations = false;
};

enum ExitStatus : int { kWell = 0, kFailed = 1, kUsage = 2 };

/// One character, and behind it the other separator, if any.
platform::RegionalSettings separators(std::string_view locale)
{
    const std::size_t decimal = platform::byteOffset(locale, 1);
    if (platform::characterCount(locale) > 2)
        raiseError(ErrorNumber::InvalidCall);
    return {std::string(locale.substr(0, decimal)), std::string(locale.substr(decimal))};
}

class Program {
public:
    explicit Program(Settings settings)
        : m_settings(std::move(settings)), m_locale(separators(m_settings.locale)),
          m_platform(*std::ranges::find(platforms(), m_settings.platform, &PlatformRow::name))
    {
        // Checked before anything runs.
        platform::setRegionalSettings(m_locale);
    }

    int run()
    {
        const std::shared_ptr<void> started = m_platform.start();
        if (!m_settings.files.empty()) {
            int status = kWell;
            for (const std::string& file : m_settings.files)
                status = std::max(status, runFile(file));
            return status;
        }
        if (isatty(fileno(stdin)) == 0)
            return runInput(std::cin, "standard input", {true, false});
        const auto session = freshSession();
        return converse(*session) == 0 ? kWell : kFailed;
    }

private:
    int runFile(const std::string& file)
    {
        std::ifstream input(file, std::ios::binary);
        std::error_code ignored;
        if (!input || std::filesystem::is_directory(file, ignored)) {
            std::cerr << "zorsh: cannot read " << file << '\n';
            return kUsage;
        }
        const int status = runInput(input, file, {});
        if (!input.bad())
            return status;
        std::cerr << "zorsh: cannot read " << file << " to its end\n";
        return kUsage;
    }

    int runInput(std::istream& input, const std::string& name, ScriptOptions options)
    {
        const auto session = freshSession();
        Script script(*session, name, options, std::cout, std::cerr);
        script.feedAll(input);
        if (m_settings.requireExpectations && script.expectations() == 0) {
            std::cerr << name << ": expected an expectation got none\n";
            return kFailed;
        }
        return script.failures() == 0 ? kWell : kFailed;
    }

    /// A form as it is at the start of every file.
    [[nodiscard]] std::unique_ptr<Session> freshSession() const
    {
        auto session = std::make_unique<Session>(m_platform.createStage());
        // Last, because a platform may bring the separators of its environment.
        platform::setRegionalSettings(m_locale);
        return session;
    }

    Settings m_settings;
    platform::RegionalSettings m_locale;
    const PlatformRow& m_platform;
};

int runProgram(int argc, char** argv)
{
    Settings settings;
    CLI::App app{"The control console: creates controls, plays host and operator, and prints what they see. "
                 "The command `help` lists the commands."};
    app.set_version_flag("--version", "zorsh " + std::string(version()));
    std::vector<std::string> names;
    for (const PlatformRow& row : platforms())
        names.emplace_back(row.name);
    app.add_option("--platform", settings.platform, "the widgets under the controls")->check(CLI::IsMember(names));
    app.add_option("--locale", settings.locale, "decimal separator, and grouping separator if any");
    app.add_flag("--require-expectations", settings.requireExpectations, "fail where a file expects nothing");
    app.add_option("FILE", settings.files, "scripts; standard input without any");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kWell : kUsage;
    }
    std::unique_ptr<Program> program;
    try {
        program = std::make_unique<Program>(settings);
    } catch (const RunTimeError& error) {
        std::cerr << "zorsh: --locale takes one decimal separator and, behind it, one for grouping: "
                  << error.what() << '\n';
        return kUsage;
    }
    return program->run();
}

} // namespace
} // namespace zor::console

int main(int argc, char** argv)
{
    try {
        return zor::console::runProgram(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "zorsh: " << error.what() << '\n';
        return zor::console::kFailed;
    }
}
