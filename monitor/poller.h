#pragma once

/// Reads the device again and again and writes values to it.

#include "monitor/link.h"
#include "monitor/parameters.h"

#include <QTimer>

#include <functional>
#include <vector>

namespace zor::monitor {

class Poller : public QObject {
public:
    Poller(Link& link, int periodMilliseconds);

    /// One parameter's registers after a read, or how the read failed.
    std::function<void(std::size_t parameter, const Reply&)> onRead;
    /// Device type and firmware version.
    std::function<void(const std::string& type, const std::string& version)> onIdentity;
    /// After each round: whether the device answered at all.
    std::function<void(bool answered)> onRound;

    /// Reads one parameter beside the rounds; onRead hears of it.
    void readNow(std::size_t parameter);
    /// Writes one parameter once; `done` hears the outcome.
    void write(std::size_t parameter, const QList<quint16>& registers, Link::Done done);

    [[nodiscard]] int rounds() const { return m_rounds; }

private:
    /// Neighbours in one bank, read in one request.
    struct Group {
        REGISTER_TYPE bank;
        int first;
        int count;
        std::vector<std::size_t> parameters;
    };

    void buildGroups();
    void split(std::size_t group);
    void round();
    void readGroup(std::size_t group);
    void hear(std::size_t group, const Reply& reply);
    void readIdentity();

    Link& m_link;
    QTimer m_timer;
    std::vector<Group> m_groups;
    std::size_t m_waiting = 0;
    int m_rounds = 0;
    bool m_answered = false;
    bool m_identified = false;
};

} // namespace zor::monitor
