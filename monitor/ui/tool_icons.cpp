#include <zor/monitor/ui/tool_icons.h>

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

struct IconRow {
    std::string_view name;
    const char* path; ///< of lines, on 16 by 16
};

constexpr std::array kIcons{
    IconRow{"open", "M2 13V3.5h4l1.5 2H13V7M2 13l2-6h11l-2 6z"},
    IconRow{"save", "M8 2v8M4.8 7L8 10.2 11.2 7M2.5 10.5v3h11v-3"},
    IconRow{"compare", "M2.5 2.5h4.5v11H2.5zM9 2.5h4.5v11H9zM4 5.5h1.5M4 8h1.5M10.5 8H12M10.5 10.5H12"},
    IconRow{"write", "M3 13l.7-3.2L10.6 3l2.4 2.4-6.8 6.9zM9 4.6L11.4 7M9 13.5h4.5"},
    IconRow{"undo", "M6 3L2.8 6.2 6 9.4M3 6.2h6.2a3.6 3.6 0 0 1 0 7.2H5.5"},
};

QPixmap drawn(const char* path, const QColor& color, int size, double pixelRatio)
{
    const QString svg = QString(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><path d="%1" )"
                                R"(fill="none" stroke="%2" stroke-width="1.3" stroke-linejoin="round" )"
                                R"(stroke-linecap="round"/></svg>)")
                            .arg(QString(path), color.name());
    QSvgRenderer renderer(svg.toUtf8());
    QPixmap pixmap((QSizeF(size, size) * pixelRatio).toSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

} // namespace

QIcon toolIcon(std::string_view name, const QPalette& palette, double pixelRatio)
{
    constexpr std::array kSizes{16, 24, 32};
    QIcon icon;
    const auto* const row = std::ranges::find(kIcons, name, &IconRow::name);
    if (row == kIcons.end())
        return icon;
    for (const int size : kSizes) {
        icon.addPixmap(drawn(row->path, palette.color(QPalette::Active, QPalette::WindowText), size, pixelRatio));
        icon.addPixmap(drawn(row->path, palette.color(QPalette::Disabled, QPalette::WindowText), size, pixelRatio),
                       QIcon::Disabled);
    }
    return icon;
}

} // namespace zor::monitor
