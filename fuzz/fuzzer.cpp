// A target under libFuzzer: scripts/fuzz

#include <zor/fuzz/target.h>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string wrong = zor::fuzz::targets().front().play({reinterpret_cast<const char*>(data), size});
    if (!wrong.empty()) {
        std::fputs((wrong + '\n').c_str(), stderr);
        std::abort();
    }
    return 0;
}
