#pragma once

/// The slider: one device parameter as a position on a track.

#include <zor/controls/numeric/range_control.h>
#include <zor/controls/numeric/slider/slider_events.h>

#include <array>
#include <cassert>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace zor {

/// A track with the ends of its range named below it and a state icon beside it.
///
/// A position of the track is a whole number of steps: the value in OutputUnit x ScaleFactor. The host writes
/// DeviceValue in DeviceUnit; OutputValue hands back what the operator moved the track to, and what the host
/// wrote as long as nobody moves it, but for the rounding of a multiplication and a division by ScaleFactor. A new
/// DeviceValue always ends an edit.
///
/// A position that does not fit 32 bits raises Overflow, and a division by a ScaleFactor of 0 raises
/// DivisionByZero; what was done before that stays.
class ctx_ZorSlider final : public controls::RangeControl {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorSlider> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// @name Value
    /// @{
    /// Track steps per unit. Not stored: 1 in every new instance, to be set before values and limits are written.
    [[nodiscard]] std::int32_t ScaleFactor() const noexcept { return m_scaleFactor; }
    void ScaleFactor(std::int32_t value);
    /// Writing takes the raw value from the device, in DeviceUnit; reading gives that value x the ScaleFactor at
    /// the time.
    [[nodiscard]] double DeviceValue() const noexcept { return m_deviceValue; }
    void DeviceValue(double value);
    /// The value to write to the device, in DeviceUnit. Writing raises ReadOnly in user mode and is ignored at
    /// design time.
    [[nodiscard]] double OutputValue() const;
    void OutputValue(double value);
    /// Reading gives OutputValue x ScaleFactor; writing shows a value (in track steps of DeviceUnit) as the
    /// operator's modification.
    [[nodiscard]] double ModifiedValue() const noexcept { return m_output; }
    void ModifiedValue(double value);
    /// The value that another user wrote, in OutputUnit: shown in the text that tells of the change. The host's
    /// own; re-expressed when OutputUnit changes.
    [[nodiscard]] double OtherUserValue() const noexcept { return m_otherUser; }
    void OtherUserValue(double value);
    /// @}

    /// @name Range labels
    /// @{
    /// The text before the lower and the upper end.
    [[nodiscard]] const std::string& MinPrefix() const noexcept { return m_minPrefix; }
    void MinPrefix(std::string_view value);
    [[nodiscard]] const std::string& MaxPrefix() const noexcept { return m_maxPrefix; }
    void MaxPrefix(std::string_view value);
    /// Whether the two ends are shown as numbers.
    [[nodiscard]] bool EnableValues() const noexcept { return m_enableValues; }
    void EnableValues(bool value);
    /// Surface and all six labels.
    void s_ChangeBackColor(Colour l_ColorValue) override;
    /// @}

    /// @name Ticks: the track's own settings, not stored
    /// @{
    /// 0 below the track, 1 above, 2 both, 3 none, and any other number is kept without a meaning; written under
    /// the second name.
    [[nodiscard]] std::int16_t TickStyle() const;
    void TickType(std::int16_t value);
    /// Distance from tick to tick, in OutputUnit. What is written is cut to whole steps of the track, at least
    /// one; an undefined number, or one beyond 32 bits, raises Overflow. Reading raises DivisionByZero for a
    /// ScaleFactor of 0.
    [[nodiscard]] double TickFrequency() const;
    void TickFrequency(double value);
    [[nodiscard]] std::int32_t GetNumTicks() const;
    /// @}

    using Control::subscribe;
    using Control::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorSlider& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorSlider& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        sld_Slider = 1,    ///< the track
        img_State = 2,     ///< the state icon; a click explains the state
        lbl_MinPrefix = 3, ///< words at the left end
        lbl_MinValue = 4,  ///< value of the left end
        lbl_MinUnit = 5,   ///< unit of the left end
        lbl_MaxPrefix = 6, ///< words at the right end
        lbl_MaxValue = 7,  ///< value of the right end
        lbl_MaxUnit = 8,   ///< unit of the right end
    };
    [[nodiscard]] platform::Widget* widget(int number) noexcept override;

private:
    struct Rows;
    struct Tables;

    static constexpr std::size_t kLabelCount = 6;
    // The composite as designed; only its width is the container's.
    static constexpr platform::Twips kDesignedWidth = 3000;
    static constexpr platform::Twips kHeight = 770;
    enum class Report : std::uint8_t { Taken, Own, Ignored };

    explicit ctx_ZorSlider(platform::Container& container);
    ~ctx_ZorSlider() override = default;

    // Value
    void s_ApplyDeviceValue();
    void s_TrackMoved();
    void s_DeviceUnitChanged() override;
    void s_OutputUnitChanged() override;
    void s_UpdateMinParamValue() override;
    void s_UpdateMaxParamValue() override;
    void moveTo(std::int32_t whole);
    void setPosition(std::int32_t position);
    template <class Set>
    void setEnds(Set&& set);
    void putBack();
    void undoEdit() override;
    void describe(platform::Spoken& spoken) const override;
    void assignOutput(double value);
    [[nodiscard]] double scaled(double value) const;
    [[nodiscard]] double unscaled(double value) const;
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;
    [[nodiscard]] bool isLabel(int widget) const noexcept override
    {
        return widget >= lbl_MinPrefix && widget <= lbl_MaxUnit;
    }
    [[nodiscard]] std::string shownUnit() const override { return label(lbl_MinUnit).caption(); }

    // Display
    void s_UpdateColors() override {}
    void s_UpdateDeviceSupportDisplay() override;
    void s_UpdateUnitLabelVisibility() override;
    void s_ShowUnit(std::string_view caption) override;
    void s_PlaceAsDesigned();
    void s_ShowLimits();
    void s_ShowPrefixes();
    void s_Layout() override;
    void s_AfterLoading() override;
    [[nodiscard]] std::span<platform::Widget* const> body() noexcept override { return m_body; }
    [[nodiscard]] platform::Image& icon() noexcept override { return *m_icon; }
    [[nodiscard]] platform::Label& label(Widgets number) const noexcept
    {
        assert(number >= lbl_MinPrefix && number <= lbl_MaxUnit);
        return *m_labels[static_cast<std::size_t>(number - lbl_MinPrefix)];
    }

    std::unique_ptr<platform::Track> m_track;
    std::unique_ptr<platform::Image> m_icon;
    std::array<std::unique_ptr<platform::Label>, kLabelCount> m_labels;
    std::array<platform::Widget*, 1 + kLabelCount> m_body{};

    /// What the host wrote x ScaleFactor, in DeviceUnit.
    double m_deviceValue = 0;
    /// The value to write x ScaleFactor, in DeviceUnit.
    double m_output = 0;
    /// The device value last applied, in OutputUnit: the edit is judged against it and undo returns to it.
    double m_reference = 0;
    double m_otherUser = 0;
    std::string m_minPrefix;
    std::string m_maxPrefix;
    std::int32_t m_scaleFactor = 1;
    /// What a change of the track means at the moment.
    Report m_report = Report::Taken;
    bool m_enableValues = true;
};

} // namespace zor
