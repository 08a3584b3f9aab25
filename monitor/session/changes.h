#pragma once

/// The operator's edits as a list that he reviews before anything is written.

#include <zor/monitor/session/binding.h>

#include <memory>
#include <string>
#include <vector>

namespace zor::monitor {

/// Why a change cannot be written.
enum class Problem : std::uint8_t {
    None,
    InvalidEntry,
    NotANumber,
    OutOfRange,
    OutsideLimits, ///< of the parameter file
    TextTooLong,
    CharactersUnknown,
    ReadOnly,
    NeverRead, ///< bits are changed within what the device holds, and that is not known
    Conflict,  ///< two controls hold different edits of the parameter
    NotThere,  ///< the device is of a type or a version without the parameter
};

[[nodiscard]] Problem problemOf(Unfit unfit) noexcept;

/// An edit of one control, as it was when the list was made.
struct Origin {
    Binding* binding;
    std::uint64_t actions;
};

/// One parameter to be written: its whole value, or some of its bits.
struct Change {
    std::size_t parameter = 0;
    unsigned device = 0; ///< as the session counts them
    std::vector<Origin> origins{};
    Problem problem = Problem::None;
    Registers before{};     ///< what the device held when last read
    Registers target{};     ///< what it is to hold; of an edit of bits, as far as the mask goes
    std::uint32_t mask = 0; ///< of an edit of bits
    std::uint32_t bits = 0;
    /// @name As the operator reviews it
    /// What is shown as new is what the registers will hold; where they cannot, what was typed.
    /// @{
    std::string tag{};
    std::string oldText{};
    std::string newText{};
    MEAS_TYPE unit = NoneU;
    std::string lowest{};  ///< that an entry may be, where it is not; empty where there is no telling
    std::string highest{}; ///< the same; of a text that is too long, how many characters it may have
    bool changedByOther = false;
    bool otherDevice =
        false; ///< since the edit began, another device has come in place of the one it was made for
    /// @}
};

/// The changes that the bound controls, those of each parameter, hold; in the order of the parameter file.
[[nodiscard]] std::vector<Change> collectChanges(const ParameterFile& file,
                                                 std::span<const std::vector<Binding*>> shownBy,
                                                 const std::string& language);

/// Whether the device still holds what the change was reviewed against.
[[nodiscard]] bool isAsReviewed(const Change& change, const Location& location, const Registers& registers);

/// Whether what was read back is what the change was to bring about.
[[nodiscard]] bool isFulfilled(const Change& change, const Location& location, const Registers& registers);

} // namespace zor::monitor
