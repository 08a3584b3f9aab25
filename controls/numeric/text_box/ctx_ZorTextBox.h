#pragma once

/// The text box: one device parameter as a number in a unit, or as free text.

#include <zor/controls/numeric/entry_field.h>
#include <zor/controls/numeric/text_box/text_box_events.h>
#include <zor/controls/numeric/unit_control.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zor {

/// A text field with a unit label and a state icon beside it.
///
/// The host writes DeviceValue in DeviceUnit; the operator sees and types it in OutputUnit; OutputValue hands
/// the entry back in DeviceUnit. A new DeviceValue always ends an edit.
class ctx_ZorTextBox final : public controls::UnitControl {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorTextBox> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// @name Value
    /// @{
    /// The raw value from the device, in DeviceUnit. Writing raises Overflow, and changes nothing, when the
    /// conversion to OutputUnit has no finite result.
    [[nodiscard]] const Variant& DeviceValue() const noexcept { return m_deviceValue; }
    void DeviceValue(const Variant& value);
    /// The value to write to the device, in DeviceUnit. Writing raises ReadOnly in user mode and is ignored
    /// at design time.
    [[nodiscard]] const Variant& OutputValue() const noexcept { return m_outputValue; }
    void OutputValue(const Variant& value);
    /// Reading gives OutputValue; writing shows a value (in DeviceUnit) as the operator's modification.
    [[nodiscard]] const Variant& ModifiedValue() const noexcept { return m_outputValue; }
    void ModifiedValue(const Variant& value);
    /// Whether the value is a number or free text.
    [[nodiscard]] ENTRY_TYPE EntryType() const noexcept { return m_entryType; }
    void EntryType(ENTRY_TYPE value);
    /// Decimals of a number without a unit (NoneU); 0 or less shows none.
    [[nodiscard]] std::int16_t NumberOfDigits() const noexcept { return m_numberOfDigits; }
    void NumberOfDigits(std::int16_t value);
    /// Kept and stored; writing it shows the text anew. The decimals shown follow the unit and NumberOfDigits.
    [[nodiscard]] std::int16_t NumberOfDecimals() const noexcept { return m_numberOfDecimals; }
    void NumberOfDecimals(std::int16_t value);
    /// @}

    using UnitControl::fd_GetConversionFactor;
    using UnitControl::fd_GetOffset;

    /// @name Valid entries
    /// @{
    /// Whether numbers are checked against the limits when the operator leaves the field.
    [[nodiscard]] bool InvalidEntryEnable() const noexcept { return m_invalidEntryEnable; }
    void InvalidEntryEnable(bool value);
    /// The last committed entry was invalid; the next commit of a valid one and DeviceValue clear it, an undo does
    /// not. Writing as OutputValue.
    [[nodiscard]] bool InvalidEntry() const noexcept { return m_invalidEntry; }
    void InvalidEntry(bool value);
    /// Longest valid text (in characters) of a text entry, checked when the operator leaves the field.
    [[nodiscard]] std::int16_t MaxLength() const noexcept { return m_maxLength; }
    void MaxLength(std::int16_t value);
    /// @}

    /// @name Editing and looks
    /// @{
    /// The selected part of the text. Writing replaces it, or inserts at the caret, and counts as an edit.
    [[nodiscard]] std::string SelectedText() const;
    void SelectedText(std::string_view value);
    [[nodiscard]] bool TextFontBold() const noexcept { return m_textFontBold; }
    void TextFontBold(bool value);
    [[nodiscard]] bool UnitsFontBold() const;
    void UnitsFontBold(bool value);
    /// Room right of the text field for unit label and state icon, in twips.
    [[nodiscard]] std::int16_t WidthDifference() const noexcept { return m_field.widthDifference; }
    void WidthDifference(std::int16_t value);
    /// Takes the entry over as it stands, without showing it anew, while the field still has the focus.
    void s_ForceOutputValueUpdate();
    /// Surface, unit label and text field; remembered as the field's normal colour.
    void s_ChangeBackColor(Colour l_ColorValue) override;
    /// @}

    /// @name Messages of the entry
    /// @{
    [[nodiscard]] const std::string& MsgInvalidEntry() const noexcept { return m_entryMessages.invalid; }
    void MsgInvalidEntry(std::string_view value);
    [[nodiscard]] const std::string& MsgInvalidEntryTo() const noexcept { return m_entryMessages.to; }
    void MsgInvalidEntryTo(std::string_view value);
    [[nodiscard]] const std::string& MsgInvalidEntryNAN() const noexcept { return m_entryMessages.notANumber; }
    void MsgInvalidEntryNAN(std::string_view value);
    [[nodiscard]] const std::string& MsgInvalidEntryForText() const noexcept { return m_entryMessages.tooLong; }
    void MsgInvalidEntryForText(std::string_view value);
    /// @}

