#pragma once

/// The languages of the program and of parameter files.

#include <array>

namespace zor::monitor {

struct LanguageRow {
    const char* code; ///< as in locale names and parameter files
    const char* name; ///< in the language itself
};

/// English first. Each of the others has a file in monitor/translations/, and its code in
/// docs/parameter-file.schema.json.
inline constexpr std::array kLanguages{LanguageRow{"en", "English"}, LanguageRow{"de", "Deutsch"},
                                       LanguageRow{"fr", "Français"}};

} // namespace zor::monitor
