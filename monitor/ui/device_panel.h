#pragma once

/// One device in the window: its session, its form, the edits on it, and what is open about them.

#include <zor/monitor/device/device.h>
#include <zor/monitor/trend/trend.h>
#include <zor/monitor/ui/form.h>
#include <zor/monitor/ui/memory.h>
#include <zor/monitor/ui/review_dialog.h>
#include <zor/monitor/ui/settings_transfer.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class QMenu;

namespace zor::monitor {

class DevicePanel final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(DevicePanel)
public:
    /// Takes both over and binds the form's controls.
    DevicePanel(std::unique_ptr<Device> device, std::unique_ptr<Form> form);
    ~DevicePanel() override;

    [[nodiscard]] Device& device() { return *m_device; }
    [[nodiscard]] const Device& device() const { return *m_device; }
    [[nodiscard]] Session& session() { return m_device->session(); }
    [[nodiscard]] const Session& session() const { return m_device->session(); }
    [[nodiscard]] Form& form() { return *m_form; }
    [[nodiscard]] SettingsTransfer& transfer() { return *m_transfer; }
    [[nodiscard]] Trend& trend() { return *m_trend; }
    /// As its entry calls it, else the title of the parameter file in the language in force, else its address.
    [[nodiscard]] QString name() const;
    /// Whether the device answered in the last round.
    [[nodiscard]] bool isAnswered() const { return m_answered; }

    /// @name For the window that holds it
    /// @{
    /// Something to be said in passing.
    std::function<void(const QString& text)> say;
    /// After each round, and after a change of language.
    std::function<void()> onRound;
    /// It has been connected to another address.
    std::function<void()> onAddress;
    /// Edits have begun, changed or ended; heard some time after, once for many.
    std::function<void()> onEdits;
    /// Translators and separators must be in force already.
    void setLanguage(const std::string& language);
    void setUnits(UnitSystem system);
    void setUnit(UNIT_TYPE type, MEAS_TYPE unit);
    void remember(const Memory& memory) { m_memory = memory; }
    /// @}

    /// Goes on with the device at another address. Raises AddressError.
    void connectTo(const QString& address);
    /// What can be done with one control: copying its value, setting it to that of a settings file.
    void addTo(QMenu& menu, const Binding& binding);
    /// Brings a parameter into sight, with the focus in its control.
    void reveal(std::size_t parameter);

    /// @name Editing
    /// @{
    /// Takes the entry under way over.
    void commitEntry();
    /// Takes the entry under way over and opens the list of changes for review.
    void review();
    void undoAll();
    /// Reads both devices and shows where their settings differ.
    void compareWith(DevicePanel& other);
    /// The review that is open; nullptr for none.
    [[nodiscard]] QDialog* openReview() const { return m_review; }
    /// @}

private:
    void listen();
    void showRound();
    void showEdits();
    void markTabs(QTabWidget& tabs);
    void showResults(const std::vector<Written>& results);
    [[nodiscard]] QString captionOf(const Parameter& parameter) const;

    std::unique_ptr<Form> m_form; ///< outlives the session, which holds on to its controls
    std::unique_ptr<Device> m_device;
    std::unique_ptr<SettingsTransfer> m_transfer;
    std::unique_ptr<Trend> m_trend;
    QPointer<ReviewDialog> m_review;
    Memory m_memory;
    QTimer m_soon; ///< until the edits are shown
    std::string m_language = "en";
    bool m_answered = false;
};

/// The panel of a device that has not been started yet. Raises what Device and the forms raise.
[[nodiscard]] std::unique_ptr<DevicePanel> openPanel(const DeviceEntry& entry, const core::ClassRegistry& classes);

} // namespace zor::monitor
