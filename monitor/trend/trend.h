#pragma once

/// The curves of a session.

#include <zor/monitor/session/session.h>
#include <zor/monitor/trend/history.h>

#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace zor::monitor {

struct Curve {
    std::size_t parameter;
    std::size_t color; ///< of the series of colours; no other curve has it
    bool shown = true;
    History history{}; ///< in the device's unit, times in milliseconds since 1970
};

/// Follows parameters, which are then read although nobody sees them, and keeps what they have held.
class Trend {
public:
    /// The session must outlive it.
    explicit Trend(Session& session);
    ~Trend();
    Trend(const Trend&) = delete;
    Trend& operator=(const Trend&) = delete;

    /// Whether a parameter is a number over time: everything but texts and bit fields.
    [[nodiscard]] static bool isPlottable(const Parameter& parameter);

    /// Begins a curve; one that is there goes on.
    void add(std::size_t parameter);
    /// Ends a curve, with all that it has been through.
    void remove(std::size_t parameter);
    void show(std::size_t parameter, bool shown);
    [[nodiscard]] bool has(std::size_t parameter) const;
    [[nodiscard]] const std::vector<Curve>& curves() const { return m_curves; }
    /// When curves have come, gone, or been shown or hidden.
    std::function<void()> onCurves;

    [[nodiscard]] Session& session() const { return m_session; }
    [[nodiscard]] const Parameter& parameterOf(const Curve& curve) const;
    /// Milliseconds since 1970, on a clock that is put forward with the computer's, and never back.
    [[nodiscard]] std::int64_t now() const;
    /// When the first of the samples was taken; now where there is none.
    [[nodiscard]] std::int64_t begin() const;

    /// @name As the operator sees it
    /// @{
    [[nodiscard]] MEAS_TYPE unitOf(const Curve& curve) const;
    /// A value of the history in that unit; NaN where it cannot be expressed in it.
    [[nodiscard]] double shownValue(const Curve& curve, double value) const;
    /// As the form shows it, or the name of an entry; empty for a gap.
    [[nodiscard]] QString valueText(const Curve& curve, double value, const std::string& language) const;
    /// @}

private:
    void hear(std::size_t parameter, const Reading& reading);
    void follow();

    Session& m_session;
    std::vector<Curve> m_curves;
    std::int64_t m_epoch;    ///< of the session's clock
    std::int64_t m_time = 0; ///< of the last answer
    unsigned m_device;
};

} // namespace zor::monitor
