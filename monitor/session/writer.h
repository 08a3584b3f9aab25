#pragma once

/// Carries out a reviewed list of changes: each is written once and read back.

#include <zor/monitor/link/link.h>
#include <zor/monitor/session/changes.h>

#include <QObject>

#include <deque>
#include <functional>

namespace zor::monitor {

enum class WriteOutcome : std::uint8_t {
    Written,     ///< read back as it was to be
    Refused,     ///< by an exception; nothing has changed
    NotSent,     ///< no connection; nothing has changed
    Unconfirmed, ///< sent, but whether it was carried out is not known
    Differs,     ///< carried out, but the device holds something else
    Unread,      ///< carried out as the device says, but it could not be read back
    Overtaken,   ///< not sent: the device is not, or does not hold, what was reviewed
};

/// As the record names it.
[[nodiscard]] std::string_view nameOf(WriteOutcome outcome) noexcept;

struct WriteResult {
    WriteOutcome outcome = WriteOutcome::Unconfirmed;
    std::uint8_t exception = 0;
    Registers readBack{}; ///< of the parameter, when it could be read
    std::string reason{};
};

/// Each change is written only when the device still holds what was reviewed as the old value. Bits of one
/// register are written with a mask in the device. Where it does not have that, and where they lie in several
/// registers, they are merged into what was read for that, and written together, so that no other bit is touched.
class Writer : public QObject {
public:
    Writer(Link& link, const ParameterFile& file) : m_link(link), m_file(file) {}

    std::function<void(const Change&, const WriteResult&)> onResult;
    std::function<void()> onDone;
    /// Finds out whether the device at the other end is the one that was written to, which it need not be when the
    /// connection has been lost meanwhile; `done` hears why that is not known, or not so.
    std::function<void(std::function<void(const Reply&)> done)> askWhetherSame;

    /// Changes with a problem must not be among them. Not while isWriting(). With a connection, nothing is written
    /// over any other.
    void write(std::vector<Change> changes, std::optional<unsigned> connection = std::nullopt);
    [[nodiscard]] bool isWriting() const { return !m_jobs.empty(); }
    [[nodiscard]] bool isWriting(std::size_t parameter) const;
    /// What has been learned of the device is not true of another.
    void forgetDevice() { m_isMaskable = true; }

private:
    /// Registers written in one request, and the changes that this brings about.
    struct Job {
        Bank bank;
        int first;
        int count;
        bool bits;
        std::vector<Change> changes;
    };

    void next();
    void readFirst();
    void compare(const Registers& held);
    [[nodiscard]] Registers partOf(const Registers& registers, const Change& change) const;
    [[nodiscard]] std::optional<Request> maskedRequest() const;
    void sendMasked(const Request& request);
    void send(const Registers& registers);
    void sendParts();
    void hearWrite(const Reply& reply);
    void askAndReadBack(const WriteResult& written);
    void readBack(const WriteResult& written);
    void finish(const WriteResult& result, const Registers& registers);
    [[nodiscard]] Request readRequest() const;

    Link& m_link;
    const ParameterFile& m_file;
    std::deque<Job> m_jobs;
    std::deque<Request> m_parts; ///< of the job under way, that are still to be sent
    bool m_isBegun = false;      ///< a part has been carried out
    bool m_isAskedAgain = false; ///< the read back
    bool m_isMaskable = true;    ///< as far as is known of the device
    std::optional<unsigned> m_connection;
};

} // namespace zor::monitor
