#include <zor/controls/display/label/label_rows.h>

#include <utility>

namespace zor {

using platform::Twips;

namespace {

// The composite as designed; the container may give it any other size.
constexpr Twips kDesignedWidth = 1800;
constexpr Twips kGap = 100;

} // namespace

ctx_ZorLabel::ctx_ZorLabel(platform::Container& container)
    : Control(classInfo(), container, kDesignedWidth, core::kIconSize), m_label(surface().createLabel(lbl_Label)),
      m_icon(surface().createImage(img_State, false)), m_body{m_label.get()}
{
    m_label->setSelectable(true);
    m_label->setGeometry({0, (core::kIconSize - m_label->height()) / 2, 0, m_label->height()});
    m_icon->setGeometry({0, 0, core::kIconSize, core::kIconSize});
    s_PlaceIcon();
}

core::ControlPtr<ctx_ZorLabel> ctx_ZorLabel::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorLabel>(new ctx_ZorLabel(container));
}

platform::Widget* ctx_ZorLabel::widget(int number) noexcept
{
    switch (number) {
    case lbl_Label: return m_label.get();
    case img_State: return m_icon.get();
    default: return Control::widget(number);
    }
}

void ctx_ZorLabel::onNotice(int widget, platform::Notice notice, platform::EventArgs args)
{
    if (widget == img_State && notice == platform::Notice::Click)
        s_ExplainState();
    forward(widget, notice, args);
}

void ctx_ZorLabel::showWrittenCaption() { m_label->setCaption(std::exchange(m_writtenCaption, {})); }

void ctx_ZorLabel::s_PlaceIcon()
{
    platform::Rect place = m_icon->geometry();
    place.left = m_label->left() + m_label->width() + kGap;
    m_icon->setGeometry(place);
}

void ctx_ZorLabel::s_UpdateColors()
{
    m_label->setForeColour(m_status.cFail ? kRed : ButtonText);
    m_label->setBold(m_status.cFail);
    s_PlaceIcon();
}

void ctx_ZorLabel::s_ChangeBackColor(Colour l_ColorValue)
{
    Control::s_ChangeBackColor(l_ColorValue);
    m_label->setBackColour(l_ColorValue);
}

void ctx_ZorLabel::s_UpdateDeviceSupportDisplay()
{
    m_label->setVisible(isDeviceSupported());
    // The state icon comes back with the next status refresh: what it showed may be out of date.
    if (!isDeviceSupported())
        m_icon->setVisible(false);
}

void ctx_ZorLabel::s_AfterLoading()
{
    showWrittenCaption();
    s_UpdateColors();
    s_UpdateEnabledState();
    s_PlaceIcon();
}

// --- Properties

void ctx_ZorLabel::DeviceValue(std::string_view value) { write(Rows::DeviceValue, value); }
void ctx_ZorLabel::LabelCaption(std::string_view value) { write(Rows::LabelCaption, value); }

} // namespace zor
