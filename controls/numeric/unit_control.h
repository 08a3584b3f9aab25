#pragma once

/// What the three numeric controls are alike in: units, limits, a unit label, and an undo of the edit.

#include <zor/controls/numeric/unit_binding.h>
#include <zor/core/control.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace zor::controls {

/// A numeric control without a kind. Its widgets, and all that is done with a value, are the derived class's own.
class UnitControl : public core::Control {
public:
    using Control::DataChanged;
    using Control::DataModified;
    using Control::IconEnable;
    using Control::MsgDataChanged;
    using Control::ReadOnly;

    /// @name Units
    /// @{
    /// The quantity of the three units. A write is only stored, so it comes before the units, and they before the
    /// limits.
    [[nodiscard]] UNIT_TYPE UnitType() const noexcept { return m_units.unitType; }
    void UnitType(UNIT_TYPE value);
    /// The unit of DeviceValue, OutputValue and ModifiedValue.
    [[nodiscard]] MEAS_TYPE DeviceUnit() const noexcept { return m_units.deviceUnit; }
    void DeviceUnit(MEAS_TYPE value);
    /// The unit in which the operator sees the value and enters it.
    [[nodiscard]] MEAS_TYPE OutputUnit() const noexcept { return m_units.outputUnit; }
    void OutputUnit(MEAS_TYPE value);
    /// The unit of MinValue and MaxValue.
    [[nodiscard]] MEAS_TYPE DefaultUnit() const noexcept { return m_units.defaultUnit; }
    void DefaultUnit(MEAS_TYPE value);
    /// Whether the unit is shown. A new control has none to show until OutputUnit or UnitLabelCaption is written.
    [[nodiscard]] bool UnitEnable() const noexcept { return m_unitEnable; }
    void UnitEnable(bool value);
    /// Text of the unit label, empty in a new control. Each write of OutputUnit makes it that unit's label again.
    [[nodiscard]] const std::string& UnitLabelCaption() const noexcept { return m_unitLabelCaption; }
    void UnitLabelCaption(std::string_view value);
    /// The identifier under which a host looks up a translated unit label.
    [[nodiscard]] std::string fc_GetCaptionID() const;
    /// @}

    /// @name Valid range
    /// @{
    /// Limits of the value, in DefaultUnit, both included. Any two numbers are taken, whichever is larger;
    /// infinite and undefined ones raise Overflow. Where whole numbers are edited, so do those beyond 32 bits in
    /// OutputUnit, and the limit stays as written.
    [[nodiscard]] double MinValue() const noexcept { return m_units.minValue; }
    void MinValue(double value);
    [[nodiscard]] double MaxValue() const noexcept { return m_units.maxValue; }
    void MaxValue(double value);
    /// The same limits in OutputUnit. Writing raises ReadOnly in user mode and is ignored at design time.
    [[nodiscard]] double MinParamValue() const noexcept { return m_units.minParam; }
    void MinParamValue(double value);
    [[nodiscard]] double MaxParamValue() const noexcept { return m_units.maxParam; }
    void MaxParamValue(double value);
    /// @}

    [[nodiscard]] platform::PopupMenu* menu() override { return &m_undo.menu(); }

protected:
    UnitControl(const core::ClassInfo& info, platform::Container& container, platform::Twips width,
                platform::Twips height, MEAS_TYPE deviceUnit);
    ~UnitControl() override = default;

    /// @name The unit module's functions, for hosts that reach it through a control only
    /// @{
    [[nodiscard]] double fd_GetConversionFactor(const UNIT_TYPE& i_UnitType, MEAS_TYPE i_FromUnit,
                                                const MEAS_TYPE& i_ToUnit) const noexcept;
    [[nodiscard]] double fd_GetOffset(MEAS_TYPE i_FromUnit, const MEAS_TYPE& i_ToUnit) const noexcept;
    /// @}

    /// @name Refreshes, in each class's own form
    /// @{
    virtual void s_DeviceUnitChanged() = 0;
    virtual void s_OutputUnitChanged() = 0;
    virtual void s_UpdateMinParamValue() { m_units.updateMinParam(); }
    virtual void s_UpdateMaxParamValue() { m_units.updateMaxParam(); }
    virtual void s_UpdateUnitLabelVisibility() = 0;
    /// Both limits, after DefaultUnit has changed.
    virtual void s_UpdateLimits();
    /// Shows a text as the unit, and places what stands beside it.
    virtual void s_ShowUnit(std::string_view caption) = 0;
    /// After OutputUnit has changed.
    virtual void s_AfterOutputUnit();
    /// @}

    /// The refreshes that come first when the stored properties have been read.
    void s_AfterLoading() override;
    void describe(platform::Spoken& spoken) const override;

    /// The state icon's click, the menu, and where the menu opens; then the event of the class's table.
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;
    virtual void undoEdit() = 0;
    [[nodiscard]] virtual bool isLabel(int widget) const noexcept = 0;
    /// What stands as the unit beside the value.
    [[nodiscard]] virtual std::string shownUnit() const = 0;

    [[nodiscard]] bool showsUnit() const noexcept { return m_unitEnable && m_units.outputUnit != NoneU; }
    /// Whether what the operator does to the value is undone instead of taken.
    [[nodiscard]] bool isInputLocked() const noexcept { return m_status.cFail || isReadOnlyForOperator(); }
    /// Whether the shown value differs from the device's; raises DataModifiedSetTrue each time it does.
    void judge(bool differs);

    UnitBinding m_units;
    std::string m_unitLabelCaption;
    bool m_unitEnable = true;

private:
    friend struct UnitRows;

    core::UndoMenu m_undo;
};

} // namespace zor::controls
