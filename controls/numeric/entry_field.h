#pragma once

/// A text field with a unit label and a state icon beside it: what the operator sees of the text box and of the
/// up-down, save its spin button.

#include <zor/core/control.h>
#include <zor/platform/macros_aside.h>
#include <zor/platform/widgets.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace zor::controls {

class EntryField {
public:
    /// Numbers of the widgets.
    enum Number : int { kText = 1, kUnits = 2, kIcon = 3 };

    /// Size of the whole as designed, in twips; the container may give it any other.
    static constexpr platform::Twips kDesignedWidth = 3000;
    static constexpr platform::Twips kDesignedHeight = 315;

    /// Widgets on a surface of the designed size; the icon is hidden.
    explicit EntryField(platform::Surface& surface);

    [[nodiscard]] platform::TextField& text() const noexcept { return *m_text; }
    [[nodiscard]] platform::Label& units() const noexcept { return *m_units; }
    [[nodiscard]] platform::Image& icon() const noexcept { return *m_icon; }
    /// A widget by its number; nullptr for another number.
    [[nodiscard]] platform::Widget* widget(int number) const noexcept;
    /// The text as a number, if it is a valid one.
    [[nodiscard]] std::optional<double> number() const;

    /// Selects the whole text when the focus comes, and again when the click that brought it is over.
    void followFocus(int widget, platform::Notice notice);

    /// Colours, lock and boldness of the text. `normal` stands in for the system's back colours, except the
    /// yellow of a modification; `isBold` keeps a text bold that nobody has modified.
    /// Called wherever one of these may have changed, often several times for one value: what has not is not
    /// painted anew.
    void paint(const core::Status& status, bool isReadOnly, std::optional<Colour> normal, bool isBold)
    {
        const Looks looks{status.dataModified, status.cFail, isReadOnly, isBold, normal};
        if (m_painted != looks)
            paint(looks);
    }
    /// The text, for looks of the caller's own, which the next painting may overrule.
    [[nodiscard]] platform::TextField& textToStyle() noexcept
    {
        m_painted.reset();
        return *m_text;
    }
    /// Shows the text, and the unit where it is enabled; hides both and the icon for a device that does not
    /// offer the parameter.
    void showSupported(bool isSupported, bool unitEnable);
    /// Shows a text as the unit; the icon follows the label's width where a unit is shown. That is asked
    /// afterwards, for who hears of the caption may switch the unit off.
    template <class Asked>
    void showUnit(std::string_view caption, Asked&& showsUnit)
    {
        m_units->setCaption(caption);
        if (std::forward<Asked>(showsUnit)())
            followUnit();
    }
    /// Places all three. `beside` is the width of what touches the field on its right. Returns where the field
    /// has come to lie.
    platform::Rect layOut(const platform::Rect& area, platform::Twips minHeight, platform::Twips beside,
                          bool showsUnit);

    /// Room kept right of the field, in twips: the property WidthDifference.
    std::int16_t widthDifference = 1305;

private:
    /// What the text's looks follow from.
    struct Looks {
        bool isModified;
        bool isFailed;
        bool isReadOnly;
        bool isBold;
        std::optional<Colour> normal;
        bool operator==(const Looks&) const = default;
    };

    /// Places the icon behind the unit label, which has got another width.
    void followUnit();
    void selectAll();
    void paint(const Looks& looks);

    std::unique_ptr<platform::TextField> m_text;
    std::unique_ptr<platform::Label> m_units;
    std::unique_ptr<platform::Image> m_icon;
    platform::Twips m_heightMargin = 0;
    bool m_selectAllPending = false;
    std::optional<Looks> m_painted;
};

} // namespace zor::controls

#include <zor/platform/macros_back.h>
