#include <zor/controls/numeric/entry_field.h>
#include <zor/platform/text.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <utility>

namespace zor::controls {

using platform::Notice;
using platform::Rect;
using platform::Twips;

namespace {

constexpr Twips kDesignedTextWidth = 1695;
constexpr Twips kGap = 100;
constexpr Twips kMinTextWidth = 100;

void move(platform::Widget& widget, Twips left, Twips top)
{
    const Rect old = widget.geometry();
    widget.setGeometry({left, top, old.width, old.height});
}

Twips centredOn(const Rect& field, const platform::Widget& widget)
{
    return field.top + field.height / 2 - widget.height() / 2;
}

} // namespace

EntryField::EntryField(platform::Surface& surface)
    : m_text(surface.createTextField(kText)), m_units(surface.createLabel(kUnits)),
      m_icon(surface.createImage(kIcon, false))
{
    m_text->setGeometry({0, 0, kDesignedTextWidth, kDesignedHeight});
    move(*m_units, kDesignedTextWidth + kGap, 0);
    m_icon->setGeometry({kDesignedTextWidth + kGap, core::kIconTop, core::kIconSize, core::kIconSize});
    m_heightMargin = surface.height() - m_text->height();
}

platform::Widget* EntryField::widget(int number) const noexcept
{
    switch (number) {
    case kText: return m_text.get();
    case kUnits: return m_units.get();
    case kIcon: return m_icon.get();
    default: return nullptr;
    }
}

std::optional<double> EntryField::number() const { return validNumber(std::string_view(m_text->text())); }

// --- Focus

void EntryField::followFocus(int widget, Notice notice)
{
    if (widget != kText)
        return;
    if (notice == Notice::GotFocus) {
        m_selectAllPending = true;
        selectAll();
    } else if (notice == Notice::MouseUp && std::exchange(m_selectAllPending, false)) {
        // The click that brought the focus must not leave a caret in place of the selection.
        selectAll();
    }
}

void EntryField::selectAll() { m_text->select(0, platform::characterCount(m_text->text())); }

// --- Looks

void EntryField::paint(const Looks& looks)
{
    const auto& [isModified, isFailed, isReadOnly, isBold, normal] = looks;
    if (isFailed) {
        m_text->setForeColour(kRed);
        m_text->setBold(true);
        m_text->setBackColour(isReadOnly   ? normal.value_or(ButtonFace)
                              : isModified ? kYellow
                                           : normal.value_or(WindowBackground));
    } else {
        // Who gave a read-only field a colour of its own may have given it another since.
        if (!isReadOnly)
            m_text->setBackColour(isModified ? kYellow : normal.value_or(WindowBackground));
        else if (!normal)
            m_text->setBackColour(ButtonFace);
        m_text->setForeColour(ButtonText);
        m_text->setBold(isModified || isBold);
    }
    m_text->setLocked(isFailed || isReadOnly);
    m_painted = looks;
}

void EntryField::showSupported(bool isSupported, bool unitEnable)
{
    m_text->setVisible(isSupported);
    if (isSupported) {
        // The state icon comes back with the next status refresh: what it showed may be out of date.
        if (unitEnable)
            m_units->setVisible(true);
    } else {
        m_units->setVisible(false);
        m_icon->setVisible(false);
    }
}

void EntryField::followUnit() { move(*m_icon, m_units->left() + m_units->width() + kGap, m_icon->top()); }

Rect EntryField::layOut(const Rect& area, Twips minHeight, Twips beside, bool showsUnit)
{
    Rect field = m_text->geometry();
    field.width = std::max(area.width - widthDifference, kMinTextWidth);
    field.height = std::max(area.height - m_heightMargin, minHeight);
    m_text->setGeometry(field);
    const Twips labelLeft = field.left + field.width + beside + kGap;
    move(*m_units, labelLeft, centredOn(field, *m_units));
    const Twips iconLeft = showsUnit ? labelLeft + m_units->width() + kGap : labelLeft;
    move(*m_icon, iconLeft, centredOn(field, *m_icon));
    return field;
}

} // namespace zor::controls
