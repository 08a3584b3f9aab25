#include <zor/fuzz/target.h>
#include <zor/platform/regional.h>
#include <zor/platform/text.h>
#include <zor/tools/zorsh/notation.h>
#include <zor/tools/zorsh/script.h>

#include <sstream>

namespace zor::fuzz {
namespace {

/// A script: each command says what it does or why not, and nothing ends the console.
std::string play(std::string_view input)
{
    platform::setRegionalSettings({});
    std::string wrong;
    std::ostringstream output;
    {
        console::Session session(console::headlessStage());
        console::Script script(session, "input", {true, true}, output, output);
        constexpr int kMost = 200;
        Pieces pieces(input);
        for (int i = 0; i < kMost && !pieces.isEmpty(); ++i) {
            const std::string_view line = pieces.line();
            const std::string once = console::canonical(line);
            if (console::canonical(once) != once)
                wrong += "two canonical spellings: " + once + '\n';
            // Files are fuzzed elsewhere, and none is written here.
            if (line.find("save") == std::string_view::npos && line.find("open") == std::string_view::npos &&
                !script.feed(line))
                break;
        }
        script.finish();
    }
    if (!platform::isUtf8(output.str()))
        wrong += "prints what is no UTF-8";
    platform::setRegionalSettings({});
    return wrong;
}

const Registered kConsole({"console", play});

} // namespace
} // namespace zor::fuzz
