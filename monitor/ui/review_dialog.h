#pragma once

/// What is about to be written, before it is written, and what came of it.

#include <zor/monitor/session/session.h>

#include <QCoreApplication>
#include <QDialog>

namespace zor::monitor {

/// Words for people, in the language of the program.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
public:
    [[nodiscard]] static QString problem(Problem problem);
    [[nodiscard]] static QString outcome(const WriteResult& result);
    [[nodiscard]] static QString unit(MEAS_TYPE unit);
};

/// A table of the changes: parameter, old value, new value, unit, remark. Accepted by "Write".
class ReviewDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(ReviewDialog)
public:
    ReviewDialog(std::vector<Change> changes, QWidget* parent);

    [[nodiscard]] const std::vector<Change>& changes() const { return m_changes; }

private:
    std::vector<Change> m_changes;
};

} // namespace zor::monitor
