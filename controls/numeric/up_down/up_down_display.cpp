// How the up-down looks: colours, visibility, placement.

#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>

namespace zor {

using platform::Rect;
using platform::Twips;

namespace {

constexpr Twips kSpinWidth = 240;
constexpr Twips kMinTextHeight = 30;

} // namespace

void ctx_ZorUpDown::s_UpdateColors() { m_field.paint(m_status, isReadOnlyForOperator(), std::nullopt, false); }

void ctx_ZorUpDown::s_ChangeBackColor(Colour l_ColorValue)
{
    Control::s_ChangeBackColor(l_ColorValue);
    m_field.units().setBackColour(l_ColorValue);
}

void ctx_ZorUpDown::s_UpdateDeviceSupportDisplay()
{
    m_field.showSupported(isDeviceSupported(), m_unitEnable);
    m_spin->setVisible(isDeviceSupported());
}

void ctx_ZorUpDown::s_UpdateUnitLabelVisibility()
{
    m_field.units().setVisible(m_unitEnable && isDeviceSupported());
}

void ctx_ZorUpDown::s_ShowUnit(std::string_view caption)
{
    m_field.showUnit(caption, [this] { return showsUnit(); });
}

void ctx_ZorUpDown::s_Layout()
{
    const Rect field = m_field.layOut(surface().geometry(), kMinTextHeight, kSpinWidth, showsUnit());
    m_spin->setGeometry({field.left + field.width, field.top, kSpinWidth, field.height});
}

void ctx_ZorUpDown::s_AfterLoading()
{
    UnitControl::s_AfterLoading();
    s_Layout();
    // The stored limits may have been expressed in another unit than the one loaded with them.
    s_UpdateLimits();
}

} // namespace zor
