#pragma once

/// The four property pages.

#include <zor/pages/page.h>
#include <zor/pages/registration.h>
