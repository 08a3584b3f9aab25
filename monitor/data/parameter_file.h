#pragma once

/// The parameter file: where each parameter of a device lies, and how it is read, shown and written.

#include <zor/monitor/data/json_document.h>
#include <zor/units/unit_types.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zor::monitor {

/// How a value is coded. The order is that of the table in codec.cpp.
enum class ValueType : std::uint8_t { Int16, UInt16, Int32, UInt32, Float32, Float64, Text, Bit };

/// The four tables of a device. The order is that of the names in parameter_file.cpp.
enum class Bank : std::uint8_t { Holding, Input, Coil, Discrete };
/// Its addresses hold a bit each, not a register.
[[nodiscard]] constexpr bool holdsBits(Bank bank) noexcept { return bank >= Bank::Coil; }
[[nodiscard]] constexpr bool isReadOnly(Bank bank) noexcept
{
    return bank == Bank::Input || bank == Bank::Discrete;
}

/// How the bytes of a value lie in its registers, A being the highest of four.
enum class Order : std::uint8_t { ABCD, CDAB, BADC, DCBA };

/// A text in several languages ("en", "de", "fr"); a plain text in the file stands for all of them.
class LocalText {
public:
    LocalText() = default;
    explicit LocalText(std::map<std::string, std::string> texts) : m_texts(std::move(texts)) {}
    /// The text in a language, or else in English, or else the first; empty when there is none.
    [[nodiscard]] const std::string& in(const std::string& language) const;
    [[nodiscard]] bool isEmpty() const { return m_texts.empty(); }

private:
    std::map<std::string, std::string> m_texts;
};

/// A value of an enumeration, or a bit, with its name.
struct Entry {
    std::int32_t value;
    LocalText text;
};

struct Location {
    Bank bank = Bank::Holding;
    std::uint16_t address = 0;   ///< of the first register, counted from 0 as in the protocol
    std::uint16_t registers = 1; ///< 1 to 123; of a coil or a discrete input 1
    ValueType type = ValueType::UInt16;
    Order order = Order::ABCD;
    std::uint8_t bit = 0; ///< of ValueType::Bit: 0 is the lowest of the register
};

/// The devices that offer a parameter, as the controls' three lists.
struct Supported {
    std::string types;
    std::string minVersions;
    std::string maxVersions;
};

/// Decimals of a number without a unit that the file says nothing of.
inline constexpr std::int16_t kUsualDigits = 3;

/// What the generated form shows of a parameter.
struct Appearance {
    LocalText caption;   ///< the tag when the file gives none
    LocalText group;     ///< the tab
    std::string control; ///< a class name
    MEAS_TYPE unit = NoneU;
    std::optional<std::int16_t> digits; ///< decimals of a number without a unit
    std::optional<double> minimum;      ///< of an entry, in the device's unit
    std::optional<double> maximum;
    Supported supported;
};

/// What the simulated device holds: value + swing * sin(2 pi t / period), in the device's unit.
struct Simulation {
    double value = 0;
    double swing = 0;
    double period = 60; ///< seconds
    std::string text;
    bool absent = false; ///< the device refuses the address
};

struct Parameter {
    std::string tag;
    Location location;
    double scale = 1; ///< what the registers hold, times this, is the value in `unit`
    UNIT_TYPE unitType = None;
    MEAS_TYPE unit = NoneU;
    bool writable = false;
    std::vector<Entry> entries; ///< of an enumeration
    std::vector<Entry> bits;    ///< of a bit field: bit number and name
    Appearance appearance;
    Simulation simulation;
    int line = 0;

    /// What people call it in a language: its caption, or its tag where it has none.
    [[nodiscard]] const std::string& captionIn(const std::string& language) const
    {
        const std::string& caption = appearance.caption.in(language);
        return caption.empty() ? tag : caption;
    }
};

/// Where a device says what it is.
struct Identity {
    std::optional<Location> type;    ///< a text
    std::optional<Location> version; ///< a text, or numbers that are joined with points
    Simulation simulatedType;
    Simulation simulatedVersion;
};

inline constexpr int kHighestBit = 30;          ///< of a bit field or a flag, that a control can show
inline constexpr int kMostReadRegisters = 125;  ///< of one request
inline constexpr int kMostWriteRegisters = 123; ///< of one request
inline constexpr int kMostReadBits = 2000;      ///< of one request

/// The functions with which a device is written.
enum class WriteWith : std::uint8_t {
    Usual,    ///< one register or coil with that for one, several with that for several
    Single,   ///< each by itself
    Multiple, ///< with that for several, even one
};

/// What a device stands of requests.
struct Requests {
    int registers = kMostReadRegisters; ///< at most, in one
    int bits = kMostReadBits;           ///< the same of coils and discrete inputs
    int gap = 8;                        ///< registers that nobody wants, read along between two parameters
    int pause = 0;                      ///< milliseconds from the end of a reply to the next request
    int retries = 0;                    ///< of a read without an answer
    int underWay = 1;                   ///< reads at a time, on TCP
    WriteWith write = WriteWith::Usual;
    bool masked = true; ///< bits are written with a mask in the device, if it can
};

struct ParameterFile {
    LocalText title;
    Requests requests;
    Identity identity;
    std::vector<Parameter> parameters;

    /// For a single question; TagIndex is for many.
    [[nodiscard]] std::optional<std::size_t> indexOf(std::string_view tag) const;
};

/// Finds parameters by their tags. The file must stay where and as it is.
class TagIndex {
public:
    explicit TagIndex(const ParameterFile& file);
    [[nodiscard]] std::optional<std::size_t> operator()(std::string_view tag) const;

private:
    std::unordered_map<std::string_view, std::size_t> m_indices;
};

/// Whether a device offers a parameter.
[[nodiscard]] bool isSupported(const Supported& by, const std::string& type, const std::string& version);

/// Reads and checks a parameter file; `name` stands in its errors. Raises FileError with the line and the
/// reason for anything that is not as docs/parameter-file.md says.
[[nodiscard]] ParameterFile readParameterFile(std::string_view text, const std::string& name);

} // namespace zor::monitor
