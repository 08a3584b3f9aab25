#pragma once

/// For who writes a platform of his own: the interfaces of widgets and container, and what all platforms do alike.

#include <zor/platform/container.h>
#include <zor/platform/error.h>
#include <zor/platform/operator.h>
#include <zor/platform/property_page.h>
#include <zor/platform/text.h>
#include <zor/platform/whole_range.h>
