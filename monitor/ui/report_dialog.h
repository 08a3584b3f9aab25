#pragma once

/// What a report is to hold, and where it goes.

#include <QCoreApplication>
#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace zor::monitor {

/// Accepted by "Save...".
class ReportDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(ReportDialog)
public:
    /// `curves`: whether there is a trend of which a picture could be taken.
    ReportDialog(bool curves, QWidget* parent);

    /// The settings file with which the device is compared; empty for none.
    [[nodiscard]] QString compared() const;
    [[nodiscard]] bool hasPicture() const;

private:
    QLineEdit* m_file;
    QCheckBox* m_picture;
};

} // namespace zor::monitor
