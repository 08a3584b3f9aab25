#pragma once

/// What a file, an address or the command line has to say, in the operator's language.

#include <initializer_list>
#include <string>

namespace zor::monitor {

/// The translation of an English text of the context "texts", with the parts in place of %1, %2 ...
[[nodiscard]] std::string message(const char* english, std::initializer_list<std::string> parts = {});

} // namespace zor::monitor
