#include <zor/platform/qt/looks.h>
#include <zor/platform/text.h>

#include <QCache>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QSvgRenderer>
#include <QTextDocument>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

namespace zor::platform::qt {
namespace {

constexpr double kReadable = 4.5;
constexpr int kToolTipLimit = 2000;

double channel(double value) { return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); }

double luminance(const QColor& colour)
{
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) + 0.0722 * channel(colour.blueF());
}

/// All that a style draws the frame of a line edit from, as a text that Qt keeps pictures by.
QString frameKey(const QStyleOptionFrame& frame, const QWidget& widget, double ratio)
{
    QString key("zor frame ");
    const auto add = [&key](std::uint64_t number) {
        for (; number != 0; number >>= 16U)
            key += QChar(static_cast<char16_t>(number));
        key += u' ';
    };
    key.reserve(2 * (QPalette::NColorRoles + key.size()) + 16);
    add(reinterpret_cast<std::uintptr_t>(widget.style()));
    add(static_cast<std::uint64_t>(frame.rect.width()));
    add(static_cast<std::uint64_t>(frame.rect.height()));
    add(static_cast<std::uint64_t>(frame.lineWidth));
    add(static_cast<std::uint64_t>(frame.state));
    add(static_cast<std::uint64_t>(std::lround(ratio * 1000)));
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        add(frame.palette.color(static_cast<QPalette::ColorRole>(role)).rgba());
    return key;
}

} // namespace

Scale::Scale(const QFont& font)
{
    // The highest line that every part has room for as designed.
    constexpr double kDesignedLine = 16;
    m_twipsPerPixel /= std::max(1.0, QFontMetrics(font).height() / kDesignedLine);
}

int Scale::pixels(Twips twips) const { return static_cast<int>(std::lround(twips / m_twipsPerPixel)); }

QRect Scale::pixels(const Rect& rect) const
{
    return {pixels(rect.left), pixels(rect.top), pixels(rect.width), pixels(rect.height)};
}

QString shownText(std::string_view text, int limit)
{
    // Most texts are short and plain ASCII.
    const auto isPlain = [](char c) { return c > '\0'; };
    if (text.size() <= static_cast<std::size_t>(limit) && std::ranges::all_of(text, isPlain))
        return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    const std::size_t end = byteOffset(text, static_cast<std::size_t>(limit));
    const bool cut = end < text.size();
    QString shown = QString::fromStdString(validUtf8(text.substr(0, end)));
    shown.replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter));
    return cut ? shown + QChar(0x2026) : shown;
}

namespace {

/// A text in a font. Lines have another height where the screen has another resolution.
struct Line {
    QString text;
    QFont font;
    int height;
    bool operator==(const Line&) const = default;
};

std::size_t qHash(const Line& line, std::size_t seed = 0)
{
    return qHashMulti(seed, line.text, line.font, line.height);
}

} // namespace

QSize textSize(const QString& text, const QWidget& widget)
{
    constexpr qsizetype kMost = 1000;
    static QCache<Line, QSize> measured(kMost);
    const QFontMetrics metrics = widget.fontMetrics();
    const Line line{text, widget.font(), metrics.height()};
    if (const QSize* known = measured.object(line))
        return *known;
    const QSize size = metrics.size(0, text).expandedTo({0, metrics.height()});
    measured.insert(line, new QSize(size));
    return size;
}

QString plainToolTip(std::string_view text)
{
    QString shown = shownText(text, kToolTipLimit);
    if (!Qt::mightBeRichText(shown))
        return shown;
    // Mark-up would make two ends of a line of it.
    shown.replace("\r\n", "\n");
    return "<span style=\"white-space: pre-wrap\">" + shown.toHtmlEscaped() + "</span>";
}