    using Control::subscribe;
    using Control::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorTextBox& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorTextBox& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        txt_TextBox = controls::EntryField::kText, ///< the text field
        lbl_Units = controls::EntryField::kUnits,  ///< the unit label
        img_State = controls::EntryField::kIcon,   ///< the state icon; a click explains the state
    };
    [[nodiscard]] std::optional<Variant> entryUnderWay() const override;
    [[nodiscard]] platform::Widget* widget(int number) noexcept override;

private:
    struct Rows;
    struct States;
    struct Tables;

    struct EntryMessages {
        core::SharedText invalid = core::shared<"Invalid Entry">();
        core::SharedText to = core::shared<"To">();
        core::SharedText notANumber = core::shared<"Invalid Entry">();
        core::SharedText tooLong = core::shared<"Text is too long. Please enter a shorter text.">();
    };

    /// What the text of a number follows from. The same value comes again and again, and keeps its text.
    struct Formatted {
        std::uint64_t bits; ///< of the number: 0 and -0 have two texts
        MEAS_TYPE unit;
        std::int16_t digits;
        std::uint32_t settings; ///< the user's
        bool operator==(const Formatted&) const = default;
    };

    /// Where the text came from: a host's ModifiedValue or a form, DeviceValue, or somebody's edit.
    enum class Source : std::uint8_t { Output, Device, Edit };

    explicit ctx_ZorTextBox(platform::Container& container);
    ~ctx_ZorTextBox() override = default;

    // Value pipeline
    void s_ApplyDeviceValue();
    /// Makes the display value of a number in OutputUnit, which has a pattern.
    void formatDisplayValue(double number);
    void s_DeviceUnitChanged() override;
    void s_OutputUnitChanged() override;
    void s_AfterOutputUnit() override;
    void s_UpdateLimits() override;
    [[nodiscard]] Variant fv_FormatDisplayValue(const Variant& value, MEAS_TYPE unit);
    void show(const Variant& value);
    void setText(std::string_view text);
    void assignOutput(const Variant& value);
    /// Whether the text is, letter for letter, what was last shown from the device.
    [[nodiscard]] bool showsDisplayValue() const;
    /// Whether the text is the display value, or what the operator reads of it.
    [[nodiscard]] bool equalsDisplayValue() const;
    [[nodiscard]] bool isNumeric() const noexcept { return m_entryType == Numeric; }

    // Editing
    void onTextChanged();
    void s_CommitEntry(bool reformat);
    void validateEntry(bool reformat);
    void assignEntry();
    /// What the text hands back, in DeviceUnit.
    [[nodiscard]] Variant entry() const;
    void setInvalidEntry();
    /// A text entry has more characters than MaxLength.
    [[nodiscard]] bool isTooLong() const;
    [[nodiscard]] std::string rangeText() const;
    void appendDisplayValue(std::string& text) const;

    // Display
    void s_UpdateColors() override;
    void s_UpdateDeviceSupportDisplay() override;
    void s_UpdateUnitLabelVisibility() override;
    void s_ShowUnit(std::string_view caption) override;
    void s_AlignText();
    void s_Layout() override;
    void s_AfterLoading() override;
    [[nodiscard]] std::span<platform::Widget* const> body() noexcept override { return m_body; }
    [[nodiscard]] platform::Image& icon() noexcept override { return m_field.icon(); }
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;
    void undoEdit() override;
    void describe(platform::Spoken& spoken) const override;
    [[nodiscard]] bool isLabel(int widget) const noexcept override { return widget == lbl_Units; }
    [[nodiscard]] std::string shownUnit() const override { return m_field.units().caption(); }

    controls::EntryField m_field;
    std::array<platform::Widget*, 2> m_body;

    Variant m_deviceValue = 0;
    Variant m_outputValue = 0;
    /// What was last shown from the device, in OutputUnit: the edit is judged against it and undo returns to it.
    Variant m_displayValue = 0.0;
    /// What the display value was made from, where the value formatter made it: a number for sure.
    std::optional<Formatted> m_formatted;
    /// What the operator reads of the display value, where that says less: after a change of OutputUnit.
    std::optional<std::string> m_shownDisplay;
    EntryMessages m_entryMessages;
    /// What s_ChangeBackColor gave the field.
    std::optional<Colour> m_customBackColour;
    /// The unit in which m_deviceValue came.
    MEAS_TYPE m_deviceValueUnit = LgthU_1By10_MM;
    ENTRY_TYPE m_entryType = Numeric;
    std::int16_t m_numberOfDigits = 3;
    std::int16_t m_numberOfDecimals = 3;
    std::int16_t m_maxLength = 10;
    bool m_invalidEntryEnable = true;
    bool m_invalidEntry = false;
    bool m_textFontBold = false;
    bool m_editPending = false;
    Source m_source = Source::Output;
    /// The next report of the text is the control's own doing, or the undo's.
    bool m_isShowing = false;
    bool m_isUndoing = false;
};

} // namespace zor
