#include <zor/controls/choice/caption_choice.h>

namespace zor::controls {

using platform::Twips;

CaptionChoice::CaptionChoice(const core::ClassInfo& info, platform::Container& container,
                             const CaptionLayout& layout)
    : ChoiceControl(info, container, {0, 0, 2000, layout.lowest}, UndoAt::SurfaceAndFace), m_layout(layout)
{}

void CaptionChoice::adopt(platform::ToggleButton& button, std::string_view caption)
{
    m_button = &button;
    m_caption = caption;
    button.setCaption(m_caption);
    ChoiceControl::adopt(button);
}

void CaptionChoice::s_ShowCaption()
{
    m_button->setCaption(m_caption);
    s_Layout();
}

void CaptionChoice::s_UpdateColors()
{
    const bool wasBold = m_button->isBold();
    ChoiceControl::s_UpdateColors();
    // A bold caption is wider; nothing else that the layout goes by has changed.
    if (m_button->isBold() != wasBold)
        s_Layout();
}

void CaptionChoice::s_ChangeBackColor(Colour l_ColorValue)
{
    ChoiceControl::s_ChangeBackColor(l_ColorValue);
    m_button->setBackColour(l_ColorValue);
}

void CaptionChoice::s_Layout()
{
    constexpr Twips kIndicator = 330; // left of the caption
    constexpr Twips kGap = 100;
    const Twips height = surface().height();
    const bool isLow = height < m_layout.lowest;
    platform::Rect place = m_button->geometry();
    place.width = surface().textWidth(m_caption, m_button->isBold()) + kIndicator;
    place.height = m_layout.lowest;
    place.top = isLow ? 0 : roundToInt32((height - m_layout.lowest) / 2);
    m_button->setGeometry(place);
    const Twips iconTop = isLow ? core::kIconTop : place.top + m_layout.iconTop;
    icon().setGeometry({place.left + place.width + kGap, iconTop, icon().width(), icon().height()});
}

void CaptionChoice::s_AfterLoading()
{
    m_button->setCaption(m_caption);
    ChoiceControl::s_AfterLoading();
}

} // namespace zor::controls
