#pragma once

/// The properties of the list box.

#include <zor/controls/choice/list_box/ctx_ZorListBox.h>

namespace zor {

struct ctx_ZorListBox::Rows : controls::EntryChoiceRows<&ctx_ZorListBox::m_invalid, &ctx_ZorListBox::m_otherUser,
                                                        &ctx_ZorListBox::m_reference> {
    static constexpr auto SelCount =
        core::computedRow<[](ctx_ZorListBox& box) { return box.SelCount(); }>("SelCount", core::Topic::Appearance)
            .saying("Number of marked entries.");
    static constexpr auto OtherUser = S::OtherUserValue<&ctx_ZorListBox::m_otherUser>;
};

} // namespace zor
