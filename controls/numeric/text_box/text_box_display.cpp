// How the text box looks: colours, visibility, placement.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>

namespace zor {

void ctx_ZorTextBox::s_UpdateColors()
{
    m_field.paint(m_status, isReadOnlyForOperator(), m_customBackColour, m_textFontBold);
}

void ctx_ZorTextBox::s_ChangeBackColor(Colour l_ColorValue)
{
    Control::s_ChangeBackColor(l_ColorValue);
    m_field.units().setBackColour(l_ColorValue);
    m_field.textToStyle().setBackColour(l_ColorValue);
    m_customBackColour = l_ColorValue;
}

void ctx_ZorTextBox::s_UpdateDeviceSupportDisplay() { m_field.showSupported(isDeviceSupported(), m_unitEnable); }

void ctx_ZorTextBox::s_UpdateUnitLabelVisibility()
{
    m_field.units().setVisible(m_unitEnable && isDeviceSupported());
}

void ctx_ZorTextBox::s_ShowUnit(std::string_view caption)
{
    m_field.showUnit(caption, [this] { return showsUnit(); });
}

void ctx_ZorTextBox::describe(platform::Spoken& spoken) const
{
    UnitControl::describe(spoken);
    if (isNumeric() && m_invalidEntryEnable && !isReadOnlyForOperator())
        return;
    spoken.limits.reset();
    spoken.ends.reset();
}

void ctx_ZorTextBox::s_AlignText()
{
    m_field.text().setAlignment(isNumeric() ? platform::Alignment::Right : platform::Alignment::Left);
}

void ctx_ZorTextBox::s_Layout()
{
    constexpr platform::Twips kMinTextHeight = 280;
    m_field.layOut(surface().geometry(), kMinTextHeight, 0, showsUnit());
}

void ctx_ZorTextBox::s_AfterLoading()
{
    UnitControl::s_AfterLoading();
    // The unit of the stored value is the stored one.
    m_deviceValueUnit = m_units.deviceUnit;
    show(m_field.text().text());
    s_Layout();
}

} // namespace zor
