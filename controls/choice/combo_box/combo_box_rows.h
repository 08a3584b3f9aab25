#pragma once

/// The properties of the combo box.

#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>

namespace zor {

struct ctx_ZorComboBox::Rows
    : controls::EntryChoiceRows<&ctx_ZorComboBox::m_invalid, &ctx_ZorComboBox::m_otherUser,
                                &ctx_ZorComboBox::m_reference> {
    static constexpr auto SelectedText =
        core::computedRow<[](ctx_ZorComboBox& box) { return box.SelectedText(); }>("SelectedText",
                                                                                   core::Topic::Value)
            .saying("The text of the chosen entry.");
    static constexpr auto OtherUser = S::OtherUserValue<&ctx_ZorComboBox::m_otherUser>;
};

} // namespace zor
