#pragma once

/// The methods that all controls publish, as rows.

#include "core/control.h"

namespace zor::core {

inline constexpr MethodRow kGetMaxMessage{"fi_GetMaxMessage", 0,
                                          [](Control& control, std::span<const Variant>) -> MethodResult {
                                              return Variant(control.fi_GetMaxMessage());
                                          }};

inline constexpr MethodRow kGetMessageID{"fc_GetMessageID", 1,
                                         [](Control& control, std::span<const Variant> a) -> MethodResult {
                                             return Variant(control.fc_GetMessageID(a[0].toInt16()));
                                         },
                                         "i_MessageNumber"};

inline constexpr MethodRow kSetMessage{"fb_SetMessage", 2,
                                       [](Control& control, std::span<const Variant> a) -> MethodResult {
                                           return Variant(control.fb_SetMessage(a[0].toInt16(), a[1].toText()));
                                       },
                                       "i_MessageNumber c_MessageString"};

inline constexpr MethodRow kChangeBackColor{
    "s_ChangeBackColor", 1,
    [](Control& control, std::span<const Variant> a) -> MethodResult {
        // A system colour has the highest bit set: a negative number where integers are signed.
        const double number = a[0].toDouble();
        const bool wide = number > 2147483647.0 && number <= 4294967295.0;
        control.s_ChangeBackColor(wide ? static_cast<Colour>(number) : static_cast<Colour>(a[0].toInt32()));
        return {};
    },
    "l_ColorValue"};

} // namespace zor::core
