#pragma once

/// The controls on plain memory: container, property bag, page frame and the operator's actions.

#include <zor/platform/headless/container.h>
#include <zor/platform/headless/memory_bag.h>
#include <zor/platform/headless/operator.h>
#include <zor/platform/headless/page_frame.h>
