// The plot outside the window, and its colors.

#include <zor/monitor/language/words.h>
#include <zor/monitor/trend/plot.h>

#include <QDateTime>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

constexpr int kSpace = 8;

/// Told apart by people who do not see red or green, too.
constexpr std::array<QRgb, 8> kOnLight{0xFF0072B2, 0xFFD55E00, 0xFF008A64, 0xFFA04090,
                                       0xFFB07800, 0xFF3A8FC4, 0xFF7A4A20, 0xFF606060};
constexpr std::array<QRgb, 8> kOnDark{0xFF56B4E9, 0xFFFF9050, 0xFF3FD0A0, 0xFFE08FC8,
                                      0xFFF0D040, 0xFF9FB4FF, 0xFFD8A878, 0xFFD8D8D8};

bool isDark(const QPalette& palette)
{
    constexpr int kMiddle = 128;
    return palette.color(QPalette::Base).lightness() < kMiddle;
}

QPalette paper()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

void drawLegend(QPainter& painter, const QRect& place, const Trend& trend, const Curve& curve,
                const std::string& language)
{
    constexpr int kMark = 24;
    const QString unit = Words::unit(trend.unitOf(curve));
    const QString name = QString::fromStdString(trend.parameterOf(curve).captionIn(language));
    painter.fillRect(QRect(place.left() + kSpace, place.center().y() - 1, kMark, 3),
                     curveColor(curve.color, paper()));
    painter.setPen(Qt::black);
    const QRect text = place.adjusted(kMark + 2 * kSpace, 0, -kSpace, 0);
    painter.drawText(text, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(name + (unit.isEmpty() ? QString() : " [" + unit + ']'),
                                                      Qt::ElideRight, text.width()));
}

} // namespace

QColor curveColor(std::size_t number, const QPalette& palette)
{
    const bool dark = isDark(palette);
    const auto& own = dark ? kOnDark : kOnLight;
    if (number < own.size())
        return QColor::fromRgb(own[number]);
    // As far from those before it as can be.
    constexpr std::size_t kGoldenAngle = 137;
    constexpr int kColorful = 170;
    return QColor::fromHsl(static_cast<int>(number * kGoldenAngle % 360), kColorful, dark ? 170 : 95);
}

QImage plotPicture(const Trend& trend, const PlotView& view, QSize size, double ratio, const std::string& language)
{
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    const int line = painter.fontMetrics().height() + 2;
    const auto shown = std::ranges::count_if(trend.curves(), &Curve::shown);
    const auto time = [](std::int64_t at) {
        return QLocale().toString(QDateTime::fromMSecsSinceEpoch(at), QLocale::ShortFormat);
    };
    painter.drawText(QRect(0, 0, size.width(), line), Qt::AlignHCenter,
                     time(view.from) + " \u2013 " + time(view.to));
    constexpr int kFew = 4;
    const int columns = shown > kFew ? 3 : 1;
    const int legend = (static_cast<int>(shown) + columns - 1) / columns * line + kSpace;
    drawPlot(painter, QRect(0, line, size.width(), size.height() - line - legend), trend, view, paper());
    const QPoint corner(0, size.height() - legend + kSpace / 2);
    int number = 0;
    for (const Curve& curve : trend.curves()) {
        if (!curve.shown)
            continue;
        const QRect place(corner + QPoint(number % columns * size.width() / columns, number / columns * line),
                          QSize(size.width() / columns, line));
        drawLegend(painter, place, trend, curve, language);
        ++number;
    }
    return image;
}

} // namespace zor::monitor
