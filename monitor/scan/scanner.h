#pragma once

/// Looks for devices: asks each unit of each line once, and those that answer what they are.

#include <zor/monitor/scan/scan_lines.h>
#include <zor/monitor/session/poller.h>

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zor::monitor {

/// A device that answers.
struct ScanHit {
    QString address;       ///< as openLink() takes it
    std::string type{};    ///< as the parameter file says how to read it; may be empty
    std::string version{}; ///< the same
    std::map<std::uint8_t, std::string>
        texts{};          ///< the protocol's own identification: 0 maker, 1 product, 2 revision
    int milliseconds = 0; ///< of the first answer
};

/// Lines with different hosts or ports are asked side by side, those with the same one behind the other.
class Scanner : public QObject {
public:
    /// The parameter file says where devices have their identity; what it names first is asked when it does not.
    /// Must outlive the scanner.
    Scanner(std::vector<ScanLine> lines, const ParameterFile& file, int deadlineMilliseconds);
    ~Scanner() override;

    /// @name To be set before start()
    /// @{
    std::function<void(Link&)> onLink; ///< a line is opened
    std::function<void(const ScanHit&)> onHit;
    /// A line that cannot be reached at all; its other units are not asked.
    std::function<void(const QString& address, const Reply&)> onTrouble;
    std::function<void(int done, int total)> onProgress; ///< units
    std::function<void()> onDone;                        ///< not after cancel()
    /// @}

    void start();
    void cancel();
    [[nodiscard]] bool isRunning() const { return !m_tracks.empty(); }

private:
    /// Lines that share a host or a port.
    struct Track {
        std::vector<ScanLine> lines;
        std::size_t line = 0;
        std::size_t unit = 0;
        std::unique_ptr<Link> link;
        std::unique_ptr<Poller> poller;
        ScanHit hit;
    };

    void probe(Track& track);
    void hear(Track& track, const Reply& reply);
    void identify(Track& track, std::uint8_t first, int requests);
    void step(Track& track, std::size_t units);
    void next(Track& track);

    const ParameterFile& m_file;
    std::vector<std::unique_ptr<Track>> m_tracks;
    std::vector<std::unique_ptr<Track>> m_ended; ///< by cancel(), until they can go
    int m_deadlineMilliseconds;
    int m_done = 0;
    int m_total = 0;
};

} // namespace zor::monitor
