#pragma once

/// A host's work without a window: reads the device into the bound controls, keeps the operator's edits, and
/// writes them when told to.

#include <zor/monitor/link/device_address.h>
#include <zor/monitor/session/changes.h>
#include <zor/monitor/session/log.h>
#include <zor/monitor/session/poller.h>
#include <zor/monitor/session/unit_system.h>
#include <zor/monitor/session/writer.h>

#include <QDateTime>
#include <QElapsedTimer>

#include <functional>
#include <map>
#include <memory>
#include <set>

namespace zor::monitor {

/// A change that has been dealt with.
struct Written {
    Change change;
    WriteResult result;
};

/// What became of a write when it was carried out or tried, or when it was settled later.
struct WriteRecord {
    QDateTime time; ///< UTC
    std::size_t parameter;
    Registers before;
    Registers target;
    std::uint32_t mask;       ///< of an edit of bits
    std::string_view outcome; ///< as the record names it
    std::uint8_t exception;   ///< with which the device refused it; 0 for none
    std::string reason;       ///< in English
};

class Session : public QObject {
public:
    /// `log` may be nullptr; else it must outlive the session.
    Session(std::unique_ptr<Link> link, ParameterFile file, Log* log = nullptr);

    /// Takes a control under the session's care: by its DeviceTag it finds its parameter. The control must
    /// outlive the session.
    void bind(core::Control& control);
    /// @name Controls that a form makes when they are first needed; without it, all have been bound
    /// @{
    /// The class of the control that a parameter will have; nullptr when it has it by now, or never will.
    std::function<const core::ClassInfo*(std::size_t parameter)> foreseen;
    /// Makes the controls of a parameter and binds them.
    std::function<void(std::size_t parameter)> make;
    /// Whether a parameter has a control, made or foreseen.
    [[nodiscard]] bool hasControl(std::size_t parameter) const
    {
        return !m_shownBy[parameter].empty() || classToCome(parameter) != nullptr;
    }
    /// Binds the controls of a parameter that have been foreseen; the first of all, nullptr when there is none.
    Binding* reach(std::size_t parameter);
    /// @}
    /// A timeout of 0 is the poll period, whatever that is set to.
    void start(int periodMilliseconds, int timeoutMilliseconds = 0);
    void setPeriod(int milliseconds);
    /// Reads every parameter of the file, seen or not: for a record or a report that is to be whole.
    void readEverything(bool all = true) { m_readsAll = all; }
    [[nodiscard]] bool readsEverything() const { return m_readsAll; }
    /// Reads these parameters whether they are in sight or not.
    void follow(std::vector<std::size_t> parameters) { m_followed = std::move(parameters); }
    /// Reads one parameter when nobody wants any, so that it is known whether the device answers.
    void keepAlive(bool on) { m_keepsAlive = on; }

    /// Goes on with the device at another address. Edits stay, and carry the warning sign.
    void connectTo(Endpoint endpoint);

    /// Whether the operator can see a control; without it, he sees all.
    std::function<bool(core::Control&)> isVisible;
    /// What each read of a parameter has come to.
    std::function<void(std::size_t parameter, const Reading&)> onReading;
    /// After each round; whether the device answered.
    std::function<void(bool answered)> onRound;
    /// A write has begun, or one of the changes has been dealt with.
    std::function<void()> onWriting;
    /// When a list of changes has been dealt with.
    std::function<void(const std::vector<Written>&)> onWritten;
    /// An edit may have begun, changed or ended. Often: whoever shows it waits until all has been heard.
    std::function<void()> onEdit;

    /// @name Editing
    /// @{
    [[nodiscard]] bool hasEdits() const;
    [[nodiscard]] std::vector<Change> pending() const;
    /// Writes those of the changes that have no problem, and of which the device still is and holds what it was
    /// and held in the list; false when a list is still being written.
    bool write(const std::vector<Change>& changes);
    [[nodiscard]] bool isWriting() const { return m_isWriting; }
    /// Of the list that is being written: how many changes have been dealt with, of how many.
    [[nodiscard]] std::pair<std::size_t, std::size_t> progress() const { return {m_results.size(), m_toWrite}; }
    /// The parameters that the operator can edit: those with a control for it, made or foreseen, that the device
    /// has.
    [[nodiscard]] std::set<std::size_t> editable() const;
    /// Makes a value an edit in the parameter's controls, to be reviewed as any other. False when none took it.
    bool propose(std::size_t parameter, const Registers& registers);
    /// Every edit goes back to what the device holds.
    void undoAll();
    /// @}

    /// @name How values are shown
    /// @{
    /// "en", "de" or "fr": texts and entries. Translators and separators must be in force already.
    void setLanguage(const std::string& language);
    void setUnits(UnitSystem system);
    /// All parameters of a kind in one unit. False when not every value can be expressed in it.
    bool setUnit(UNIT_TYPE type, MEAS_TYPE unit);
    /// The kinds of unit that controls, made or foreseen, let the operator choose.
    [[nodiscard]] std::set<UNIT_TYPE> unitTypes() const;
    /// The unit in which the operator sees a parameter, or would.
    [[nodiscard]] MEAS_TYPE shownUnit(std::size_t parameter) const;
    /// @}

