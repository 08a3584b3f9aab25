#pragma once

/// A line of text that asks for no room: what does not fit is cut with an ellipsis and stands in the tooltip.

#include <QLabel>

namespace zor::monitor {

class ElidedLabel final : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    /// `more` stands below it in the tooltip.
    void show(const QString& text, const QString& more = {});

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zor::monitor
