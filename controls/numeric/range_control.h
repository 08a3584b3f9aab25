#pragma once

/// What up-down and slider are alike in: a value that is moved between two ends, and judged when it comes.

#include <zor/controls/numeric/unit_control.h>

#include <string>
#include <string_view>

namespace zor::controls {

/// A numeric control with a judged value.
class RangeControl : public UnitControl {
public:
    /// Whether the last device value or modification lies outside the limits. A value that differs from a limit by
    /// no more than rounding lies on it. Writing raises ReadOnly in user mode and is ignored at design time.
    [[nodiscard]] bool InvalidValue() const noexcept { return m_invalidValue; }
    void InvalidValue(bool value);
    /// A text for a host's own use: an invalid value has no state of its own.
    [[nodiscard]] const std::string& MsgInvalidValue() const noexcept { return m_msgInvalidValue; }
    void MsgInvalidValue(std::string_view value);

protected:
    using UnitControl::UnitControl;
    ~RangeControl() override = default;

    /// Judges a value in DeviceUnit; raises InvalidValueSetTrue each time it is invalid.
    void testValue(double deviceValue);

    /// Whether all that is shown is in OutputUnit. A change of unit in which something does not fit is told, and
    /// leaves the unit new and the numbers old: going back changes nothing then, and what comes meanwhile must not
    /// be taken for one of the old numbers.
    [[nodiscard]] bool isUnitSettled() const noexcept { return m_units.previousOutputUnit == m_units.outputUnit; }

private:
    friend struct RangeRows;

    core::SharedText m_msgInvalidValue = core::shared<"Invalid Entry">();
    bool m_invalidValue = false;
};

} // namespace zor::controls
