#pragma once

/// The properties of the check box.

#include <zor/controls/choice/check_box/ctx_ZorCheckBox.h>

namespace zor {

struct ctx_ZorCheckBox::Rows
    : controls::CaptionChoiceRows<&ctx_ZorCheckBox::m_otherUser, &ctx_ZorCheckBox::m_loaded> {
    using This = ctx_ZorCheckBox;

    // A new box starts with another caption than a form means that says nothing.
    static constexpr auto CheckBoxCaption =
        core::fieldRow<&This::m_caption>("CheckBoxCaption", core::Topic::Appearance)
            .saying("Text beside the box.")
            .stored("check")
            .initially("Check1")
            .then<&This::s_ShowCaption>();
    static constexpr auto BitFieldEntryIndex =
        core::fieldRow<&This::m_bit>("BitFieldEntryIndex", core::Topic::Value)
            .saying("Number of the bit that the box shows and sets, 0 to 30; with any other it shows none. Takes "
                    "effect with the next DeviceValue.")
            .stored(0);
    static constexpr auto CheckBoxValue =
        core::computedRow<[](This& box) { return box.CheckBoxValue(); }>("CheckBoxValue", core::Topic::Appearance)
            .saying("Whether the box is ticked.")
            .with(core::Access::Derived);
    static constexpr auto OtherUser = S::OtherUserValue<&This::m_otherUser>;
};

} // namespace zor
