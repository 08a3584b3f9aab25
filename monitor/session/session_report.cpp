// What a session tells people: the record, and the report at its end.

#include <zor/monitor/data/message.h>
#include <zor/monitor/data/printable.h>
#include <zor/monitor/session/session.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

// In the order of ReadOutcome.
constexpr std::array<std::string_view, 6> kReadWords{
    QT_TRANSLATE_NOOP("texts", "live"),    QT_TRANSLATE_NOOP("texts", "not available"),
    QT_TRANSLATE_NOOP("texts", "busy"),    QT_TRANSLATE_NOOP("texts", "communication failure"),
    QT_TRANSLATE_NOOP("texts", "waiting"), QT_TRANSLATE_NOOP("texts", "no value")};
// In the order of WriteOutcome.
constexpr std::array<std::string_view, 7> kWriteWords{
    QT_TRANSLATE_NOOP("texts", "written"),  QT_TRANSLATE_NOOP("texts", "refused"),
    QT_TRANSLATE_NOOP("texts", "not sent"), QT_TRANSLATE_NOOP("texts", "unconfirmed"),
    QT_TRANSLATE_NOOP("texts", "differs"),  QT_TRANSLATE_NOOP("texts", "not read back"),
    QT_TRANSLATE_NOOP("texts", "overtaken")};

std::string withReason(std::string_view word, const std::string& reason)
{
    return reason.empty() ? std::string(word) : std::string(word) + ": " + reason;
}

} // namespace

void Session::logRead(std::size_t parameter, const Reading& reading)
{
    State& state = m_states[parameter];
    // Waiting is not an outcome yet: a slow or a silent device would fill the record with it.
    if (m_log == nullptr || reading.outcome == ReadOutcome::Late || state.recorded == reading.outcome)
        return;
    state.recorded = reading.outcome;
    const Parameter& row = m_file.parameters[parameter];
    m_log->record("read", row.tag, recordText(row, state.last), recordText(row, reading.registers),
                  withReason(kReadWords[static_cast<std::size_t>(reading.outcome)], reading.reason));
}

void Session::logWrite(const Change& change, const WriteResult& result, std::string_view outcome)
{
    m_writes.push_back({QDateTime::currentDateTimeUtc(), change.parameter, change.before, change.target,
                        change.mask, outcome, result.exception, result.reason});
    if (m_log == nullptr)
        return;
    const Parameter& row = m_file.parameters[change.parameter];
    m_log->record("write", row.tag, recordText(row, change.before, change.mask),
                  recordText(row, change.target, change.mask), withReason(outcome, result.reason));
}

std::string_view nameOf(WriteOutcome outcome) noexcept { return kWriteWords[static_cast<std::size_t>(outcome)]; }

bool Session::hasValues() const
{
    return std::ranges::any_of(m_states, [](const State& state) { return !state.last.empty(); });
}

std::string Session::report() const
{
    std::string lines;
    for (std::size_t i = 0; i < m_states.size(); ++i) {
        const Parameter& row = m_file.parameters[i];
        const ShownValue value = describeExactly(row, m_states[i].last, shownUnit(i), m_language);
        const std::string_view label = fc_GetUnitLabel(value.unit);
        lines.append(printable(row.tag)).append("  ").append(printable(value.text));
        lines.append(label.empty() ? "" : " ").append(printable(label)).append("  ");
        const bool read = m_states[i].readAt >= 0 || m_states[i].outcome == ReadOutcome::NoAnswer;
        const std::string_view state = read ? kReadWords[static_cast<std::size_t>(m_states[i].outcome)]
                                            : QT_TRANSLATE_NOOP("texts", "not read");
        lines.append(message(state.data())).append("\n");
    }
    return lines;
}

} // namespace zor::monitor
