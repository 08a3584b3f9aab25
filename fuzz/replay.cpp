// Replays what is kept of the fuzzers, without one: zor_fuzz_replay TARGET FOLDER ...

#include <zor/fuzz/target.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

int main(int count, char** words)
{
    using namespace zor::fuzz;
    const auto target = std::ranges::find(targets(), std::string_view(count > 1 ? words[1] : ""), &Target::name);
    int files = 0;
    int failures = 0;
    for (int i = 2; i < count && target != targets().end(); ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(words[i])) {
            std::ostringstream input;
            input << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            const std::string wrong = target->play(input.str());
            ++files;
            failures += wrong.empty() ? 0 : 1;
            if (!wrong.empty())
                std::cerr << entry.path() << ": " << wrong << '\n';
        }
    }
    std::cout << files << " inputs, " << failures << " failures\n";
    return files > 0 && failures == 0 ? 0 : 1;
}
