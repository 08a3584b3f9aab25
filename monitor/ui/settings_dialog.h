#pragma once

/// What differs between a settings file and the device, or another file, as a table.

#include <zor/monitor/settings/comparison.h>

#include <QCoreApplication>
#include <QDialog>

#include <set>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

namespace zor::monitor {

/// A row for each tag: caption, tag, value in the file, value in the device, remark; sorted by a click on a
/// heading, filtered by what is typed. For loading, each row that can be written has a tick, and "Load" accepts;
/// else there is nothing to accept. Writes nothing.
class SettingsDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(SettingsDialog)
public:
    /// How the dialog is used; `one` and `other` head the columns of what is compared.
    struct Use {
        QString title;
        QString one;
        QString other;
        bool loads = false;
        std::set<std::size_t> loadable{}; ///< parameters that may have a tick
    };

    /// `parameters` must outlive the dialog; captions are in `language`.
    SettingsDialog(Comparison comparison, const ParameterFile& parameters, Use use, std::string language,
                   QWidget* parent);

    [[nodiscard]] const Comparison& comparison() const { return m_comparison; }
    /// The parameters with a tick.
    [[nodiscard]] std::set<std::size_t> ticked() const;

private:
    void addHead(QVBoxLayout& column);
    void addTable();
    void addButtons(QVBoxLayout& column);
    void fill();
    [[nodiscard]] QStringList textsOf(const Compared& row) const;
    [[nodiscard]] bool isLoadable(const Compared& row) const;
    void filter();
    void sizeColumns();
    void tickAll(bool ticked);
    [[nodiscard]] bool isTicked(int row) const;
    void allowLoading();
    [[nodiscard]] QString countsText() const;

    Comparison m_comparison;
    const ParameterFile& m_parameters;
    const Use m_use;
    const std::string m_language;
    QTableWidget* m_table = nullptr;
    QLineEdit* m_text = nullptr;
    QComboBox* m_which = nullptr;
    QLabel* m_count = nullptr;
    QPushButton* m_load = nullptr;
};

} // namespace zor::monitor
