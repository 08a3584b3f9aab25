#pragma once

/// The nine controls as QWidgets, and the loader of forms that hold them.

#include <zor/widgets/form_loader.h>
#include <zor/widgets/zor_widgets.h>
