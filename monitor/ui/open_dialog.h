#pragma once

/// Where the operator says which device to open.

#include <zor/monitor/ui/memory.h>

#include <QCoreApplication>
#include <QDialog>

class QFormLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace zor::monitor {

/// A simulated device or one at an address, its parameter file and form, the devices and sites opened before, and
/// looking for others. Also what the program begins with when nobody has told it what to show. Opens nothing
/// itself.
class OpenDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(OpenDialog)
public:
    /// With what the memory knows was opened before.
    explicit OpenDialog(const Memory& memory, QWidget* parent = nullptr);

    /// The site file that was chosen, in place of a device; empty for none.
    [[nodiscard]] QString site() const { return m_site; }
    /// What the fields say.
    [[nodiscard]] DeviceEntry entry() const;
    void setEntry(const DeviceEntry& entry);

private:
    void connectFields(QPushButton* look);
    void addRecent(const QList<DeviceEntry>& devices, const QStringList& sites);
    void setSite(const QString& file);
    void leaveSite();
    void browseSite();
    [[nodiscard]] QLineEdit* addFile(QFormLayout& form, const QString& caption, const QString& none,
                                     const QString& filter);
    void scan();
    void checkAddress();

    DeviceEntry m_entry; ///< as it was given
    QString m_site;
    QRadioButton* m_simulated;
    QRadioButton* m_real;
    QLineEdit* m_address;
    QLineEdit* m_parameters;
    QLineEdit* m_form;
    QListWidget* m_recent = nullptr;
    QWidget* m_open = nullptr;
};

/// A device in a line, for a menu or a list.
[[nodiscard]] QString summaryOf(const DeviceEntry& entry);

} // namespace zor::monitor
