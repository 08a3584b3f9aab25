#pragma once

/// How texts and colours from outside become what Qt paints.

#include <zor/platform/colour.h>
#include <zor/platform/widgets.h>

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QRect>
#include <QString>

#include <string>
#include <string_view>

class QStyleOptionFrame;
class QWidget;

namespace zor::platform::qt {

/// How large a control is drawn: the twips of a device-independent pixel. 15 for the fonts that the controls were
/// designed for; a larger font makes all of a control larger.
class Scale {
public:
    Scale() = default;
    explicit Scale(const QFont& font);

    [[nodiscard]] double twips(double pixels) const noexcept { return pixels * m_twipsPerPixel; }
    [[nodiscard]] int pixels(Twips twips) const;
    [[nodiscard]] QRect pixels(const Rect& rect) const;
    bool operator==(const Scale&) const = default;

private:
    double m_twipsPerPixel = 15.0;
};

/// A text that Qt can show at once: invalid UTF-8 and NULs as replacement characters, no more than `limit`
/// characters, an ellipsis in place of the rest.
[[nodiscard]] QString shownText(std::string_view text, int limit);

/// The room that a text of one line or several takes in a widget's font, at least a line. Most labels say what
/// others say as well: each text is measured once in a font.
[[nodiscard]] QSize textSize(const QString& text, const QWidget& widget);

/// A tooltip that is never taken for mark-up.
[[nodiscard]] QString plainToolTip(std::string_view text);

/// A picture in the middle of a size, as sharp as the pixel ratio asks for. Each is drawn once, whoever shows it.
[[nodiscard]] QPixmap shownPicture(std::string_view svg, QSize size, double ratio);

/// What lies inside of a frame.
[[nodiscard]] QRect insideOf(const QStyleOptionFrame& frame);

/// The frame that the widget's style draws around a line edit, and nothing inside of it. Each look of one size is
/// drawn once, whoever shows it.
[[nodiscard]] QPixmap fieldFrame(const QStyleOptionFrame& frame, const QWidget& widget);

/// The theme's colour for a system colour, any other as it is.
[[nodiscard]] QColor toQColor(Colour colour);

/// Contrast of two colours, 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// The text colour nearest to the one wanted that reaches a contrast of 4.5 on the background. A system
/// colour that does not reach it becomes black or white.
[[nodiscard]] QColor readableOn(Colour wanted, const QColor& background);

/// What a widget with these colours paints with, in the present theme. The same for all of one colour: made once.
[[nodiscard]] QPalette paletteOf(Colour back, Colour fore);

/// Whether a widget without a palette of its own is painted with these colours all the same, being as enabled as
/// it is: a palette takes half a kilobyte, and most fields are in the theme's own colours.
[[nodiscard]] bool isSeenAs(const QWidget& widget, const QPalette& colours);

/// The window colour of a palette from which a style paints the frame of an empty mark: one that is seen on the
/// background, whatever colour it has.
[[nodiscard]] QColor frameSource(const QColor& text, const QColor& background);

/// Keeps colours that mean a state (a field with an edit, a control without communication) where a style sheet of
/// the program would go before the palette. System colours are left to the style sheet.
void holdAgainstStyleSheet(QWidget& widget, Colour back, Colour fore);

} // namespace zor::platform::qt
