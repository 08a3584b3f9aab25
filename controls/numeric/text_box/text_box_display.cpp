// How the text box looks: colours, visibility, placement.

#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "controls/numeric/text_box/text_box_numbers.h"

#include <algorithm>

namespace zor {

using platform::Rect;
using platform::Twips;
using namespace text_box;

namespace {

// The composite as designed; the container may give it any other size.
constexpr Twips kDesignedWidth = 3000;
constexpr Twips kDesignedHeight = 315;
constexpr Twips kDesignedTextWidth = 1695;
constexpr Twips kIconSize = 285;

constexpr Twips kGap = 100;
constexpr Twips kMinTextWidth = 100;
constexpr Twips kMinTextHeight = 280;

Rect at(const platform::Widget& widget, Twips left, Twips top)
{
    const Rect old = widget.geometry();
    return {left, top, old.width, old.height};
}

Twips centredOn(const Rect& field, Twips height) { return field.top + field.height / 2 - height / 2; }

} // namespace

ctx_ZorTextBox::ctx_ZorTextBox(platform::Container& container)
    : Control(classInfo(), container, kDesignedWidth, kDesignedHeight), m_text(surface().createTextField(kText)),
      m_unitLabel(surface().createLabel(kUnits)), m_icon(surface().createImage(kState)),
      m_undo(surface()), m_body{m_text.get(), m_unitLabel.get()}
{
    m_text->setGeometry({0, 0, kDesignedTextWidth, kDesignedHeight});
    m_unitLabel->setGeometry(at(*m_unitLabel, kDesignedTextWidth + kGap, 0));
    m_icon->setVisible(false);
    m_icon->setGeometry(
        {kDesignedTextWidth + kGap, centredOn(m_text->geometry(), kIconSize), kIconSize, kIconSize});
    m_heightMargin = surface().height() - m_text->height();
    s_AlignText();
    s_UpdateColors();
    s_Layout();
}

core::ControlPtr<ctx_ZorTextBox> ctx_ZorTextBox::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorTextBox>(new ctx_ZorTextBox(container));
}

platform::Widget* ctx_ZorTextBox::widget(int number) noexcept
{
    switch (number) {
    case kText: return m_text.get();
    case kUnits: return m_unitLabel.get();
    case kState: return m_icon.get();
    default: return Control::widget(number);
    }
}

// --- Colours

void ctx_ZorTextBox::s_UpdateColors()
{
    const bool readOnly = isReadOnlyForOperator();
    const bool modified = m_status.dataModified;
    const auto normal = [this](Colour system) { return m_hasCustomBackColour ? m_customBackColour : system; };
    if (m_status.cFail) {
        m_text->setForeColour(kRed);
        m_text->setBold(true);
        m_text->setBackColour(readOnly ? normal(ButtonFace) : modified ? kYellow : normal(WindowBackground));
    } else if (readOnly) {
        if (!m_hasCustomBackColour)
            m_text->setBackColour(ButtonFace);
        m_text->setForeColour(ButtonText);
        m_text->setBold(modified || m_textFontBold);
    } else {
        m_text->setBackColour(modified ? kYellow : normal(WindowBackground));
        m_text->setForeColour(ButtonText);
        m_text->setBold(modified || m_textFontBold);
    }
    m_text->setLocked(m_status.cFail || readOnly);
}

void ctx_ZorTextBox::s_ChangeBackColor(Colour l_ColorValue)
{
    Control::s_ChangeBackColor(l_ColorValue);
    m_unitLabel->setBackColour(l_ColorValue);
    m_text->setBackColour(l_ColorValue);
    m_hasCustomBackColour = true;
    m_customBackColour = l_ColorValue;
}

// --- Visibility

void ctx_ZorTextBox::s_UpdateDeviceSupportDisplay()
{
    const bool supported = isDeviceSupported();
    m_text->setVisible(supported);
    if (supported) {
        // The state icon comes back with the next status refresh: what it showed may be out of date.
        if (m_unitEnable)
            m_unitLabel->setVisible(true);
    } else {
        m_unitLabel->setVisible(false);
        m_icon->setVisible(false);
    }
}

void ctx_ZorTextBox::s_UpdateUnitLabelVisibility()
{
    m_unitLabel->setVisible(m_unitEnable && isDeviceSupported());
}

// --- Placement

void ctx_ZorTextBox::s_AlignText()
{
    m_text->setAlignment(isNumeric() ? platform::Alignment::Right : platform::Alignment::Left);
}

void ctx_ZorTextBox::s_PlaceIcon()
{
    // The label's width follows its caption, and the icon stands right of it.
    if (m_unitEnable && m_units.outputUnit != NoneU)
        m_icon->setGeometry(at(*m_icon, m_unitLabel->left() + m_unitLabel->width() + kGap, m_icon->top()));
}

void ctx_ZorTextBox::s_Layout()
{
    const Rect area = surface().geometry();
    Rect field = m_text->geometry();
    field.width = std::max(area.width - m_widthDifference, kMinTextWidth);
    const Twips labelLeft = field.left + field.width + kGap;
    field.height = std::max(area.height - m_heightMargin, kMinTextHeight);
    m_text->setGeometry(field);
    m_unitLabel->setGeometry(at(*m_unitLabel, labelLeft, centredOn(field, m_unitLabel->height())));
    const bool hasUnit = m_unitEnable && m_units.outputUnit != NoneU;
    const Twips iconLeft = hasUnit ? labelLeft + m_unitLabel->width() + kGap : labelLeft;
    m_icon->setGeometry(at(*m_icon, iconLeft, centredOn(field, m_icon->height())));
}

void ctx_ZorTextBox::s_AfterLoading()
{
    s_UpdateUnitLabelVisibility();
    s_DeviceUnitChanged();
    s_OutputUnitChanged();
    // The stored caption is kept for the property; the label starts with the unit's own.
    m_unitLabel->setCaption(fc_GetUnitLabel(m_units.outputUnit));
    s_UpdateColors();
    s_UpdateEnabledState();
    show(m_text->text());
    s_Layout();
}

} // namespace zor
