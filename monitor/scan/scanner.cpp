#include <zor/monitor/scan/scanner.h>

#include <QTimer>

#include <algorithm>

namespace zor::monitor {
namespace {

Request firstRequest(const ParameterFile& file)
{
    return Poller::readRequest(file.identity.type      ? *file.identity.type
                               : file.identity.version ? *file.identity.version
                                                       : file.parameters.front().location);
}

/// Something at this unit has understood.
bool isThere(const Reply& reply)
{
    return reply.outcome == Outcome::Answered ||
           (reply.outcome == Outcome::Refused && !isGatewayException(reply.exception));
}

} // namespace

Scanner::Scanner(std::vector<ScanLine> lines, const ParameterFile& file, int deadlineMilliseconds)
    : m_file(file), m_deadlineMilliseconds(deadlineMilliseconds)
{
    for (ScanLine& line : lines) {
        m_total += static_cast<int>(line.units.size());
        const auto same = std::ranges::find_if(m_tracks, [&](const auto& track) {
            return peerOf(track->lines.front().address) == peerOf(line.address);
        });
        if (same != m_tracks.end()) {
            (*same)->lines.push_back(std::move(line));
        } else {
            m_tracks.push_back(std::make_unique<Track>());
            m_tracks.back()->lines.push_back(std::move(line));
        }
    }
}

Scanner::~Scanner() = default;

void Scanner::start()
{
    for (const auto& track : m_tracks)
        probe(*track);
}

void Scanner::cancel()
{
    // Later: whoever has called may be one of the links.
    m_ended = std::move(m_tracks);
    m_tracks.clear();
    QTimer::singleShot(0, this, [this] { m_ended.clear(); });
}

void Scanner::probe(Track& track)
{
    const ScanLine& line = track.lines[track.line];
    const std::uint8_t unit = line.units[track.unit];
    if (track.link == nullptr) {
        track.link = openLink(line.address, m_deadlineMilliseconds);
        track.link->setManners({m_file.requests.pause, 0, 1});
        if (onLink)
            onLink(*track.link);
    }
    track.link->setUnit(unit);
    track.hit = {line.addressOf(unit)};
    track.link->send(firstRequest(m_file), [this, &track](const Reply& reply) { hear(track, reply); });
}

void Scanner::hear(Track& track, const Reply& reply)
{
    if (!isRunning())
        return;
    const std::size_t left = track.lines[track.line].units.size() - track.unit;
    if (reply.outcome == Outcome::NotSent) {
        onTrouble(track.lines[track.line].address, reply);
        return step(track, left);
    }
    if (!isThere(reply))
        return step(track, 1);
    track.hit.milliseconds = reply.milliseconds;
    track.poller = std::make_unique<Poller>(*track.link, m_file);
    track.poller->onIdentity = [&track](const std::string& type, const std::string& version) {
        track.hit.type = type;
        track.hit.version = version;
    };
    track.poller->identify([this, &track](const Reply&) { identify(track, 0, 0); });
}

void Scanner::identify(Track& track, std::uint8_t first, int requests)
{
    constexpr int kMost = 4; // a device that always says that there is more is not believed for long
    track.link->send(identifyRequest(first), [this, &track, requests](const Reply& reply) {
        if (!isRunning())
            return;
        track.hit.texts.insert(reply.texts.begin(), reply.texts.end());
        if (reply.nextText != 0 && requests < kMost)
            return identify(track, reply.nextText, requests + 1);
        onHit(track.hit);
        step(track, 1);
    });
}

void Scanner::step(Track& track, std::size_t units)
{
    track.unit += units;
    m_done += static_cast<int>(units);
    if (track.unit == track.lines[track.line].units.size()) {
        track.unit = 0;
        ++track.line;
    }
    // Later: whoever has called may be the link that is to go.
    QTimer::singleShot(0, this, [this, &track] { next(track); });
}

void Scanner::next(Track& track)
{
    const auto at = std::ranges::find_if(m_tracks, [&](const auto& one) { return one.get() == &track; });
    if (at == m_tracks.end())
        return;
    track.poller.reset();
    if (track.unit == 0)
        track.link.reset();
    if (track.line == track.lines.size())
        m_tracks.erase(at);
    else
        probe(track);
    const bool over = m_tracks.empty();
    onProgress(m_done, m_total);
    if (over)
        onDone();
}

} // namespace zor::monitor
