#pragma once

/// The user's regional settings: which characters separate decimals and groups of digits.

#include <cstdint>
#include <string>

namespace zor::platform {

/// One setting for the process, because it belongs to the user and not to a call. Both separators are
/// UTF-8 texts: some regions group with a narrow no-break space. The decimal separator is never empty;
/// an empty grouping separator means that the region groups nothing.
struct RegionalSettings {
    /// Between the whole number and its decimals.
    std::string decimal = ".";
    /// Between groups of digits.
    std::string group = ",";

    /// Equal separators.
    bool operator==(const RegionalSettings&) const = default;
};

/// The settings in force. Read on the user-interface thread only.
[[nodiscard]] const RegionalSettings& regionalSettings() noexcept;

/// Another number after each replacement: what has been made with the settings is good while it stays.
[[nodiscard]] std::uint32_t regionalRevision() noexcept;

/// Replaces the settings, while running if need be; values already shown keep their text until they are
/// shown anew. Raises InvalidCall when the decimal separator is empty, equals the grouping separator, or
/// when either holds a digit, a sign, a blank at its ends (U+0020) or a letter E.
void setRegionalSettings(RegionalSettings settings);

} // namespace zor::platform
