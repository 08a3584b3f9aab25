#pragma once

/// Draws curves over time, for the window, a picture file and a report.

#include <zor/monitor/trend/axis.h>
#include <zor/monitor/trend/trend.h>

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QRect>

#include <map>
#include <optional>
#include <vector>

class QPainter;

namespace zor::monitor {

/// What of the curves is to be seen.
struct PlotView {
    std::int64_t from = 0; ///< milliseconds since 1970
    std::int64_t to = 1;
    std::map<MEAS_TYPE, Span> zoomed{};      ///< axes that do not fit themselves to their curves
    std::optional<std::int64_t> cursor{};    ///< a time to be marked
    std::optional<std::size_t> emphasized{}; ///< the parameter of a curve to be drawn broader, above the others
};

/// Where it has been drawn.
struct PlotLayout {
    struct Axis {
        MEAS_TYPE unit;
        Span span;
        bool isEmpty; ///< no curve has a value there
    };
    struct Pane {
        QRect area;
        std::vector<Axis> axes; ///< left, and right when there are two
    };
    QRect area; ///< of all panes, without what stands at the axes
    std::vector<Pane> panes;

    [[nodiscard]] std::int64_t timeAt(const PlotView& view, double x) const;
    [[nodiscard]] double xOf(const PlotView& view, std::int64_t time) const;
};

/// Curves with the same unit share an axis, two units share a pane, further units have panes of their own below.
/// Draws nothing for what was never read, nothing across a gap, and a mark at each write of the session.
PlotLayout drawPlot(QPainter& painter, const QRect& area, const Trend& trend, const PlotView& view,
                    const QPalette& palette);

/// The color of a curve, for a light or a dark ground.
[[nodiscard]] QColor curveColor(std::size_t number, const QPalette& palette);

/// The plot as a picture for a file or on paper: on white, with its time above and a legend below. `ratio` is that
/// of its pixels to those of the screen.
[[nodiscard]] QImage plotPicture(const Trend& trend, const PlotView& view, QSize size, double ratio,
                                 const std::string& language);

} // namespace zor::monitor
