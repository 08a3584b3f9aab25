#include <zor/fuzz/target.h>
#include <zor/monitor/settings/settings_file.h>

namespace zor::fuzz {
namespace {

using namespace zor::monitor;

/// What a settings file says it says again when it is written and read.
std::string play(std::string_view input)
{
    std::string first;
    try {
        first = textOf(readSettingsFile(input, "input")).toStdString();
    } catch (const FileError&) {
        return {};
    }
    const std::string second = textOf(readSettingsFile(first, "input")).toStdString();
    return first == second ? std::string() : "written twice, it differs:\n" + first + "\n---\n" + second;
}

const Registered kSettings({"settings_file", play});

} // namespace
} // namespace zor::fuzz
