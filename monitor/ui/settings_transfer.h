#pragma once

/// Settings files from the window: reading the device, the table, and what becomes of it.

#include <zor/monitor/settings/comparison.h>
#include <zor/monitor/settings/survey.h>
#include <zor/monitor/ui/settings_dialog.h>

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class QProgressDialog;

namespace zor::monitor {

class SettingsTransfer {
    Q_DECLARE_TR_FUNCTIONS(SettingsTransfer)
public:
    /// Both must outlive it.
    SettingsTransfer(QWidget& window, Session& session);
    ~SettingsTransfer();
    SettingsTransfer(const SettingsTransfer&) = delete;
    SettingsTransfer& operator=(const SettingsTransfer&) = delete;

    /// Something to be said in passing.
    std::function<void(const QString& text)> say;
    /// What was ticked for loading has become edits: they can be reviewed.
    std::function<void()> onProposed;

    /// @name Each asks for the file, or files, when none is named
    /// Reads the device first, with a progress that can be cancelled. Writes nothing to the device.
    /// @{
    void save(QString file = {});
    void compare(const QString& file = {});
    void load(const QString& file = {});
    void compareFiles(const QString& file = {}, const QString& other = {});
    /// @}
    /// Reads this device and another, and shows what differs; `names` of both.
    void compareWith(SettingsTransfer& other, const std::array<QString, 2>& names);

    /// @name A single value out of the settings file that was last opened here, as an edit
    /// @{
    /// What a menu says of it: the file and its value; empty when there is no file, or it does not have one.
    [[nodiscard]] QString fileValue(std::size_t parameter) const;
    /// Makes it an edit, to be reviewed as any other; says why where it cannot. Another file, where one is named
    /// or asked for, takes the place of the last.
    void setToFile(std::size_t parameter);
    void setToOtherFile(std::size_t parameter, const QString& file = {});
    /// @}

    /// Reads these parameters with the same progress, then goes on; says so when the device did not answer.
    void read(std::vector<std::size_t> parameters, std::function<void()> then);

    void setLanguage(const std::string& language) { m_language = language; }
    /// The table that is open; nullptr for none.
    [[nodiscard]] SettingsDialog* openDialog() const { return m_dialog; }
    /// To be told of each round.
    void hearRound(bool answered);

private:
    void show(const SettingsFile& file, const Held& held, const std::array<QString, 3>& titles);
    void end();
    void keep(const QString& file);
    void show(const SettingsFile& file, bool loads);
    [[nodiscard]] std::optional<Compared> rowOf(std::size_t parameter) const;
    void propose(const Comparison& comparison, const std::set<std::size_t>& ticked);
    [[nodiscard]] std::optional<SettingsFile> open(const QString& title, const QString& file);
    void fail(const QString& text);

    QWidget& m_window;
    Session& m_session;
    std::string m_language = "en";
    std::optional<SettingsFile> m_lastFile;
    std::unique_ptr<Survey> m_survey;
    std::function<void()> m_then;
    QPointer<QProgressDialog> m_progress;
    QPointer<SettingsDialog> m_dialog;
};

} // namespace zor::monitor
