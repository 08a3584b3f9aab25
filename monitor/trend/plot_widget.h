#pragma once

/// The plot in the window: follows the present, or stands still while the operator looks back.

#include <zor/monitor/trend/plot.h>

#include <QCoreApplication>
#include <QPointF>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace zor::monitor {

/// By mouse: the wheel zooms time about the pointer, with Ctrl the values; dragging moves time; a double click
/// goes back to fitting values; the pointer is the cursor. By keyboard: plus and minus, with Ctrl for values; 0
/// fits them; left and right move the cursor, with Shift time; Home shows all that is known; End goes back to the
/// present; blank pauses; Escape takes the cursor away.
class PlotWidget final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(PlotWidget)
public:
    explicit PlotWidget(QWidget* parent);

    /// The curves to be shown, which must outlive it; nullptr for none.
    void show(const Trend* trend);
    /// Has time pass: paints anew if something is to be seen of it, and no more often than leaves the form its
    /// time.
    void pass();
    /// Paints anew in any case.
    void refresh();

    [[nodiscard]] const PlotView& view() const { return m_view; }
    /// For a file: what is in sight, or would be, without the cursor and without a time before the first sample.
    [[nodiscard]] PlotView lastingView() const;
    [[nodiscard]] bool isPaused() const { return m_paused; }
    void pause(bool paused);
    /// Time by a factor, about the cursor or else the present; less than 1 shows less.
    void zoom(double factor);
    void zoomValues(double factor);
    void fitValues();
    void showAll();
    void emphasize(std::optional<std::size_t> parameter);
    /// The write that the cursor stands on, if it does.
    [[nodiscard]] const WriteRecord* writeAtCursor() const;

    /// What is seen has changed: the cursor, the pause, or the values.
    std::function<void()> onView;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override { return {520, 220}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, 120}; }

private:
    void zoomAbout(std::int64_t time, double factor);
    void zoomPane(const PlotLayout::Pane& pane, double share, double factor);
    void move(std::int64_t milliseconds);
    void moveCursor(int pixels);
    void setCursorAt(std::optional<std::int64_t> time);
    void changed();

    const Trend* m_trend = nullptr;
    PlotView m_view;
    PlotLayout m_layout;
    QPointF m_dragged;
    bool m_paused = false;
    bool m_cursorByKey = false; ///< stays when the pointer leaves
    std::int64_t m_painted = 0; ///< when it was last painted
    std::int64_t m_cost = 0;    ///< microseconds that it took
};

} // namespace zor::monitor
