#pragma once

/// The properties of the slider.

#include <zor/controls/numeric/range_rows.h>
#include <zor/controls/numeric/slider/ctx_ZorSlider.h>

namespace zor {

struct ctx_ZorSlider::Rows : controls::RangeRows {
    using This = ctx_ZorSlider;

    // What is kept and stored is the value in track steps.
    static constexpr auto DeviceValue =
        core::fieldRow<&This::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("Raw value from the device, in DeviceUnit. A write multiplies it by ScaleFactor, moves the "
                    "track and ends the operator's edit; reading gives the multiplied value.")
            .placed(core::Placing::Device)
            .stored(0.0)
            .then<&This::s_ApplyDeviceValue>()
            .written<[](This& slider, double value) { slider.DeviceValue(value); }>();
    static constexpr auto OutputValue =
        core::fieldRow<&This::m_output>("OutputValue", core::Topic::Value)
            .saying("The value to write to the device, in DeviceUnit, ScaleFactor taken out again.")
            .stored(0.0)
            .with(core::Access::Derived)
            .reading<[](This& slider) { return slider.OutputValue(); }>()
            .storingField();
    static constexpr auto ModifiedValue =
        core::computedRow<[](This& slider) { return slider.ModifiedValue(); }>("ModifiedValue", core::Topic::Value)
            .saying("Reading gives OutputValue times ScaleFactor. Writing moves the track to a value, in steps of "
                    "DeviceUnit, as if the operator had.")
            .written<[](This& slider, double value) { slider.ModifiedValue(value); }>();
    static constexpr auto OtherUserValue = OtherUser<&This::m_otherUser>;
    static constexpr auto ScaleFactor =
        core::fieldRow<&This::m_scaleFactor>("ScaleFactor", core::Topic::Appearance)
            .saying("Track steps for each unit of the value: 10 lets the operator choose tenths. Not 0; not "
                    "stored, so the host sets it after loading.")
            .initially(1)
            .with(core::Access::Silent);

    static constexpr auto MaxValue =
        controls::RangeRows::MaxValue.saying("Value at the right end of the track, in DefaultUnit.").stored(10.0);
    static constexpr auto MinParamValue = controls::RangeRows::MinParamValue.saying(
        "MinValue in OutputUnit, times ScaleFactor: the left end of the track. Follows from the others.");
    static constexpr auto MaxParamValue =
        controls::RangeRows::MaxParamValue
            .saying(
                "MaxValue in OutputUnit, times ScaleFactor: the right end of the track. Follows from the others.")
            .stored(10.0);
    static constexpr auto EnableValues =
        core::fieldRow<&This::m_enableValues>("EnableValues", core::Topic::Appearance)
            .saying("Whether the labels below the track show the ends of the range.")
            .stored(true)
            .then<&This::s_UpdateUnitLabelVisibility>();
    static constexpr auto MinPrefix = core::fieldRow<&This::m_minPrefix>("MinPrefix", core::Topic::Range)
                                          .saying("Words before the value of the left end.")
                                          .stored("")
                                          .then<&This::s_ShowPrefixes>();
    static constexpr auto MaxPrefix = core::fieldRow<&This::m_maxPrefix>("MaxPrefix", core::Topic::Range)
                                          .saying("Words before the value of the right end.")
                                          .stored("")
                                          .then<&This::s_ShowPrefixes>();

    // One setting under two names: it is read as the style and written as the type.
    static constexpr auto TickStyle =
        core::computedRow<[](This& slider) { return slider.TickStyle(); }>("TickStyle", core::Topic::Appearance)
            .saying("Where the track has ticks: 0 below, 1 above, 2 on both sides, 3 nowhere.");
    static constexpr auto TickType =
        core::writeOnlyRow<[](This& slider, std::int16_t value) { slider.TickType(value); }>(
            "TickType", core::Topic::Appearance)
            .saying("Sets what TickStyle reads.")
            .with(core::Access::Silent);
    static constexpr auto TickFrequency =
        core::computedRow<[](This& slider) { return slider.TickFrequency(); }>("TickFrequency",
                                                                               core::Topic::Appearance)
            .saying("Distance of the ticks, in units of the value.")
            .written<[](This& slider, double value) { slider.TickFrequency(value); }>()
            .live();
    static constexpr auto GetNumTicks = core::computedRow<[](This& slider) { return slider.GetNumTicks(); }>(
                                            "GetNumTicks", core::Topic::Appearance)
                                            .saying("Number of ticks on the track.");
};

} // namespace zor
