// How the slider looks: visibility and placement.

#include <zor/controls/numeric/slider/ctx_ZorSlider.h>

#include <algorithm>

namespace zor {

using platform::Rect;
using platform::Twips;

namespace {

constexpr Twips kTrackHeight = 510;
constexpr Twips kLabelTop = 515;
constexpr Twips kLabelHeight = 195;
constexpr Twips kIconGap = 100;

constexpr Twips kBesideTrack = 415;
constexpr Twips kNarrow = 700;
constexpr Twips kMinTrackWidth = 285;
constexpr Twips kLabelGap = 20;
/// The upper end's number stands this far left of the track's end.
constexpr Twips kBeforeTrackEnd = 150;

using Group = std::array<platform::Label*, 3>;

Twips widthOf(const Group& group)
{
    return group[0]->width() + group[1]->width() + group[2]->width() + 2 * kLabelGap;
}

/// Places the labels one after another; returns where the last one ends.
Twips place(const Group& group, Twips left)
{
    for (platform::Label* label : group) {
        const Rect old = label->geometry();
        label->setGeometry({left, old.top, old.width, old.height});
        left += label->width() + kLabelGap;
    }
    return left - kLabelGap;
}

} // namespace

void ctx_ZorSlider::s_PlaceAsDesigned()
{
    m_track->setGeometry({0, 0, kDesignedWidth - kBesideTrack, kTrackHeight});
    m_icon->setVisible(false);
    m_icon->setGeometry(
        {kDesignedWidth - kBesideTrack + kIconGap, core::kIconTop, core::kIconSize, core::kIconSize});
    for (const auto& label : m_labels)
        label->setGeometry({0, kLabelTop, 0, kLabelHeight});
}

void ctx_ZorSlider::s_ChangeBackColor(Colour l_ColorValue)
{
    Control::s_ChangeBackColor(l_ColorValue);
    for (const auto& label : m_labels)
        label->setBackColour(l_ColorValue);
}

// --- Visibility

void ctx_ZorSlider::s_UpdateDeviceSupportDisplay()
{
    const bool isSupported = isDeviceSupported();
    m_track->setVisible(isSupported);
    label(lbl_MinPrefix).setVisible(isSupported);
    label(lbl_MaxPrefix).setVisible(isSupported);
    // The state icon comes back with the next status refresh: what it showed may be out of date.
    if (!isSupported)
        m_icon->setVisible(false);
    s_UpdateUnitLabelVisibility();
}

void ctx_ZorSlider::s_UpdateUnitLabelVisibility()
{
    const bool isSupported = isDeviceSupported();
    for (const Widgets unit : {lbl_MinUnit, lbl_MaxUnit})
        label(unit).setVisible(m_unitEnable && isSupported);
    for (const Widgets value : {lbl_MinValue, lbl_MaxValue})
        label(value).setVisible(m_enableValues && isSupported);
}

void ctx_ZorSlider::s_ShowUnit(std::string_view caption)
{
    // Who hears of the first label may write another caption where this one is kept, and has set both then.
    const std::string shown(caption);
    label(lbl_MinUnit).setCaption(shown);
    if (label(lbl_MinUnit).caption() == shown)
        label(lbl_MaxUnit).setCaption(shown);
    s_Layout();
}

// --- Placement

void ctx_ZorSlider::s_Layout()
{
    const Rect area = surface().geometry();
    Rect track = m_track->geometry();
    track.width = area.width >= kNarrow ? area.width - kBesideTrack : kMinTrackWidth;
    m_track->setGeometry(track);
    Rect icon = m_icon->geometry();
    icon.left = track.left + track.width + kIconGap;
    m_icon->setGeometry(icon);

    const Twips leftEnd = place({&label(lbl_MinPrefix), &label(lbl_MinValue), &label(lbl_MinUnit)}, kLabelGap);
    const Group right{&label(lbl_MaxPrefix), &label(lbl_MaxValue), &label(lbl_MaxUnit)};
    const Twips valueWidth = right[1]->width();
    // The number is centred on this point, with its prefix before it.
    const Twips centre = track.width - kBeforeTrackEnd;
    const Twips centred = centre - roundToInt32(valueWidth / 2) - kLabelGap - right[0]->width();
    const bool fits = leftEnd + kLabelGap < centred && area.width - right[2]->width() - valueWidth / 2 > centre;
    // Else it is pushed left until it ends at the control's edge, up to the left group and never into it.
    const Twips beside = leftEnd + kLabelGap;
    const Twips atEdge = area.width - widthOf(right);
    const Twips pushed = atEdge < leftEnd ? beside : std::min(std::max(beside, centred), atEdge);
    place(right, fits && m_enableValues ? centred : pushed);
    if (area.height != kHeight)
        surface().setGeometry({area.left, area.top, area.width, kHeight});
}

} // namespace zor
