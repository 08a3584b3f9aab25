#pragma once

/// Which parameters are to be plotted.

#include <zor/monitor/trend/trend.h>

#include <QCoreApplication>
#include <QDialog>

#include <set>

class QLineEdit;
class QListWidget;

namespace zor::monitor {

/// A tick for each parameter that can be plotted, filtered by what is typed.
class TrendChooser final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(TrendChooser)
public:
    /// Captions are in `language`.
    TrendChooser(const Trend& trend, const std::string& language, QWidget* parent);

    /// The parameters with a tick.
    [[nodiscard]] std::set<std::size_t> ticked() const;

private:
    void filter(const QString& text);

    QLineEdit* m_text;
    QListWidget* m_list;
};

} // namespace zor::monitor
