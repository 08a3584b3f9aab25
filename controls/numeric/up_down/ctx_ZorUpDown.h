#pragma once

/// The up-down: one device parameter as a whole number that is typed or stepped.

#include <zor/controls/numeric/entry_field.h>
#include <zor/controls/numeric/range_control.h>
#include <zor/controls/numeric/up_down/up_down_events.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace zor {

/// A text field with a spin button, a unit label and a state icon beside it.
///
/// The host writes DeviceValue in DeviceUnit; the operator sees it in OutputUnit, rounded to a whole number
/// (halves to the even neighbour); OutputValue hands the entry back in DeviceUnit, rounded in the same way. The
/// spin button stays within the limits rounded to whole numbers of OutputUnit, and an entry beyond them becomes
/// the limit. A device value beyond them is shown as it is. A new DeviceValue always ends an edit.
///
/// A converted value that does not fit 32 bits raises Overflow; what was done before that stays.
class ctx_ZorUpDown final : public controls::RangeControl {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorUpDown> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// @name Value
    /// @{
    /// The raw value from the device, in DeviceUnit.
    [[nodiscard]] std::int32_t DeviceValue() const noexcept { return m_deviceValue; }
    void DeviceValue(std::int32_t value);
    /// The value to write to the device, in DeviceUnit. Writing raises ReadOnly in user mode and is ignored at
    /// design time.
    [[nodiscard]] std::int32_t OutputValue() const noexcept { return m_outputValue; }
    void OutputValue(std::int32_t value);
    /// Reading gives OutputValue; writing shows a value (in DeviceUnit, not rounded in OutputUnit) as the
    /// operator's modification.
    [[nodiscard]] std::int32_t ModifiedValue() const noexcept { return m_outputValue; }
    void ModifiedValue(std::int32_t value);
    /// The value that another user wrote, in OutputUnit: shown in the text that tells of the change. The host's
    /// own; re-expressed when OutputUnit changes.
    [[nodiscard]] std::int32_t OtherUserValue() const noexcept { return m_otherUser; }
    void OtherUserValue(std::int32_t value);
    /// Kept and stored, without effect: the value is a whole number.
    [[nodiscard]] std::int16_t NumberOfDigits() const noexcept { return m_numberOfDigits; }
    void NumberOfDigits(std::int16_t value);
    /// @}

    using UnitControl::fd_GetConversionFactor;
    using UnitControl::fd_GetOffset;

    /// Room right of the text field for spin button, unit label and state icon, in twips.
    [[nodiscard]] std::int16_t WidthDifference() const noexcept { return m_field.widthDifference; }
    void WidthDifference(std::int16_t value);
    /// Surface and unit label; the text field keeps the system's colours.
    void s_ChangeBackColor(Colour l_ColorValue) override;

    using Control::subscribe;
    using Control::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorUpDown& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorUpDown& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        txt_TextBox = controls::EntryField::kText, ///< the text field
        lbl_Units = controls::EntryField::kUnits,  ///< the unit label
        img_State = controls::EntryField::kIcon,   ///< the state icon; a click explains the state
        upd_UpDown = 4,                            ///< the spin button
    };
    [[nodiscard]] std::optional<Variant> entryUnderWay() const override;
    [[nodiscard]] platform::Widget* widget(int number) noexcept override;

private:
    struct Rows;
    struct Tables;

    explicit ctx_ZorUpDown(platform::Container& container);
    ~ctx_ZorUpDown() override = default;

    // Value
    void s_ApplyDeviceValue();
    void s_DeviceUnitChanged() override;
    void s_OutputUnitChanged() override;
    void s_UpdateMinParamValue() override;
    void s_UpdateMaxParamValue() override;
    void showText(std::string_view text);
    void showNumber(std::int32_t number);
    void assignOutput(std::int32_t value);
    /// The whole number of the text goes back to the device.
    void assignEntry(double number);

    // Spin button
    void spinTo(std::int32_t value);
    void spinToNumber(double number);
    void spinFrom(std::int32_t minimum);
    void spinUpTo(std::int32_t maximum);
    void keepSpinWithin();
    void settleSpin();
    /// The button's value and ends anew, from the text and the limits.
    void s_UpdateSpin();
    void onSpin();

    // Editing
    void onTextChanged();
    void s_CommitEntry();
    void undoEdit() override;
    /// What the limits leave of a number. As the button cuts: where they are the wrong way round, the lower
    /// counts.
    [[nodiscard]] double cut(double number) const;
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;
    [[nodiscard]] bool isLabel(int widget) const noexcept override { return widget == lbl_Units; }
    [[nodiscard]] std::string shownUnit() const override { return m_field.units().caption(); }

    // Display
    void s_UpdateColors() override;
    void s_UpdateDeviceSupportDisplay() override;
    void s_UpdateUnitLabelVisibility() override;
    void s_ShowUnit(std::string_view caption) override;
    void s_Layout() override;
    void s_AfterLoading() override;
    [[nodiscard]] std::span<platform::Widget* const> body() noexcept override { return m_body; }
    [[nodiscard]] platform::Image& icon() noexcept override { return m_field.icon(); }

    controls::EntryField m_field;
    std::unique_ptr<platform::SpinButton> m_spin;
    std::array<platform::Widget*, 3> m_body;

    std::int32_t m_deviceValue = 0;
    std::int32_t m_outputValue = 0;
    /// The device value last applied, in OutputUnit: the edit is judged against it and undo returns to it.
    std::int32_t m_reference = 0;
    std::int32_t m_otherUser = 0;
    /// Where the spin button stood before the operator's next click.
    std::int32_t m_spinValue = 0;
    /// The number on its way into the text, until the text reports the change.
    std::optional<std::int32_t> m_written;
    std::int16_t m_numberOfDigits = 3;
    bool m_editPending = false;
    /// The pending edit is the operator's.
    bool m_isEntry = false;
    /// The next report of the text is the control's own doing.
    bool m_isShowing = false;
    /// The button is set without a word.
    bool m_isSpinQuiet = false;
    /// The host wrote a new value between the step of the button and its click.
    bool m_stepOvertaken = false;
};

} // namespace zor