    /// @name For people
    /// @{
    [[nodiscard]] const ParameterFile& file() const { return m_file; }
    [[nodiscard]] Poller& poller() { return m_poller; }
    [[nodiscard]] Link& link() { return *m_link; }
    [[nodiscard]] const Link& link() const { return *m_link; }
    [[nodiscard]] std::span<const std::unique_ptr<Binding>> bindings() const { return m_bindings; }
    [[nodiscard]] std::span<Binding* const> bindings(std::size_t parameter) const { return m_shownBy[parameter]; }
    [[nodiscard]] std::optional<std::size_t> indexOf(std::string_view tag) const { return m_indexOf(tag); }
    /// Whether the device answered in the last round.
    [[nodiscard]] bool isHealthy() const { return m_healthy; }
    [[nodiscard]] int failedRounds() const { return m_failedRounds; }
    /// Whether the device has had a value for at least one parameter.
    [[nodiscard]] bool hasValues() const;
    /// Why the record is not whole; empty when it is, or when there is none.
    [[nodiscard]] QString recordError() const { return m_log != nullptr ? m_log->error() : QString(); }
    /// Device type and firmware version, once they are known.
    [[nodiscard]] const std::string& deviceType() const { return m_type; }
    [[nodiscard]] const std::string& deviceVersion() const { return m_version; }
    /// Counts the devices: another number, another device.
    [[nodiscard]] unsigned device() const { return m_device; }
    /// Whether it has been found out what the device is.
    [[nodiscard]] bool isDeviceKnown() const { return m_isKnown; }
    /// What a parameter held when it was last read; empty when it never was.
    [[nodiscard]] const Registers& held(std::size_t parameter) const { return m_states[parameter].last; }
    [[nodiscard]] ReadOutcome outcome(std::size_t parameter) const { return m_states[parameter].outcome; }
    /// Milliseconds on the session's clock: now, and when the device last answered for a parameter, -1 for never.
    [[nodiscard]] qint64 now() const { return m_clock.elapsed(); }
    [[nodiscard]] qint64 readAt(std::size_t parameter) const { return m_states[parameter].readAt; }
    /// All that has become of writes, the oldest first.
    [[nodiscard]] const std::vector<WriteRecord>& writes() const { return m_writes; }
    /// A line for each parameter: tag, value, unit, state.
    [[nodiscard]] std::string report() const;
    /// @}

private:
    /// What is known of a parameter.
    struct State {
        Registers last{};    ///< as read
        Registers written{}; ///< by us, as read back; empty when somebody has changed it since
        ReadOutcome outcome = ReadOutcome::Late;
        ReadOutcome recorded = ReadOutcome::Late; ///< the last outcome in the record; never late again
        std::optional<Change> unconfirmed{};
        bool wasDoubted = false; ///< the unconfirmed change was found not to be carried out
        qint64 readAt = -1;      ///< on the session's clock
        bool wasModified = false;
    };
    struct View {
        MEAS_TYPE formUnit;
        bool visible = false;
    };

    [[nodiscard]] std::vector<std::size_t> wanted();
    void catchUp(Binding& binding, std::size_t parameter);
    [[nodiscard]] const core::ClassInfo* classToCome(std::size_t parameter) const;
    [[nodiscard]] MEAS_TYPE unitInForce(const Parameter& parameter, MEAS_TYPE formUnit) const;
    bool showIn(Binding& binding, MEAS_TYPE unit);
    void hear(std::size_t parameter, const Reading& reading);
    void hearValue(std::size_t parameter, const Registers& registers);
    void update(Binding& binding, const Registers& registers, bool foreign, bool again);
    void hearRound(bool answered);
    void settle(std::size_t parameter, const Registers& registers);
    void hearIdentity(const std::string& type, const std::string& version);
    void writeIdentified(std::vector<Change> changes, const Reply& identified);
    void endWriting();
    void hearResult(const Change& change, const WriteResult& result);
    void endEdits(const Change& change, const Registers& registers);
    void chosen(Binding& binding, const Variant& value);
    void logRead(std::size_t parameter, const Reading& reading);
    void logWrite(const Change& change, const WriteResult& result, std::string_view outcome);
    [[nodiscard]] bool isInEdit(const Binding& binding) const;
    template <class Action>
    void forEach(std::size_t parameter, Action&& action) const
    {
        for (Binding* binding : m_shownBy[parameter])
            action(*binding);
    }

    std::unique_ptr<Link> m_link;
    ParameterFile m_file;
    TagIndex m_indexOf{m_file};
    Log* m_log;
    Poller m_poller;
    Writer m_writer;
    std::vector<State> m_states;
    std::vector<std::unique_ptr<Binding>> m_bindings;
    std::vector<std::vector<Binding*>> m_shownBy; ///< those of each parameter
    std::vector<View> m_views;                    ///< one for each binding
    std::vector<Written> m_results;
    std::vector<WriteRecord> m_writes;
    std::vector<std::size_t> m_followed;
    QElapsedTimer m_clock;
    std::string m_language = "en";
    UnitSystem m_units = UnitSystem::Form;
    std::map<UNIT_TYPE, MEAS_TYPE> m_unitOf; ///< chosen since
    std::string m_type;
    std::string m_version;
    int m_timeout = 0;
    std::size_t m_toWrite = 0;
    unsigned m_device = 0; ///< counts the devices
    int m_failedRounds = 0;
    bool m_readsAll = false;
    bool m_keepsAlive = false;
    bool m_healthy = false;
    bool m_isWriting = false;
    bool m_isKnown = false; ///< what the device is
};

} // namespace zor::monitor
