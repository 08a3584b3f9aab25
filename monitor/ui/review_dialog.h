#pragma once

/// What is about to be written, before it is written.

#include <zor/monitor/session/session.h>

#include <QCoreApplication>
#include <QDialog>

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
    /// Shows other changes instead.
    void show(std::vector<Change> changes);

private:
    struct Part {
        QLabel* heading;
        QTableWidget* table;
        bool writable;
    };

    [[nodiscard]] Part addPart(const QString& heading, bool writable);
    void fill(const Part& part);
    [[nodiscard]] QStringList textsOf(const Change& change) const;

    std::vector<Change> m_changes;
    const ParameterFile& m_file;
    std::string m_language;
    std::vector<Part> m_parts;
    QPushButton* m_write;
};

} // namespace zor::monitor
