#pragma once

/// The properties of the up-down.

#include <zor/controls/numeric/range_rows.h>
#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>

namespace zor {

struct ctx_ZorUpDown::Rows : controls::RangeRows {
    using This = ctx_ZorUpDown;

    static constexpr auto DeviceValue =
        core::fieldRow<&This::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("Raw value from the device, a whole number in DeviceUnit. A write shows it rounded in "
                    "OutputUnit, sets OutputValue and ends the operator's edit.")
            .placed(core::Placing::Device)
            .stored(0)
            .then<&This::s_ApplyDeviceValue>();
    static constexpr auto OutputValue =
        core::fieldRow<&This::m_outputValue>("OutputValue", core::Topic::Value)
            .saying("The value to write to the device, a whole number in DeviceUnit.")
            .stored(0)
            .with(core::Access::Derived);
    static constexpr auto ModifiedValue =
        core::computedRow<[](This& control) { return control.ModifiedValue(); }>("ModifiedValue",
                                                                                 core::Topic::Value)
            .saying("Reading gives OutputValue. Writing shows a whole number, in DeviceUnit, as if the operator "
                    "had entered it.")
            .written<[](This& control, std::int32_t value) { control.ModifiedValue(value); }>();
    static constexpr auto OtherUserValue = OtherUser<&This::m_otherUser>;
    // The key's small "o" is in every form ever saved.
    static constexpr auto NumberOfDigits =
        core::fieldRow<&This::m_numberOfDigits>("NumberOfDigits", core::Topic::Value)
            .saying("Kept and stored for the host, without effect: the up-down shows whole numbers.")
            .storedAs("NumberofDigits", 3);
    static constexpr auto MinValue = controls::RangeRows::MinValue.saying(
        "Lowest valid value, in DefaultUnit, included, and rounded in OutputUnit. A lower entry becomes the limit "
        "when the field is left, without a message. Nothing but 0 can be entered as long as both limits are 0.");
    static constexpr auto MaxValue = controls::RangeRows::MaxValue.saying(
        "Highest valid value, in DefaultUnit, included, and rounded in OutputUnit. A higher entry becomes the "
        "limit when the field is left, without a message.");
    static constexpr auto WidthDifference =
        core::fieldRow<&This::m_field, &controls::EntryField::widthDifference>("WidthDifference",
                                                                               core::Topic::Appearance)
            .saying("Room right of the text field for unit label and state icon, in twips.")
            .stored(1305)
            .then<&This::s_Layout>();
};

} // namespace zor
