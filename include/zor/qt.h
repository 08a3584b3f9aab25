#pragma once

/// The controls on Qt 6 widgets: container, page dialog and regional settings.

#include <zor/platform/qt/container.h>
#include <zor/platform/qt/page_dialog.h>
#include <zor/platform/qt/qt_regional.h>
