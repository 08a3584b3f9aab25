#pragma once

/// The properties of the option button.

#include <zor/controls/choice/option_button/ctx_ZorOptionButton.h>

namespace zor {

struct ctx_ZorOptionButton::Rows
    : controls::CaptionChoiceRows<&ctx_ZorOptionButton::m_otherUser, &ctx_ZorOptionButton::m_reference> {
    using This = ctx_ZorOptionButton;

    static constexpr auto EnumValue =
        core::fieldRow<&This::m_enumValue>("EnumValue", core::Topic::Value)
            .saying("The present value of the parameter; the button is on when it equals EnumEntryValue.")
            .placed(core::Placing::Chosen)
            .initially(0)
            .live()
            .then<&This::s_ApplyEnumValue>();
    static constexpr auto OptionButtonCaption =
        core::fieldRow<&This::m_caption>("OptionButtonCaption", core::Topic::Appearance)
            .saying("Text beside the button.")
            .stored("option")
            .then<&This::s_ShowCaption>();
    // A form says what its button stands for, even when that is 0.
    static constexpr auto EnumEntryValue =
        core::fieldRow<&This::m_entryValue>("EnumEntryValue", core::Topic::Value)
            .saying("The value that this button stands for.")
            .alwaysStored(0);
    static constexpr auto OptionButtonValue =
        core::computedRow<[](This& button) { return button.OptionButtonValue(); }>("OptionButtonValue",
                                                                                   core::Topic::Appearance)
            .saying("Whether the button is on. A write changes nothing.")
            .written<[](This& button, bool value) { button.OptionButtonValue(value); }>()
            .live();
    static constexpr auto OtherUser = S::OtherUserValue<&This::m_otherUser>;
};

} // namespace zor
