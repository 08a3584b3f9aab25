#include <zor/controls/numeric/slider/slider_rows.h>
#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/temporarily.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zor {

using platform::Notice;
using platform::Temporarily;

namespace {

double finite(double value)
{
    if (!std::isfinite(value))
        raiseError(ErrorNumber::Overflow);
    return value;
}

} // namespace

ctx_ZorSlider::ctx_ZorSlider(platform::Container& container)
    : RangeControl(classInfo(), container, kDesignedWidth, kHeight, LgthU_1By10_MM),
      m_track(surface().createTrack(sld_Slider)), m_icon(surface().createImage(img_State, false))
{
    auto body = m_body.begin();
    *body++ = m_track.get();
    for (std::size_t i = 0; i < kLabelCount; ++i) {
        m_labels[i] = surface().createLabel(lbl_MinPrefix + static_cast<int>(i));
        *body++ = m_labels[i].get();
    }
    s_PlaceAsDesigned();
    constexpr double kInitialMaximum = 10;
    m_units.maxValue = m_units.maxParam = kInitialMaximum;
    s_ShowUnit(fc_GetUnitLabel(m_units.outputUnit));
}

core::ControlPtr<ctx_ZorSlider> ctx_ZorSlider::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorSlider>(new ctx_ZorSlider(container));
}

platform::Widget* ctx_ZorSlider::widget(int number) noexcept
{
    if (number == sld_Slider)
        return m_track.get();
    if (number == img_State)
        return m_icon.get();
    if (number >= lbl_MinPrefix && number <= lbl_MaxUnit)
        return &label(static_cast<Widgets>(number));
    return Control::widget(number);
}

// --- From the device to the operator

void ctx_ZorSlider::DeviceValue(double value) { write(Rows::DeviceValue, scaled(value)); }

void ctx_ZorSlider::s_ApplyDeviceValue()
{
    const auto underWay = newValue();
    testValue(m_deviceValue);
    if (isOvertaken(underWay))
        return;
    const double position = m_units.toOutput(m_deviceValue);
    const std::int32_t whole = roundToInt32(position);
    m_reference = position;
    if (!isUnitSettled())
        m_otherUser = m_units.settled(m_otherUser);
    moveTo(whole);
    if (isOvertaken(underWay))
        return;
    assignOutput(m_deviceValue);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = false;
    s_UpdateStatusDisplay();
}

void ctx_ZorSlider::ModifiedValue(double value)
{
    carryOut([&] {
        const auto underWay = newValue();
        if (!isUnitSettled())
            s_OutputUnitChanged();
        testValue(value);
        if (isOvertaken(underWay))
            return;
        moveTo(roundToInt32(m_units.toOutput(value)));
        if (isOvertaken(underWay))
            return;
        assignOutput(value);
        s_UpdateStatusDisplay();
    });
}

void ctx_ZorSlider::moveTo(std::int32_t whole)
{
    if (whole > m_track->maximum())
        setPosition(m_track->maximum());
    else
        setPosition(std::max(whole, m_track->minimum()));
}

void ctx_ZorSlider::setPosition(std::int32_t position)
{
    const Temporarily own(m_report, Report::Own);
    writeWidget([&] { m_track->setValue(position); });
}

void ctx_ZorSlider::assignOutput(double value)
{
    m_output = value;
    raise(raised().outputValueChange);
}

// --- From the operator to the device

void ctx_ZorSlider::s_TrackMoved()
{
    const auto underWay = valueUnderWay();
    judge(m_track->value() != roundToInt32(m_reference));
    if (isOvertaken(underWay))
        return;
    assignOutput(m_units.toDevice(m_track->value()));
    raise(raised().changed);
}

void ctx_ZorSlider::putBack()
{
    const double shown = m_units.toOutput(m_output);
    setPosition(roundToInt32(std::max<double>(std::min<double>(shown, m_track->maximum()), m_track->minimum())));
}

void ctx_ZorSlider::undoEdit()
{
    if (!m_status.dataModified)
        return;
    const auto underWay = newValue();
    setPosition(roundToInt32(m_reference));
    if (isOvertaken(underWay))
        return;
    // Also where the track cannot go back as far as the device value lies.
    m_status.dataModified = false;
    assignOutput(m_deviceValue);
}

void ctx_ZorSlider::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == sld_Slider && notice == Notice::Change) {
        if (m_report == Report::Ignored)
            return;
        if (!isInputLocked())
            s_TrackMoved();
        else if (m_report == Report::Taken)
            putBack();
        return;
    }
    UnitControl::onNotice(widget, notice, args);
}

// --- Units and limits

void ctx_ZorSlider::s_DeviceUnitChanged() { assignOutput(m_units.toDevice(m_track->value())); }

