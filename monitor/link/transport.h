#pragma once

/// What carries the bytes: a handful of operations for each kind of line.

#include <zor/monitor/link/framing.h>

#include <QString>

#include <functional>

namespace zor::monitor {

/// Never blocks. What it has to tell it may tell while one of its operations runs.
class Transport {
public:
    Transport() = default;
    virtual ~Transport() = default;
    Transport(const Transport&) = delete;
    Transport& operator=(const Transport&) = delete;

    /// Ends in onOpen or in onFailure.
    virtual void open() = 0;
    /// Gives the connection up; nothing that has come is read any more.
    virtual void close() = 0;
    [[nodiscard]] virtual bool isOpen() const = 0;
    virtual void write(const Bytes& bytes) = 0;
    /// What has come, up to so many bytes; empty when there is nothing.
    [[nodiscard]] virtual Bytes read(std::size_t most) = 0;
    [[nodiscard]] virtual const Framing& framing() const = 0;
    /// What it is connected to, for people.
    [[nodiscard]] virtual QString description() const = 0;
    /// Milliseconds of silence between two frames.
    [[nodiscard]] virtual int silence() const { return 0; }

    std::function<void()> onOpen;
    std::function<void()> onBytes;
    /// The connection is gone, or could not be had; the words are those of the operating system, where the fault
    /// does not say it all.
    std::function<void(Fault fault, const QString& words)> onFailure;
};

} // namespace zor::monitor
