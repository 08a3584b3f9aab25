#include <zor/monitor/data/codec.h>
#include <zor/platform/text.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>

namespace zor::monitor {
namespace {

template <class Integer>
double fromRaw(std::uint64_t raw)
{
    return static_cast<double>(static_cast<Integer>(raw));
}

template <class Integer>
std::optional<std::uint64_t> toRaw(double value)
{
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        return std::nullopt;
    return static_cast<std::make_unsigned_t<Integer>>(static_cast<Integer>(whole));
}

double fromFloat(std::uint64_t raw) { return std::bit_cast<float>(static_cast<std::uint32_t>(raw)); }

std::optional<std::uint64_t> toFloat(double value)
{
    if (!(std::fabs(value) <= std::numeric_limits<float>::max()))
        return std::nullopt;
    return std::bit_cast<std::uint32_t>(static_cast<float>(value));
}

std::optional<std::uint64_t> toDouble(double value)
{
    return std::isfinite(value) ? std::optional(std::bit_cast<std::uint64_t>(value)) : std::nullopt;
}

double fromDouble(std::uint64_t raw) { return std::bit_cast<double>(raw); }

struct TypeRow {
    std::uint16_t registers;
    bool integer;
    double lowest;
    double highest;
    double (*from)(std::uint64_t);
    std::optional<std::uint64_t> (*to)(double);
};

// In the order of ValueType.
constexpr std::array<std::string_view, 8> kTypeNames{"int16",   "uint16",  "int32", "uint32",
                                                     "float32", "float64", "text",  "bit"};
constexpr double kFloat = std::numeric_limits<float>::max();
constexpr double kDouble = 1e300; ///< leaves room for the factor of any unit
constexpr std::array<TypeRow, 8> kTypes{{
    {1, true, INT16_MIN, INT16_MAX, fromRaw<std::int16_t>, toRaw<std::int16_t>},
    {1, true, 0, UINT16_MAX, fromRaw<std::uint16_t>, toRaw<std::uint16_t>},
    {2, true, INT32_MIN, INT32_MAX, fromRaw<std::int32_t>, toRaw<std::int32_t>},
    {2, true, 0, UINT32_MAX, fromRaw<std::uint32_t>, toRaw<std::uint32_t>},
    {2, false, -kFloat, kFloat, fromFloat, toFloat},
    {4, false, -kDouble, kDouble, fromDouble, toDouble},
    {0, false, 0, 0, nullptr, nullptr},
    {1, false, 0, 1, nullptr, nullptr},
}};

struct OrderRow {
    bool swapsBytes;    ///< in each register
    bool reversesWords; ///< the registers of a number
};

// In the order of Order.
constexpr std::array<std::string_view, 4> kOrderNames{"ABCD", "CDAB", "BADC", "DCBA"};
constexpr std::array<OrderRow, 4> kOrders{{{false, false}, {false, true}, {true, false}, {true, true}}};

const TypeRow& rowOf(ValueType type) { return kTypes[static_cast<std::size_t>(type)]; }
const OrderRow& rowOf(Order order) { return kOrders[static_cast<std::size_t>(order)]; }

std::uint16_t bytesInOrder(std::uint16_t word, const OrderRow& order)
{
    return order.swapsBytes ? static_cast<std::uint16_t>(word << 8U | word >> 8U) : word;
}

std::uint64_t join(const Location& location, std::span<const std::uint16_t> registers)
{
    const OrderRow& order = rowOf(location.order);
    std::uint64_t raw = 0;
    for (std::size_t i = 0; i < registers.size(); ++i) {
        const std::size_t at = order.reversesWords ? registers.size() - 1 - i : i;
        raw = raw << 16U | bytesInOrder(registers[at], order);
    }
    return raw;
}

Registers part(const Location& location, std::uint64_t raw)
{
    const OrderRow& order = rowOf(location.order);
    Registers registers(location.registers);
    for (std::size_t i = registers.size(); i-- > 0; raw >>= 16U) {
        const std::size_t at = order.reversesWords ? registers.size() - 1 - i : i;
        registers[at] = bytesInOrder(static_cast<std::uint16_t>(raw & 0xFFFFU), order);
    }
    return registers;
}

/// Latin-1 characters of a UTF-8 text; nothing when it holds others.
std::optional<std::string> toLatin1(std::string_view utf8)
{
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        if (lead < 0x80U) {
            bytes.push_back(utf8[i]);
        } else if ((lead == 0xC2U || lead == 0xC3U) && i + 1 < utf8.size()) {
            const auto next = static_cast<unsigned char>(utf8[++i]);
            bytes.push_back(static_cast<char>((lead & 0x03U) << 6U | (next & 0x3FU)));
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

Encoded encodeText(const Location& location, std::string_view text)
{
    const std::optional<std::string> bytes = toLatin1(platform::validUtf8(text));
    if (!bytes)
        return {{}, Unfit::CharactersUnknown};
    if (bytes->size() > location.registers * std::size_t{2})
        return {{}, Unfit::TextTooLong};
    std::string filled = *bytes;
    filled.resize(location.registers * std::size_t{2}, '\0');
    Encoded result;
    for (std::size_t i = 0; i < filled.size(); i += 2) {
        const auto word = static_cast<std::uint16_t>(static_cast<unsigned char>(filled[i]) << 8U |
                                                     static_cast<unsigned char>(filled[i + 1]));
        result.registers.push_back(bytesInOrder(word, rowOf(location.order)));
    }
    return result;
}

} // namespace

std::span<const std::string_view> valueTypeNames() noexcept { return kTypeNames; }
std::span<const std::string_view> orderNames() noexcept { return kOrderNames; }
std::uint16_t registersOf(ValueType type) noexcept { return rowOf(type).registers; }
bool isInteger(ValueType type) noexcept { return rowOf(type).integer; }

Variant decode(const Parameter& parameter, std::span<const std::uint16_t> registers)
{
    const Location& location = parameter.location;
    if (location.type == ValueType::Text)
        return decodeText(location, registers);
    if (location.type == ValueType::Bit)
        return static_cast<double>(decodeBits(location, registers));
    const double value = rowOf(location.type).from(join(location, registers)) * parameter.scale;
    return std::isfinite(value) ? Variant(value) : Variant();
}

Range rangeOf(const Parameter& parameter)
{
    const TypeRow& row = rowOf(parameter.location.type);
    const auto [lowest, highest] = std::minmax({row.lowest * parameter.scale, row.highest * parameter.scale});
    return {lowest, highest};
}

std::optional<std::int16_t> decimalsOf(const Parameter& parameter)
{
    if (!isInteger(parameter.location.type))
        return std::nullopt;
    constexpr std::int16_t kMost = 9;
    constexpr double kRounding = 1e-9;
    double step = std::fabs(parameter.scale);
    std::int16_t decimals = 0;
    while (decimals < kMost && std::fabs(step - std::round(step)) > kRounding * step) {
        step *= 10;
        ++decimals;
    }
    return decimals;
}

bool isWithinLimits(const Parameter& parameter, std::span<const std::uint16_t> registers)
{
    const Variant value = decode(parameter, registers);
    // A limit counts as the registers would hold it, or rounding would part an entry from the limit it equals.
    const auto held = [&](double limit) {
        const Encoded encoded = encode(parameter, limit);
        return encoded.unfit == Unfit::No ? decode(parameter, encoded.registers).number() : limit;
    };
    const Appearance& limits = parameter.appearance;
    return !value.isNumber() || ((!limits.minimum || value.number() >= held(*limits.minimum)) &&
                                 (!limits.maximum || value.number() <= held(*limits.maximum)));
}

std::uint32_t decodeBits(const Location& location, std::span<const std::uint16_t> registers)
{
    const std::uint64_t raw = join(location, registers);
    return static_cast<std::uint32_t>(location.type == ValueType::Bit ? raw >> location.bit & 1U : raw);
}

std::string decodeText(const Location& location, std::span<const std::uint16_t> registers)
{
    std::string bytes;
    for (const std::uint16_t word : registers) {
        const std::uint16_t pair = bytesInOrder(word, rowOf(location.order));
        bytes.push_back(static_cast<char>(pair >> 8U));
        bytes.push_back(static_cast<char>(pair & 0xFFU));
    }
    while (!bytes.empty() && (bytes.back() == '\0' || bytes.back() == ' '))
        bytes.pop_back();
    std::string text;
    for (const char character : bytes) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x80U) {
            text.push_back(character);
        } else {
            text.push_back(static_cast<char>(0xC0U | code >> 6U));
            text.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
        }
    }
    return text;
}

Encoded encode(const Parameter& parameter, const Variant& value)
{
    const Location& location = parameter.location;
    if (location.type == ValueType::Text)
        return encodeText(location, value.toText());
    const std::optional<double> number = validNumber(value);
    if (!number)
        return {{}, Unfit::NotANumber};
    const std::optional<std::uint64_t> raw = rowOf(location.type).to(*number / parameter.scale);
    if (!raw)
        return {{}, Unfit::OutOfRange};
    return {part(location, *raw), Unfit::No};
}

Registers mergeBits(const Location& location, std::span<const std::uint16_t> current, std::uint32_t mask,
                    std::uint32_t bits)
{
    const unsigned shift = location.type == ValueType::Bit ? location.bit : 0U;
    const std::uint64_t wide = std::uint64_t{mask} << shift;
    return part(location, (join(location, current) & ~wide) | (std::uint64_t{bits & mask} << shift));
}

} // namespace zor::monitor
