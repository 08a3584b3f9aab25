#include <zor/fuzz/target.h>
#include <zor/monitor/data/codec.h>

namespace zor::fuzz {
namespace {

using namespace zor::monitor;

/// A parameter of the file reads registers, and writes what it read as the same value.
std::string coded(const Parameter& parameter, std::size_t seed)
{
    Registers registers(parameter.location.registers);
    for (std::uint16_t& word : registers)
        word = static_cast<std::uint16_t>(seed = seed * 6364136223846793005U + 1442695040888963407U);
    const Variant value = decode(parameter, registers);
    static_cast<void>(isWithinLimits(parameter, registers));
    static_cast<void>(decimalsOf(parameter));
    static_cast<void>(rangeOf(parameter));
    if (parameter.location.type == ValueType::Bit || value.isEmpty())
        return {};
    const Encoded encoded = encode(parameter, value);
    if (encoded.unfit != Unfit::No)
        return encoded.registers.empty() ? std::string() : "unfit, and registers";
    return decode(parameter, encoded.registers) == value ? std::string() : "another value: " + value.toText();
}

std::string play(std::string_view input)
{
    try {
        std::string wrong;
        const ParameterFile file = readParameterFile(input, "input");
        for (const Parameter& parameter : file.parameters)
            wrong += coded(parameter, input.size());
        return wrong;
    } catch (const FileError&) {
        return {};
    }
}

const Registered kParameters({"parameter_file", play});

} // namespace
} // namespace zor::fuzz
