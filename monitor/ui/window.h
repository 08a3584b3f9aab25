#pragma once

/// The monitor's window.

#include <zor/monitor/device/simulator.h>
#include <zor/monitor/session/session.h>
#include <zor/monitor/ui/form.h>
#include <zor/monitor/ui/languages.h>
#include <zor/monitor/ui/review_dialog.h>
#include <zor/monitor/ui/settings_transfer.h>
#include <zor/monitor/ui/status_line.h>

#include <QCoreApplication>
#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <QSettings>

namespace zor::monitor {

class Window final : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(Window)
public:
    /// Takes the session and the form over and binds the form's controls. `device`, when there is one, can be
    /// stopped and started from the menu; it and `languages` must outlive the window.
    Window(std::unique_ptr<Session> session, std::unique_ptr<Form> form, Languages& languages, Simulator* device);
    ~Window() override;

    [[nodiscard]] Session& session() { return *m_session; }
    [[nodiscard]] Form& form() { return *m_form; }
    [[nodiscard]] SettingsTransfer& transfer() { return *m_transfer; }

    void setLanguage(const QString& code);
    void setUnits(UnitSystem system);

    /// Takes the sizes that windows had when they were last closed, and leaves theirs there. The settings must
    /// outlive the window.
    void remember(QSettings& settings);

    /// Takes the entry under way over and opens the list of changes for review.
    void review();
    void undoAll();
    /// The review that is open; nullptr for none.
    [[nodiscard]] QDialog* openReview() const { return m_review; }
    /// Closes without a question, edits or not.
    void closeUnasked();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QSize usualSize() const;
    void buildMenus();
    void addSettingsActions(QMenu& menu);
    void addDeviceActions(QMenu& menu);
    void buildUnitMenu();
    void addUnits(QMenu& menu, UNIT_TYPE type);
    void buildLanguageMenu();
    void commitEntry();
    void keepFrozenReadable();
    void setUnit(UNIT_TYPE type, MEAS_TYPE unit);
    void showRound(bool answered);
    void showEdits();
    void showResults(const std::vector<Written>& results);
    [[nodiscard]] QString captionOf(const Parameter& parameter) const;
    void restore(QWidget& window, const QString& name);
    void keep(const QWidget& window, const QString& name);

    std::unique_ptr<Form> m_form; ///< outlives the session, which holds on to its controls
    std::unique_ptr<Session> m_session;
    Languages& m_languages;
    Simulator* m_device;
    QToolBar* m_bar;
    StatusLine m_status;
    std::unique_ptr<SettingsTransfer> m_transfer;
    QPointer<ReviewDialog> m_review;
    QTimer m_soon; ///< until the edits are shown
    QSettings* m_settings = nullptr;
    UnitSystem m_units = UnitSystem::Form;
    bool m_answered = false;
    bool m_unasked = false;
};

} // namespace zor::monitor
