#pragma once

/// The dock "Trend": the plot, what can be done with it, and its curves as a list.

#include <zor/monitor/language/languages.h>
#include <zor/monitor/trend/plot_widget.h>

#include <QCoreApplication>
#include <QDockWidget>

class QAction;
class QLabel;
class QMenu;
class QTableWidget;
class QToolBar;

namespace zor::monitor {

/// Each curve has a line: its color, with a tick for whether it is drawn, its caption, its value where the cursor
/// is, else its present one, and the unit. The line that is selected is drawn broader.
class TrendDock final : public QDockWidget {
    Q_DECLARE_TR_FUNCTIONS(TrendDock)
public:
    /// `languages` must outlive it.
    TrendDock(const Languages& languages, QWidget* parent);

    /// The curves to be shown, which must outlive the dock or be replaced; nullptr for none.
    void follow(Trend* trend);
    /// Adds a curve and shows the dock.
    void add(std::size_t parameter);
    /// An entry for the menu of a control that shows a number.
    void addTo(QMenu& menu, const Binding& binding);
    /// Asks which parameters are to be plotted.
    void choose();
    /// Asks for a file and saves as its ending says.
    void save();
    /// Saves without a question; the reason why it could not, or nothing.
    [[nodiscard]] QString saveTo(const QString& file) const;

    [[nodiscard]] PlotWidget& plot() { return *m_plot; }
    [[nodiscard]] const PlotWidget& plot() const { return *m_plot; }

    /// Something to be said in passing.
    std::function<void(const QString& text)> say;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void appear();
    [[nodiscard]] QWidget* makeBody();
    void buildActions();
    void translate();
    void fill();
    void showValues();
    void removeSelected();
    void select();
    [[nodiscard]] std::optional<std::size_t> selected() const;
    [[nodiscard]] std::string language() const { return m_languages.current().toStdString(); }
    [[nodiscard]] QString head() const;

    const Languages& m_languages;
    Trend* m_trend = nullptr;
    QToolBar* m_bar;
    PlotWidget* m_plot;
    QLabel* m_head;
    QTableWidget* m_table;
    std::vector<QAction*> m_actions; ///< in the order of the table in trend_dock.cpp
    QTimer m_timer;
    int m_ticks = 0;
    bool m_filling = false;
};

} // namespace zor::monitor