void ctx_ZorSlider::s_OutputUnitChanged()
{
    // All or nothing: from a unit in which something does not fit, the way back changes nothing.
    const double reference = m_units.reExpress(m_reference);
    const double otherUser = m_units.reExpress(m_otherUser);
    const std::int32_t position = roundToInt32(m_units.reExpress(m_track->value()));
    const double lower = convert(m_units.minParam, m_units.unitType, m_units.limitsUnit, m_units.outputUnit);
    const double upper = convert(m_units.maxParam, m_units.unitType, m_units.limitsUnit, m_units.outputUnit);
    const std::int32_t first = roundToInt32(lower);
    const std::int32_t last = upper > lower ? roundToInt32(upper) : m_track->maximum();
    m_reference = reference;
    m_otherUser = otherUser;
    m_units.previousOutputUnit = m_units.limitsUnit = m_units.outputUnit;
    // The new ends first: the old ones would hold back the same value in the new unit.
    const std::int32_t before = m_track->value();
    {
        const Temporarily ignored(m_report, Report::Ignored);
        m_units.minParam = lower;
        m_track->setMinimum(first);
        m_units.maxParam = upper;
        m_track->setMaximum(last);
        m_track->setValue(position);
    }
    if (m_track->value() != before && !isInputLocked())
        s_TrackMoved();
    s_ShowLimits();
}

double ctx_ZorSlider::scaled(double value) const { return finite(value * m_scaleFactor); }

double ctx_ZorSlider::unscaled(double value) const
{
    if (m_scaleFactor == 0)
        raiseError(ErrorNumber::DivisionByZero);
    return value / m_scaleFactor;
}

template <class Set>
void ctx_ZorSlider::setEnds(Set&& set)
{
    const std::int32_t before = m_track->value();
    {
        const Temporarily ignored(m_report, Report::Ignored);
        std::forward<Set>(set)();
    }
    // A device value beyond the ends is no edit; an edit that the new end cuts is handed back as it is shown.
    if (m_track->value() != before && m_status.dataModified && !isInputLocked())
        s_TrackMoved();
}

void ctx_ZorSlider::s_UpdateMinParamValue()
{
    m_units.settleLimits();
    m_units.minParam = scaled(m_units.limitToOutput(m_units.minValue));
    label(lbl_MinValue).setCaption(platform::doubleToText(unscaled(m_units.minParam)));
    setEnds([&] { m_track->setMinimum(roundToInt32(m_units.minParam)); });
    s_Layout();
}

void ctx_ZorSlider::s_UpdateMaxParamValue()
{
    m_units.settleLimits();
    m_units.maxParam = scaled(m_units.limitToOutput(m_units.maxValue));
    if (m_units.maxParam > m_units.minParam)
        setEnds([&] { m_track->setMaximum(roundToInt32(m_units.maxParam)); });
    label(lbl_MaxValue).setCaption(platform::doubleToText(unscaled(m_units.maxParam)));
    s_Layout();
}

void ctx_ZorSlider::s_ShowLimits()
{
    label(lbl_MinValue).setCaption(platform::doubleToText(unscaled(m_units.minParam)));
    label(lbl_MaxValue).setCaption(platform::doubleToText(unscaled(m_units.maxParam)));
}

void ctx_ZorSlider::s_ShowPrefixes()
{
    label(lbl_MinPrefix).setCaption(m_minPrefix);
    label(lbl_MaxPrefix).setCaption(m_maxPrefix);
    s_Layout();
}

void ctx_ZorSlider::s_AfterLoading()
{
    {
        const Temporarily ignored(m_report, Report::Ignored);
        m_track->setMinimum(roundToInt32(m_units.minParam));
        if (m_units.maxParam > m_units.minParam)
            m_track->setMaximum(roundToInt32(m_units.maxParam));
    }
    // The stored limits are in the stored unit: nothing is left to be expressed in it.
    m_units.previousOutputUnit = m_units.limitsUnit = m_units.outputUnit;
    s_ShowPrefixes();
    UnitControl::s_AfterLoading();
    s_Layout();
}

void ctx_ZorSlider::describe(platform::Spoken& spoken) const
{
    UnitControl::describe(spoken);
    if (m_scaleFactor == 0)
        return;
    spoken.value = platform::doubleToText(unscaled(m_track->value()));
    spoken.ends = {unscaled(m_units.minParam), unscaled(m_units.maxParam)};
    spoken.limits = {platform::doubleToText(spoken.ends->first), platform::doubleToText(spoken.ends->second)};
}

// --- Properties that are not simply fields

double ctx_ZorSlider::OutputValue() const { return unscaled(m_output); }
std::int16_t ctx_ZorSlider::TickStyle() const { return m_track->tickStyle(); }
void ctx_ZorSlider::TickType(std::int16_t value) { m_track->setTickStyle(value); }
double ctx_ZorSlider::TickFrequency() const { return unscaled(m_track->tickFrequency()); }
void ctx_ZorSlider::TickFrequency(double value) { m_track->setTickFrequency(roundToInt32(scaled(value))); }
std::int32_t ctx_ZorSlider::GetNumTicks() const { return m_track->tickCount(); }

// --- Properties

void ctx_ZorSlider::ScaleFactor(std::int32_t value) { write(Rows::ScaleFactor, value); }
void ctx_ZorSlider::OutputValue(double value) { write(Rows::OutputValue, value); }
void ctx_ZorSlider::OtherUserValue(double value) { write(Rows::OtherUserValue, value); }
void ctx_ZorSlider::EnableValues(bool value) { write(Rows::EnableValues, value); }
void ctx_ZorSlider::MinPrefix(std::string_view value) { write(Rows::MinPrefix, value); }
void ctx_ZorSlider::MaxPrefix(std::string_view value) { write(Rows::MaxPrefix, value); }

} // namespace zor
