#pragma once

/// Words for people, in the language of the program.

#include <zor/monitor/session/session.h>
#include <zor/monitor/settings/comparison.h>

#include <QCoreApplication>

namespace zor::monitor {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
public:
    [[nodiscard]] static QString problem(Problem problem);
    /// The same with what the entry might have been.
    [[nodiscard]] static QString problem(const Change& change);
    [[nodiscard]] static QString verdict(Verdict verdict);
    /// The same with the reason why the file's value cannot be held.
    [[nodiscard]] static QString verdict(const Compared& row);
    /// With its unit; one that is not known has none.
    [[nodiscard]] static QString value(const std::string& text, MEAS_TYPE unit);
    /// `held` is what the device holds; empty where it is not known, or is what was to be written.
    [[nodiscard]] static QString outcome(const WriteResult& result, const QString& held = {});
    /// Why a request was not answered, or refused.
    [[nodiscard]] static QString reason(const Reply& reply);
    /// The same of an exception, where there was one, or else from the link's own words; what the operating system
    /// says stays as it is.
    [[nodiscard]] static QString reason(std::uint8_t exception, const std::string& english);
    /// What to look at then; empty when nothing is known to help.
    [[nodiscard]] static QString advice(const Reply& reply);
    [[nodiscard]] static QString unit(MEAS_TYPE unit);
    [[nodiscard]] static QString unitType(UNIT_TYPE type);
};

} // namespace zor::monitor
