// What other libraries make macros of (X11's headers, above all) and the published names need as words: set aside
// until <zor/platform/macros_back.h>. The two stand around the declarations of a header, each time anew.

#pragma push_macro("KeyPress")
#pragma push_macro("None")
#pragma push_macro("Status")
#undef KeyPress
#undef None
#undef Status
