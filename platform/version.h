#pragma once

/// The version of the library: semantic versioning; the guide compatibility.md says what an adopter may rely on.

#include <string_view>

// The build reads these three lines; the version stands nowhere else.
#define ZOR_VERSION_MAJOR 1
#define ZOR_VERSION_MINOR 0
#define ZOR_VERSION_PATCH 0

/// A version as one number, to compare with ZOR_VERSION in the preprocessor.
#define ZOR_VERSION_NUMBER(major, minor, patch) ((major)*10000 + (minor)*100 + (patch))
/// The version of the headers a program is compiled with.
#define ZOR_VERSION ZOR_VERSION_NUMBER(ZOR_VERSION_MAJOR, ZOR_VERSION_MINOR, ZOR_VERSION_PATCH)

namespace zor {

/// The version of the library a program runs with ("1.0.0"). With a shared library it may be a later one than
/// that of the headers.
[[nodiscard]] std::string_view version() noexcept;

/// The same as a number, as ZOR_VERSION_NUMBER makes it.
[[nodiscard]] int versionNumber() noexcept;

} // namespace zor
