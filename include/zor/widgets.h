#pragma once

/// The nine controls as QWidgets, the controls in them, and the loader of forms that hold them.

#include <zor/controls.h>
#include <zor/widgets/form_loader.h>
#include <zor/widgets/zor_widgets.h>
