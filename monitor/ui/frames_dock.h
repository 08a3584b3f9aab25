#pragma once

/// What goes over the line, and why it does not answer.

#include <zor/monitor/link/link.h>
#include <zor/monitor/ui/frames_model.h>

#include <QDockWidget>
#include <QPointer>
#include <QTimer>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QTreeWidget;

namespace zor::monitor {

class Window;

/// A table of the last requests and replies, the fields of the one that is chosen, and a sentence on the last
/// failure. While it is closed it does nothing.
class FramesDock final : public QDockWidget {
    Q_DECLARE_TR_FUNCTIONS(FramesDock)
public:
    explicit FramesDock(QWidget* parent);
    /// Gives a window its dock; it shows the frames of the device in front.
    static FramesDock& addTo(Window& window);

    /// Shows the frames of a link from now on; nullptr ends it.
    void watch(Link* link);
    [[nodiscard]] bool isPaused() const;
    /// All that is shown, as lines of text, into a file; asks for the file when none is named.
    void save(QString file = {});
    /// Something to be said in passing.
    std::function<void(const QString& text)> say;

protected:
    void changeEvent(QEvent* event) override;

private:
    void build();
    [[nodiscard]] QWidget* makeTables();
    void retranslate();
    void follow();
    void refilter();
    void showFields();
    void showFailure();
    void clear();
    void copy();
    [[nodiscard]] QString textOf(bool selectedOnly) const;

    QPointer<Link> m_link;
    FramesModel m_model;
    QTimer m_timer;
    bool m_atEnd = true; ///< the newest frame is in sight
    QLabel* m_failure = nullptr;
    QLineEdit* m_text = nullptr;
    QComboBox* m_which = nullptr;
    QPushButton* m_pause = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_save = nullptr;
    QTableView* m_table = nullptr;
    QTreeWidget* m_fields = nullptr;
};

} // namespace zor::monitor
