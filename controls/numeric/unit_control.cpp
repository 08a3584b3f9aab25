#include <zor/controls/numeric/unit_control.h>
#include <zor/controls/numeric/unit_rows.h>
#include <zor/platform/number_text.h>

#include <cmath>

namespace zor::controls {

UnitControl::UnitControl(const core::ClassInfo& info, platform::Container& container, platform::Twips width,
                         platform::Twips height, MEAS_TYPE deviceUnit)
    : Control(info, container, width, height), m_undo(surface())
{
    m_units.deviceUnit = deviceUnit;
}

// --- Units

void UnitControl::UnitType(UNIT_TYPE value) { write(UnitRows::UnitType, value); }
void UnitControl::DeviceUnit(MEAS_TYPE value) { write(UnitRows::DeviceUnit, value); }

void UnitControl::OutputUnit(MEAS_TYPE value)
{
    // A handler may end the control and throw: it lives until the previous unit is settled.
    carryOut([&] {
        const MEAS_TYPE before = m_units.previousOutputUnit;
        // Where a failed write stays, the numbers may be in an older unit than the one written last.
        if (!info().keepsFailedWrites)
            m_units.previousOutputUnit = m_units.outputUnit;
        try {
            write(UnitRows::OutputUnit, value);
        } catch (...) {
            if (m_units.outputUnit != value)
                m_units.previousOutputUnit = before;
            throw;
        }
    });
}

void UnitControl::s_AfterOutputUnit()
{
    s_OutputUnitChanged();
    m_unitLabelCaption = fc_GetUnitLabel(m_units.outputUnit);
    s_ShowUnit(m_unitLabelCaption);
}

void UnitControl::DefaultUnit(MEAS_TYPE value) { write(UnitRows::DefaultUnit, value); }
void UnitControl::UnitEnable(bool value) { write(UnitRows::UnitEnable, value); }
void UnitControl::UnitLabelCaption(std::string_view value) { write(UnitRows::UnitLabelCaption, value); }

void UnitControl::describe(platform::Spoken& spoken) const
{
    if (m_unitEnable)
        spoken.unit = shownUnit();
    if (!std::isfinite(m_units.minParam) || !std::isfinite(m_units.maxParam))
        return;
    spoken.ends = {m_units.minParam, m_units.maxParam};
    spoken.limits = {platform::doubleToText(m_units.minParam), platform::doubleToText(m_units.maxParam)};
}

std::string UnitControl::fc_GetCaptionID() const { return std::string(fc_GetUnitID(m_units.outputUnit)); }

double UnitControl::fd_GetConversionFactor(const UNIT_TYPE& i_UnitType, MEAS_TYPE i_FromUnit,
                                           const MEAS_TYPE& i_ToUnit) const noexcept
{
    return zor::fd_GetConversionFactor(i_UnitType, i_FromUnit, i_ToUnit);
}

double UnitControl::fd_GetOffset(MEAS_TYPE i_FromUnit, const MEAS_TYPE& i_ToUnit) const noexcept
{
    return zor::fd_GetOffset(i_FromUnit, i_ToUnit);
}

// --- Valid range

void UnitControl::MinValue(double value) { write(UnitRows::MinValue, value); }
void UnitControl::MaxValue(double value) { write(UnitRows::MaxValue, value); }
void UnitControl::MinParamValue(double value) { write(UnitRows::MinParamValue, value); }
void UnitControl::MaxParamValue(double value) { write(UnitRows::MaxParamValue, value); }

void UnitControl::s_UpdateLimits()
{
    s_UpdateMinParamValue();
    s_UpdateMaxParamValue();
}

// --- Editing

void UnitControl::judge(bool differs)
{
    m_status.dataModified = differs;
    if (differs)
        raise(raised().dataModifiedSetTrue);
}

void UnitControl::onNotice(int number, platform::Notice notice, platform::EventArgs args)
{
    using platform::Notice;
    const bool opensMenu = notice == Notice::MouseUp && (number == platform::kSurfaceWidget || isLabel(number));
    if (number == core::kUndoEdit)
        undoEdit();
    else if (notice == Notice::Click && widget(number) == &icon())
        s_ExplainState();
    else if (opensMenu && !isInputLocked() && m_status.enableControl)
        m_undo.offer(*widget(number), args);
    forward(number, notice, args);
}

// --- Loading

void UnitControl::s_AfterLoading()
{
    s_UpdateUnitLabelVisibility();
    s_DeviceUnitChanged();
    s_OutputUnitChanged();
    // The stored caption is kept for the property; the label starts with the unit's own.
    s_ShowUnit(fc_GetUnitLabel(m_units.outputUnit));
    s_UpdateColors();
    s_UpdateEnabledState();
}

} // namespace zor::controls
