#pragma once

/// The units of a numeric control and the range that goes with them.

#include <zor/units/mod_Common.h>

#include <cmath>
#include <utility>

namespace zor::controls {

/// In which units a numeric control receives, shows and limits its value. `minParam` and `maxParam` are the
/// limits `minValue` and `maxValue` expressed in the output unit.
struct UnitBinding {
    UNIT_TYPE unitType = Length;
    MEAS_TYPE deviceUnit = LgthU_MM;
    MEAS_TYPE outputUnit = LgthU_MM;
    MEAS_TYPE defaultUnit = LgthU_MM;
    /// The output unit before its last change; what is shown is re-expressed from it.
    MEAS_TYPE previousOutputUnit = LgthU_MM;
    /// The output unit in which the limits are where a change of unit has failed on the way to them.
    MEAS_TYPE limitsUnit = LgthU_MM;
    double minValue = 0;
    double maxValue = 0;
    double minParam = 0;
    double maxParam = 0;

    /// The conversions raise Overflow when the result is infinite or undefined.
    [[nodiscard]] double toOutput(double value) const { return convert(value, unitType, deviceUnit, outputUnit); }
    [[nodiscard]] double toDevice(double value) const { return convert(value, unitType, outputUnit, deviceUnit); }
    [[nodiscard]] double limitToOutput(double value) const
    {
        return convert(value, unitType, defaultUnit, outputUnit);
    }
    /// From the previous output unit to the present one.
    [[nodiscard]] double reExpress(double value) const
    {
        return convert(value, unitType, previousOutputUnit, outputUnit);
    }

    /// A value has come in the present unit; a number beside it follows from the previous one, and that is over.
    [[nodiscard]] double settled(double beside) noexcept
    {
        return converted(beside, unitType, std::exchange(previousOutputUnit, outputUnit), outputUnit);
    }

    /// Both limits. The lower one is the new one also where the upper one has no finite result.
    void reExpressLimits()
    {
        const MEAS_TYPE before = std::exchange(limitsUnit, outputUnit);
        minParam = convert(minParam, unitType, before, outputUnit);
        maxParam = convert(maxParam, unitType, before, outputUnit);
    }

    /// The limits of an older unit follow; what has no finite result limits nothing.
    void settleLimits() noexcept
    {
        if (limitsUnit == outputUnit)
            return;
        minParam = converted(minParam, unitType, limitsUnit, outputUnit);
        maxParam = converted(maxParam, unitType, limitsUnit, outputUnit);
        limitsUnit = outputUnit;
    }

    void updateMinParam() { minParam = limitToOutput(minValue); }
    void updateMaxParam() { maxParam = limitToOutput(maxValue); }

    /// Whether a value in the device unit lies outside the limits taken back to that unit, and again where it is
    /// itself taken to the limits: the ways there and back round differently, and between temperatures they do not
    /// meet. What differs from a limit by rounding alone lies on it.
    [[nodiscard]] bool isOutside(double deviceValue) const noexcept
    {
        // A limit beyond every number of the device unit becomes infinite, and limits nothing.
        return isBeyond(deviceValue, converted(minParam, unitType, outputUnit, deviceUnit),
                        converted(maxParam, unitType, outputUnit, deviceUnit)) &&
               isBeyond(converted(deviceValue, unitType, deviceUnit, outputUnit), minParam, maxParam);
    }
    /// Whether a number of the operator's, in OutputUnit, lies outside the valid range. A limit that has been
    /// re-expressed from unit to unit differs from the one that he reads in its last digits.
    [[nodiscard]] bool isShownOutside(double number) const noexcept
    {
        constexpr double kRounding = 1e-12;
        return isBeyond(number, minParam, maxParam, kRounding);
    }

private:
    [[nodiscard]] static bool isBeyond(double value, double lower, double upper, double rounding = 1e-9) noexcept
    {
        return (value < lower && lower - value > rounding * std::fabs(lower)) ||
               (value > upper && value - upper > rounding * std::fabs(upper));
    }
};

} // namespace zor::controls
