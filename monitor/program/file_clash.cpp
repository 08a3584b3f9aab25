#include <zor/monitor/data/file_place.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/program/file_clash.h>
#include <zor/monitor/program/outcome.h>

#include <QtGlobal>

#include <map>

namespace zor::monitor {
namespace {

struct FileRow {
    const char* option;
    std::string file;
    bool written;
};

std::vector<FileRow> filesOf(const Settings& settings)
{
    const SettingsTask& task = settings.task;
    std::vector<FileRow> rows{
        {"--form", settings.form, false},
        {"--parameters", settings.parameters, false},
        {"--site", settings.site, false},
        {"--load-settings", task.load, false},
        {"--compare", task.compare, false},
        {"--against", task.against, false},
        {"--save-settings", task.save, true},
        {"--log", settings.log, true},
        {"--frames", settings.frames, true},
        {"--report", settings.report, true},
        {"--screenshot", settings.screenshot, true},
    };
    for (const std::string& file : settings.saveTrend)
        rows.push_back({"--save-trend", file, true});
    return rows;
}

} // namespace

void refuseClashes(const Settings& settings)
{
    std::map<QString, FileRow> known;
    // What is read comes first: two may read one file.
    for (const FileRow& row : filesOf(settings)) {
        const QString place = placeOf(QString::fromStdString(row.file));
        if (place.isEmpty())
            continue;
        const auto [other, isNew] = known.emplace(place, row);
        if (!isNew && row.written)
            throw UsageError(
                std::string(row.option) + ' ' + row.file + ": " +
                message(QT_TRANSLATE_NOOP("texts", "this is the file of %1"), {other->second.option}));
    }
}

} // namespace zor::monitor
