#include <zor/monitor/session/value_texts.h>
#include <zor/monitor/trend/trend_export.h>
#include <zor/units/mod_Common.h>

#include <QDateTime>
#include <QSaveFile>

#include <array>
#include <charconv>
#include <map>

namespace zor::monitor {
namespace {

/// A line of the table: a field for each curve, and the writes.
struct Line {
    std::vector<std::string> fields;
    std::string writes;
};

std::string isoTime(std::int64_t time)
{
    return QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
}

/// What a conversion leaves behind the fifteenth digit has not been measured.
std::string plainNumber(double value)
{
    constexpr int kExact = 15;
    std::array<char, 32> text{};
    char* const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kExact).ptr;
    return {text.data(), end};
}

} // namespace

std::string describeWrite(const Session& session, const WriteRecord& write, const std::string& language)
{
    const Parameter& parameter = session.file().parameters[write.parameter];
    const MEAS_TYPE unit = session.shownUnit(write.parameter);
    const ShownValue before = describeExactly(parameter, write.before, unit, language, write.mask);
    const ShownValue after = describeExactly(parameter, write.target, unit, language, write.mask);
    const std::string_view label = fc_GetUnitLabel(after.unit);
    return parameter.captionIn(language) + ": " + before.text + " \xE2\x86\x92 " + after.text +
           (label.empty() ? "" : " ") + std::string(label);
}

std::string trendCsv(const Trend& trend)
{
    const std::vector<Curve>& curves = trend.curves();
    std::map<std::int64_t, Line> lines;
    std::string text = "time";
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const Parameter& parameter = trend.parameterOf(curves[i]);
        const std::string_view unit = fc_GetUnitLabel(trend.unitOf(curves[i]));
        text.append(",").append(
            csvField(parameter.tag + (unit.empty() ? std::string() : " [" + std::string(unit) + ']')));
        for (const Sample& sample : curves[i].history.samples()) {
            Line& line = lines[sample.time];
            line.fields.resize(curves.size());
            const double shown = trend.shownValue(curves[i], sample.value);
            line.fields[i] = sample.isGap() || shown != shown ? std::string() : plainNumber(shown);
        }
    }
    for (const WriteRecord& write : trend.session().writes()) {
        Line& line = lines[write.time.toMSecsSinceEpoch()];
        line.fields.resize(curves.size());
        const Parameter& parameter = trend.session().file().parameters[write.parameter];
        line.writes.append(line.writes.empty() ? "" : "; ")
            .append(parameter.tag + '=' + recordText(parameter, write.target, write.mask) + ": " +
                    std::string(write.outcome));
    }
    text.append(",write\n");
    for (const auto& [time, line] : lines) {
        text.append(isoTime(time));
        for (const std::string& field : line.fields)
            text.append(",").append(field);
        text.append(",").append(csvField(line.writes)).append("\n");
    }
    return text;
}

QString saveTrend(const QString& file, const Trend& trend, const PlotView& view, const std::string& language)
{
    constexpr QSize kSize(1200, 600);
    constexpr double kRatio = 2;
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly)) {
        if (file.endsWith(".csv", Qt::CaseInsensitive))
            target.write(QByteArray::fromStdString(trendCsv(trend)));
        else
            plotPicture(trend, view, kSize, kRatio, language).save(&target, "PNG");
    }
    return target.commit() ? QString() : target.errorString();
}

} // namespace zor::monitor
