// What <zor/platform/macros_aside.h> has set aside.

#pragma pop_macro("Status")
#pragma pop_macro("None")
#pragma pop_macro("KeyPress")
