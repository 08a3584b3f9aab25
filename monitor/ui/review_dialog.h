#pragma once

/// What is about to be written, before it is written.

#include <zor/monitor/session/session.h>

#include <QCoreApplication>
#include <QDialog>

#include <set>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace zor::monitor {

/// Two tables of changes: those that will be written, and below them those that cannot be. Each row has the
/// parameter's caption and tag, the old and the new value with their unit, and a remark. Accepted by "Write".
class ReviewDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(ReviewDialog)
public:
    /// `file` must outlive the dialog; captions are in `language`.
    ReviewDialog(std::vector<Change> changes, const ParameterFile& file, std::string language, QWidget* parent);

    [[nodiscard]] const std::vector<Change>& changes() const { return m_changes; }
    /// Shows the changes as they are by now. Where the device does not hold any more what was shown as the old
    /// value, the row is marked, and nothing is written before the operator has said that he has seen it.
    void follow(std::vector<Change> changes);

private:
    struct Part {
        QLabel* heading;
        QTableWidget* table;
        bool writable;
    };

    void show(std::vector<Change> changes);
    void allowWriting();
    [[nodiscard]] bool isNews(const Change* last, const Change& change) const;
    [[nodiscard]] Part addPart(const QString& heading, bool writable);
    void fill(const Part& part);
    [[nodiscard]] QStringList textsOf(const Change& change) const;

    std::vector<Change> m_changes;
    const ParameterFile& m_file;
    std::string m_language;
    std::vector<Part> m_parts;
    std::set<std::size_t> m_news; ///< parameters
    QCheckBox* m_seen;
    QPushButton* m_write;
};

} // namespace zor::monitor
