#pragma once

/// A device that is being monitored, with all that lives as long as its session: the record, and the simulated
/// device when there is no real one.

#include <zor/monitor/device/simulator.h>
#include <zor/monitor/session/frame_file.h>
#include <zor/monitor/session/session.h>

#include <memory>
#include <optional>

namespace zor::monitor {

/// The address of a device that the program simulates.
inline constexpr const char* kSimulated = "simulated";

/// In milliseconds: what an entry may have as its time from poll to poll, and at least for a whole reply.
inline constexpr int kShortestPeriod = 100;
inline constexpr int kLongestPeriod = 60000;
inline constexpr int kShortestTimeout = 10;

/// What it takes to monitor a device, as a command line or an operator says it.
struct DeviceEntry {
    QString name{};       ///< for people; empty: the title of the parameter file
    QString address{};    ///< as openLink() reads it; empty or kSimulated: a simulated device
    QString parameters{}; ///< parameter file; empty: the demonstration device's
    QString form{};       ///< file of Qt Designer; empty: a form is made from the parameter file
    QString record{};     ///< file of the record; empty: none
    QString frames{};     ///< file for every request and reply; empty: none
    int period = 500;     ///< milliseconds from poll to poll
    int timeout = 0;      ///< milliseconds for a whole reply; 0: the period

    [[nodiscard]] bool isSimulated() const { return address.isEmpty() || address == kSimulated; }
};

/// The parameter file of the entry. Raises FileError.
[[nodiscard]] ParameterFile loadParameters(const DeviceEntry& entry);

class Device {
public:
    /// Opens what the entry names; nothing is sent before start(). `file` is that of the entry. Raises
    /// AddressError, FileError for the record or the frames, or std::runtime_error when there can be no simulated
    /// device.
    Device(DeviceEntry entry, ParameterFile file);

    /// A record holds every parameter, in sight or not.
    void start();

    /// Goes on with the device at another address. Raises AddressError.
    void connectTo(const QString& address);

    /// Another time from poll to poll, which the entry has too from then on.
    void setPeriod(int milliseconds);

    [[nodiscard]] const DeviceEntry& entry() const { return m_entry; }
    [[nodiscard]] Session& session() { return m_session; }
    /// Why frames are missing from their file; empty when none is.
    [[nodiscard]] QString framesError() const { return m_frames ? m_frames->error() : QString(); }
    /// nullptr for a real device.
    [[nodiscard]] Simulator* simulator() { return m_simulator.get(); }

private:
    [[nodiscard]] QString addressFor(const ParameterFile& file);

    DeviceEntry m_entry;
    std::optional<Log> m_log;
    std::optional<FrameFile> m_frames;
    ParameterFile m_simulated;
    std::unique_ptr<Simulator> m_simulator;
    QString m_address; ///< the simulated device's own when there is no other
    Session m_session;
};

} // namespace zor::monitor
