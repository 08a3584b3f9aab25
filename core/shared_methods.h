#pragma once

/// The methods that all controls publish, as rows.

#include <zor/core/control.h>

namespace zor::core {

inline constexpr MethodRow kGetMaxMessage = method<&Control::fi_GetMaxMessage>("fi_GetMaxMessage");
inline constexpr MethodRow kGetMessageID = method<&Control::fc_GetMessageID>("fc_GetMessageID", "i_MessageNumber");
inline constexpr MethodRow kSetMessage =
    method<&Control::fb_SetMessage>("fb_SetMessage", "i_MessageNumber", "c_MessageString");
inline constexpr MethodRow kChangeBackColor =
    method<&Control::s_ChangeBackColor>("s_ChangeBackColor", "l_ColorValue");

} // namespace zor::core
