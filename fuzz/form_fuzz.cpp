// The form reader under libFuzzer: cmake -DZOR_BUILD_FUZZ=ON -DCMAKE_CXX_COMPILER=clang++, then
// build-fuzz/fuzz/fuzz-form fuzz/corpus/form

#include <zor/fuzz/form_round.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string wrong = zor::fuzz::formRound({reinterpret_cast<const char*>(data), size});
    if (!wrong.empty()) {
        std::fputs(wrong.c_str(), stderr);
        std::abort();
    }
    return 0;
}
