#pragma once

/// The version of the library, as macros and as functions.

#include <zor/platform/version.h>
