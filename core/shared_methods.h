#pragma once

/// The methods that all controls publish, as rows.

#include <zor/core/control.h>

namespace zor::core {

inline constexpr MethodRow kGetMaxMessage =
    method<&Control::fi_GetMaxMessage>("fi_GetMaxMessage")
        .saying("The highest message number; numbers run from 1 without gaps.");
inline constexpr MethodRow kGetMessageID =
    method<&Control::fc_GetMessageID>("fc_GetMessageID", "i_MessageNumber")
        .saying("The identifier of a message, under which a host looks its text up.");
inline constexpr MethodRow kSetMessage =
    method<&Control::fb_SetMessage>("fb_SetMessage", "i_MessageNumber", "c_MessageString")
        .saying("Replaces the text of a message, to be seen from the next refresh of the state on; False for "
                "a number without a message.");
inline constexpr MethodRow kChangeBackColor =
    method<&Control::s_ChangeBackColor>("s_ChangeBackColor", "l_ColorValue")
        .saying("Gives the control a back colour: 0xRRGGBB, or a system colour.");

} // namespace zor::core