QPixmap shownPicture(std::string_view svg, QSize size, double ratio)
{
    const QByteArray text = QByteArray::fromRawData(svg.data(), static_cast<qsizetype>(svg.size()));
    const QString key =
        QString("%1 %2 %3 ").arg(size.width()).arg(size.height()).arg(ratio) + QString::fromUtf8(text);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    picture = QPixmap((QSizeF(size) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QSvgRenderer renderer(text);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(), size));
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

QRect insideOf(const QStyleOptionFrame& frame)
{
    const int width = frame.lineWidth;
    return frame.rect.adjusted(width, width, -width, -width);
}

QPixmap fieldFrame(const QStyleOptionFrame& frame, const QWidget& widget)
{
    const double ratio = widget.devicePixelRatioF();
    const QString key = frameKey(frame, widget, ratio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    picture = QPixmap((QSizeF(frame.rect.size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    widget.style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, &widget);
    // A line edit's text keeps a pixel from the frame, where some styles draw a shadow.
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(insideOf(frame).adjusted(1, 1, -1, -1), Qt::transparent);
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

QColor toQColor(Colour colour)
{
    const QPalette palette = QGuiApplication::palette();
    switch (colour) {
    case WindowBackground: return palette.color(QPalette::Base);
    case ButtonFace: return palette.color(QPalette::Window);
    case ButtonText: return palette.color(QPalette::WindowText);
    default: return QColor::fromRgb(colour & 0xFFFFFFU);
    }
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QColor readableOn(Colour wanted, const QColor& background)
{
    QColor colour = toQColor(wanted);
    const QColor end = contrast(Qt::black, background) >= contrast(Qt::white, background) ? Qt::black : Qt::white;
    if ((wanted & kSystemColourBit) != 0)
        return contrast(colour, background) >= kReadable ? colour : end;
    constexpr int kSteps = 20;
    const QColor start = colour;
    for (int step = 1; step <= kSteps && contrast(colour, background) < kReadable; ++step) {
        const double part = static_cast<double>(step) / kSteps;
        const auto mix = [part](float from, float to) { return static_cast<float>(from + (to - from) * part); };
        colour = QColor::fromRgbF(mix(start.redF(), end.redF()), mix(start.greenF(), end.greenF()),
                                  mix(start.blueF(), end.blueF()));
    }
    return colour;
}

QPalette paletteOf(Colour back, Colour fore)
{
    constexpr std::size_t kMost = 64;
    static std::map<std::pair<Colour, Colour>, QPalette> made;
    static qint64 theme = 0;
    const qint64 now = QGuiApplication::palette().cacheKey();
    if (std::exchange(theme, now) != now || made.size() > kMost)
        made.clear();
    const auto [at, isNew] = made.try_emplace({back, fore});
    if (isNew) {
        QPalette& palette = at->second;
        const QColor field = toQColor(back);
        const QColor text = readableOn(fore, field);
        palette.setColor(QPalette::Base, field);
        // What is in the theme's colour has the theme's frame, too; any other frames itself.
        if (back != WindowBackground)
            palette.setColor(QPalette::Window, field);
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
            palette.setColor(QPalette::Active, role, text);
            palette.setColor(QPalette::Inactive, role, text);
        }
    }
    return at->second;
}

bool isSeenAs(const QWidget& widget, const QPalette& colours)
{
    if (widget.testAttribute(Qt::WA_SetPalette))
        return false;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        const auto in = static_cast<QPalette::ColorGroup>(group);
        if (in == QPalette::Disabled && widget.isEnabled())
            continue;
        for (int number = 0; number < QPalette::NColorRoles; ++number) {
            const auto role = static_cast<QPalette::ColorRole>(number);
            if (colours.isBrushSet(in, role) && colours.brush(in, role) != widget.palette().brush(in, role))
                return false;
        }
    }
    return true;
}

QColor frameSource(const QColor& text, const QColor& background)
{
    // Styles frame a mark with a darker shade of the window, which on a dark, a grey or a yellow field is none.
    constexpr int kStyleDarkens = 140;
    const auto half = [](float one, float other) { return (one + other) / 2; };
    const QColor frame =
        QColor::fromRgbF(half(text.redF(), background.redF()), half(text.greenF(), background.greenF()),
                         half(text.blueF(), background.blueF()));
    return frame.lighter(kStyleDarkens);
}

void holdAgainstStyleSheet(QWidget& widget, Colour back, Colour fore)
{
    const auto isState = [](Colour colour) { return (colour & kSystemColourBit) == 0; };
    QString sheet;
    if (widget.style()->inherits("QStyleSheetStyle")) {
        const QColor background = isState(back) ? toQColor(back) : widget.palette().color(widget.backgroundRole());
        if (isState(back))
            sheet += "background-color: " + background.name() + ';';
        if (isState(back) || isState(fore))
            sheet += "color: " + readableOn(fore, background).name() + ';';
    }
    if (widget.styleSheet() != sheet)
        widget.setStyleSheet(sheet);
}

} // namespace zor::platform::qt
