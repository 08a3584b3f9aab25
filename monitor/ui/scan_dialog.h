#pragma once

/// Looks for devices at the addresses that the operator types.

#include <zor/monitor/scan/scanner.h>
#include <zor/monitor/ui/device_panel.h>

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QVBoxLayout;

namespace zor::monitor {

/// A line of text for each address, a table of what answers, progress; "Connect" takes the chosen device. Asks
/// nothing before "Scan", and nothing that is not typed.
class ScanDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(ScanDialog)
public:
    /// The parameter file must outlive the dialog.
    ScanDialog(const ParameterFile& file, QWidget* parent);

    /// For a panel, whose device is then the one that the operator chooses. Deletes itself when it is closed.
    static ScanDialog& openFor(DevicePanel& panel);

    [[nodiscard]] QString addresses() const;
    void setAddresses(const QString& text);
    /// Starts, or cancels what runs.
    void scan();
    [[nodiscard]] bool isRunning() const { return m_scanner != nullptr && m_scanner->isRunning(); }

    /// The operator wants to be connected to a device that answers.
    std::function<void(const QString& address)> onConnect;

private:
    void build();
    void addAddresses(QVBoxLayout& column);
    void addTable(QVBoxLayout& column);
    void addRow(const QStringList& cells, bool answers);
    void showRunning();
    void end(const QString& text);
    void choose();

    const ParameterFile& m_file;
    std::unique_ptr<Scanner> m_scanner;
    QPointer<DevicePanel> m_panel;
    QPlainTextEdit* m_addresses = nullptr;
    QComboBox* m_examples = nullptr;
    QSpinBox* m_timeout = nullptr;
    QTableWidget* m_table = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_state = nullptr;
    QPushButton* m_scan = nullptr;
    QPushButton* m_connect = nullptr;
};

} // namespace zor::monitor
