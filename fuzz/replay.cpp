// Replays what is kept of the fuzzers, and plays changes of it, without a fuzzer:
//   zor_fuzz_replay TARGET CHANGES FOLDER ...     ZOR_SEED=N gives other changes

#include <zor/fuzz/target.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>

namespace {

using Inputs = std::vector<std::string>;

/// One of the inputs with a few bytes changed, taken away, doubled, or others in their place.
std::string changed(const Inputs& inputs, std::mt19937& random)
{
    const auto below = [&](std::size_t count) { return random() % count; };
    std::string text = inputs[below(inputs.size())];
    for (std::size_t count = 1 + below(6); count > 0; --count) {
        const std::string& other = inputs[below(inputs.size())];
        const std::size_t at = below(text.size() + 1);
        const std::size_t length = below(9);
        switch (below(4)) {
        case 0: text.erase(at, length); break;
        case 1: text.insert(at, text.substr(at, length)); break;
        case 2: text.replace(at, length, other.substr(below(other.size() + 1), below(33))); break;
        default: text.replace(at, 1, 1, static_cast<char>(random()));
        }
    }
    return text;
}

} // namespace

int main(int count, char** words)
{
    using namespace zor::fuzz;
    const auto target = std::ranges::find(targets(), std::string_view(count > 1 ? words[1] : ""), &Target::name);
    Inputs inputs;
    for (int i = 3; i < count && target != targets().end(); ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(words[i])) {
            std::ostringstream input;
            input << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            inputs.push_back(input.str());
        }
    }
    if (inputs.empty()) {
        std::cerr << "no such target, or nothing to replay\n";
        return 2;
    }
    std::ranges::sort(inputs);
    const char* const given = std::getenv("ZOR_SEED");
    std::mt19937 random(given == nullptr ? 1 : static_cast<unsigned>(std::strtoul(given, nullptr, 10)));
    const std::size_t all = inputs.size() + std::strtoul(words[2], nullptr, 10);
    for (std::size_t i = 0; i < all; ++i) {
        const std::string input = i < inputs.size() ? inputs[i] : changed(inputs, random);
        // What ends the program must be known all the same.
        std::ofstream("fuzz-" + std::string(target->name) + ".last", std::ios::binary) << input;
        const std::string wrong = target->play(input);
        if (!wrong.empty()) {
            std::cerr << "ZOR_SEED=" << (given == nullptr ? "1" : given) << ", input " << i << ": " << wrong
                      << '\n';
            return 1;
        }
    }
    std::cout << all << " inputs, no find\n";
    return 0;
}
