#pragma once

/// The monitor's window.

#include <zor/monitor/device/simulator.h>
#include <zor/monitor/session/session.h>
#include <zor/monitor/ui/form.h>
#include <zor/monitor/ui/languages.h>

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>

#include <array>

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

    void setLanguage(const QString& code);
    void setUnits(UnitSystem system);

    /// Takes the entry under way over and opens the list of changes for review.
    void review();
    void undoAll();
    /// The review that is open; nullptr for none.
    [[nodiscard]] QDialog* openReview() const { return m_review; }
    /// Closes without a question, edits or not.
    void closeUnasked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void buildUnitMenu();
    void buildLanguageMenu();
    void commitEntry();
    void showRound(bool answered);
    void showTraffic();
    void showResults(const std::vector<Written>& results);
    void say(const QString& text);
    [[nodiscard]] QString captionOf(const Parameter& parameter) const;

    std::unique_ptr<Form> m_form; ///< outlives the session, which holds on to its controls
    std::unique_ptr<Session> m_session;
    Languages& m_languages;
    Simulator* m_device;
    QToolBar* m_bar;
    QLabel* m_state;
    QLabel* m_traffic;
    QPointer<QDialog> m_review;
    QElapsedTimer m_clock;
    /// Reads and writes counted so far, and how many came in the last second.
    std::array<std::uint64_t, 2> m_counted{};
    UnitSystem m_units = UnitSystem::Form;
    bool m_answered = false;
    bool m_unasked = false;
};

} // namespace zor::monitor
