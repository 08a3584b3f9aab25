#include <zor/monitor/trend/trend.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zor::monitor {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

Trend::Trend(Session& session)
    : m_session(session), m_epoch(QDateTime::currentMSecsSinceEpoch() - session.now()), m_device(session.device())
{
    session.onReading = [this](std::size_t parameter, const Reading& reading) { hear(parameter, reading); };
}

Trend::~Trend()
{
    m_session.onReading = nullptr;
    m_session.follow({});
}

bool Trend::isPlottable(const Parameter& parameter)
{
    return parameter.location.type != ValueType::Text && parameter.bits.empty();
}

bool Trend::has(std::size_t parameter) const
{
    return std::ranges::find(m_curves, parameter, &Curve::parameter) != m_curves.end();
}

void Trend::add(std::size_t parameter)
{
    if (has(parameter) || !isPlottable(m_session.file().parameters[parameter]))
        return;
    std::size_t color = 0;
    while (std::ranges::find(m_curves, color, &Curve::color) != m_curves.end())
        ++color;
    m_curves.push_back({parameter, color});
    follow();
}

void Trend::remove(std::size_t parameter)
{
    std::erase_if(m_curves, [&](const Curve& curve) { return curve.parameter == parameter; });
    follow();
}

void Trend::show(std::size_t parameter, bool shown)
{
    for (Curve& curve : m_curves) {
        if (curve.parameter == parameter)
            curve.shown = shown;
    }
    if (onCurves)
        onCurves();
}

void Trend::follow()
{
    std::vector<std::size_t> parameters;
    for (const Curve& curve : m_curves)
        parameters.push_back(curve.parameter);
    m_session.follow(std::move(parameters));
    if (onCurves)
        onCurves();
}

void Trend::hear(std::size_t parameter, const Reading& reading)
{
    const auto curve = std::ranges::find(m_curves, parameter, &Curve::parameter);
    // An answer that is still awaited is none.
    if (curve == m_curves.end() || reading.outcome == ReadOutcome::Late)
        return;
    // The session's clock stands still while the computer sleeps, and hears nothing when its time is put forward.
    constexpr std::int64_t kAhead = 1000;
    if (const std::int64_t ahead = QDateTime::currentMSecsSinceEpoch() - now(); ahead > kAhead)
        m_epoch += ahead;
    // What comes in one answer, or in the next ones of a round, has one time.
    constexpr std::int64_t kSame = 20;
    if (now() - m_time > kSame)
        m_time = now();
    if (m_device != m_session.device()) {
        m_device = m_session.device();
        for (Curve& each : m_curves)
            each.history.add(m_time, kNoNumber);
    }
    const Variant value = reading.outcome == ReadOutcome::Live
                              ? decode(m_session.file().parameters[parameter], reading.registers)
                              : Variant();
    curve->history.add(m_time, value.isNumber() ? value.number() : kNoNumber);
}

const Parameter& Trend::parameterOf(const Curve& curve) const
{
    return m_session.file().parameters[curve.parameter];
}

std::int64_t Trend::now() const { return m_epoch + m_session.now(); }

std::int64_t Trend::begin() const
{
    std::int64_t first = now();
    for (const Curve& curve : m_curves) {
        if (!curve.history.isEmpty())
            first = std::min(first, curve.history.first().time);
    }
    return first;
}

MEAS_TYPE Trend::unitOf(const Curve& curve) const { return m_session.shownUnit(curve.parameter); }

double Trend::shownValue(const Curve& curve, double value) const
{
    const Parameter& parameter = parameterOf(curve);
    try {
        return std::isnan(value) ? value : convert(value, parameter.unitType, parameter.unit, unitOf(curve));
    } catch (const RunTimeError&) {
        return kNoNumber;
    }
}

QString Trend::valueText(const Curve& curve, double value, const std::string& language) const
{
    const double shown = shownValue(curve, value);
    if (std::isnan(shown))
        return {};
    const Parameter& parameter = parameterOf(curve);
    const auto entry =
        std::ranges::find_if(parameter.entries, [&](const Entry& one) { return one.value == value; });
    if (entry != parameter.entries.end())
        return QString::fromStdString(entry->text.in(language));
    const std::int16_t digits = parameter.appearance.digits.value_or(decimalsOf(parameter).value_or(kUsualDigits));
    return QString::fromStdString(formatValueText(shown, unitOf(curve), digits));
}

} // namespace zor::monitor
