// Headers of X11 make macros of words that published names are made of. Qt's own headers do not bear that, so they
// come first; ours may come at any time, and leave the macros as they were. Ours do without Qt's own, too, which
// many projects switch off.

#define QT_NO_KEYWORDS

// The order is what is tested.
// clang-format off
#include <QtWidgets>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <zor/controls.h>
#include <zor/forms.h>
#include <zor/headless.h>
#include <zor/pages.h>
#include <zor/qt.h>
#include <zor/units.h>
#include <zor/widgets.h>
// clang-format on

static_assert(std::is_same_v<decltype(None), long> && std::is_same_v<Status, int> && KeyPress == 2);

namespace zor {
static_assert(std::is_constructible_v<Variant, unsigned long long> && !std::is_constructible_v<Variant, int*> &&
              !std::is_convertible_v<std::nullptr_t, Variant>);
} // namespace zor
