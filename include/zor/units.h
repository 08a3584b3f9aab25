#pragma once

/// Measurement units: catalogue, conversion, value text and number test, device support checks.

#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>
#include <zor/units/unit_types.h>
