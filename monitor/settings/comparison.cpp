#include <zor/monitor/session/value_texts.h>
#include <zor/monitor/settings/comparison.h>
#include <zor/units/mod_Common.h>

#include <QDateTime>

#include <algorithm>
#include <array>
#include <map>

namespace zor::monitor {
namespace {

// In the order of Verdict.
constexpr std::array<std::string_view, 6> kVerdicts{
    QT_TRANSLATE_NOOP("texts", "same"),         QT_TRANSLATE_NOOP("texts", "different"),
    QT_TRANSLATE_NOOP("texts", "missing here"), QT_TRANSLATE_NOOP("texts", "missing there"),
    QT_TRANSLATE_NOOP("texts", "not writable"), QT_TRANSLATE_NOOP("texts", "unfit")};
// In the order of Problem.
constexpr std::array<std::string_view, 11> kUnfitReasons{
    "",
    QT_TRANSLATE_NOOP("texts", "not a value of this parameter"),
    QT_TRANSLATE_NOOP("texts", "not a number in a unit of this parameter"),
    QT_TRANSLATE_NOOP("texts", "beyond what the device can hold"),
    QT_TRANSLATE_NOOP("texts", "outside the limits"),
    QT_TRANSLATE_NOOP("texts", "too long"),
    QT_TRANSLATE_NOOP("texts", "characters that the device does not have"),
    QT_TRANSLATE_NOOP("texts", "can only be read"),
    QT_TRANSLATE_NOOP("texts", "not read"),
    QT_TRANSLATE_NOOP("texts", "two different values"),
    QT_TRANSLATE_NOOP("texts", "the device does not have this parameter")};

/// What decides whether two values are the same: of a single bit only that bit, of all others all of it.
bool holdSame(const Parameter& parameter, const Registers& one, const Registers& other)
{
    if (parameter.location.type == ValueType::Bit)
        return decodeBits(parameter.location, one) == decodeBits(parameter.location, other);
    return one == other || decode(parameter, one) == decode(parameter, other);
}

bool isEntry(const Parameter& parameter, const Registers& registers)
{
    return parameter.entries.empty() ||
           std::ranges::find(parameter.entries, decodeInteger(parameter.location, registers), &Entry::value) !=
               parameter.entries.end();
}

Verdict judge(const Parameter& parameter, const Compared& row)
{
    if (row.here.empty())
        return Verdict::MissingHere;
    if (row.there.empty())
        return Verdict::Unfit;
    if (holdSame(parameter, row.here, row.there))
        return Verdict::Same;
    if (!parameter.writable)
        return Verdict::NotWritable;
    return row.problem == Problem::None ? Verdict::Different : Verdict::Unfit;
}

void describeRow(const Parameter& parameter, Compared& row, const std::string& language)
{
    const MEAS_TYPE shown = parameter.appearance.unit;
    const auto text = [&](const Registers& registers) {
        const ShownValue value = describeExactly(parameter, registers, shown, language);
        row.unit = registers.empty() ? row.unit : value.unit;
        return registers.empty() ? std::string() : value.text;
    };
    row.fileText = text(row.there);
    row.deviceText = text(row.here);
    if (row.verdict == Verdict::Same || row.fileText != row.deviceText)
        return;
    // Numbers far below what their unit is shown with.
    row.fileText = recordText(parameter, row.there);
    row.deviceText = recordText(parameter, row.here);
    row.unit = parameter.unit;
}

Compared compareOne(const Parameter& parameter, const Setting& setting, const Registers& here,
                    const std::string& language)
{
    Compared row{Verdict::Same, parameter.tag};
    row.here = here;
    const Wanted wanted = wantedOf(parameter, setting);
    row.there = wanted.registers;
    row.problem = problemOf(wanted.unfit);
    if (!row.there.empty() && (!isWithinLimits(parameter, row.there) || !isEntry(parameter, row.there)))
        row.problem = Problem::OutsideLimits;
    row.verdict = judge(parameter, row);
    if (row.verdict == Verdict::NotWritable)
        row.problem = Problem::ReadOnly;
    describeRow(parameter, row, language);
    if (row.there.empty())
        row.fileText = setting.value.toText();
    return row;
}

bool isOther(const std::string& one, const std::string& other)
{
    return !one.empty() && !other.empty() && one != other;
}

} // namespace

std::span<const std::string_view> verdictNames() noexcept { return kVerdicts; }

std::string_view reasonOf(Problem problem) noexcept { return kUnfitReasons[static_cast<std::size_t>(problem)]; }

Held heldBy(const Session& session)
{
    Held held{session.deviceType(), session.deviceVersion(), session.device(), {}};
    const auto& parameters = session.file().parameters;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const bool has = session.outcome(i) == ReadOutcome::Live &&
                         isSupported(parameters[i].appearance.supported, held.deviceType, held.deviceVersion);
        held.registers.push_back(has ? session.held(i) : Registers());
    }
    return held;
}

Held heldBy(const ParameterFile& parameters, const SettingsFile& file)
{
    Held held{file.deviceType, file.deviceVersion, 0, std::vector<Registers>(parameters.parameters.size())};
    const TagIndex indexOf(parameters);
    for (const Setting& setting : file.settings) {
        if (const auto index = indexOf(setting.tag))
            held.registers[*index] = wantedOf(parameters.parameters[*index], setting).registers;
    }
    return held;
}

std::size_t Comparison::count(Verdict verdict) const
{
    return static_cast<std::size_t>(std::ranges::count(rows, verdict, &Compared::verdict));
}

Comparison compare(const ParameterFile& parameters, const SettingsFile& file, const Held& held,
                   const std::string& language)
{
    Comparison result;
    result.otherType = isOther(file.deviceType, held.deviceType);
    result.otherVersion = isOther(file.deviceVersion, held.deviceVersion);
    result.device = held.device;
    std::map<std::string_view, const Setting*> left;
    for (const Setting& setting : file.settings)
        left.emplace(setting.tag, &setting);
    for (std::size_t i = 0; i < parameters.parameters.size(); ++i) {
        const Parameter& parameter = parameters.parameters[i];
        const auto found = left.find(parameter.tag);
        if (found != left.end()) {
            result.rows.push_back(compareOne(parameter, *found->second, held.registers[i], language));
            left.erase(found);
        } else if (parameter.writable && !held.registers[i].empty()) {
            result.rows.push_back({Verdict::MissingThere, parameter.tag});
            result.rows.back().here = held.registers[i];
            describeRow(parameter, result.rows.back(), language);
        } else {
            continue;
        }
        result.rows.back().parameter = i;
    }
    for (const Setting& setting : file.settings) {
        if (left.contains(setting.tag)) {
            result.rows.push_back({Verdict::MissingHere, setting.tag});
            result.rows.back().fileText = setting.value.toText();
            result.rows.back().unit = setting.unit;
        }
    }
    return result;
}

std::vector<Change> changesOf(const ParameterFile& parameters, const Comparison& comparison,
                              const std::string& language)
{
    std::vector<Change> changes;
    for (const Compared& row : comparison.rows) {
        const bool writable = row.verdict == Verdict::Different || row.verdict == Verdict::Unfit ||
                              row.verdict == Verdict::NotWritable;
        if (!writable || !row.parameter)
            continue;
        const Parameter& parameter = parameters.parameters[*row.parameter];
        const Location& location = parameter.location;
        Change change;
        change.parameter = *row.parameter;
        change.device = comparison.device;
        change.problem = row.problem;
        change.before = row.here;
        change.target = row.there;
        change.tag = row.tag;
        change.oldText = row.deviceText;
        change.newText = row.fileText;
        change.unit = row.unit;
        if (!row.there.empty() && (location.type == ValueType::Bit || !parameter.bits.empty())) {
            change.bits = decodeBits(location, row.there);
            change.mask = change.bits ^ decodeBits(location, row.here);
            change.target = mergeBits(location, row.here, change.mask, change.bits);
            change.oldText = describeExactly(parameter, row.here, row.unit, language, change.mask).text;
            change.newText = describeExactly(parameter, change.target, row.unit, language, change.mask).text;
        }
        changes.push_back(std::move(change));
    }
    return changes;
}

std::vector<std::size_t> concerned(const ParameterFile& parameters, const SettingsFile& file)
{
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < parameters.parameters.size(); ++i) {
        const Parameter& parameter = parameters.parameters[i];
        if (parameter.writable ||
            std::ranges::find(file.settings, parameter.tag, &Setting::tag) != file.settings.end())
            all.push_back(i);
    }
    return all;
}

SettingsFile settingsOf(const Session& session)
{
    SettingsFile file;
    const Held held = heldBy(session);
    file.deviceType = held.deviceType;
    file.deviceVersion = held.deviceVersion;
    file.date = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString();
    file.title = session.file().title.in("en");
    for (std::size_t i = 0; i < held.registers.size(); ++i) {
        const Parameter& parameter = session.file().parameters[i];
        if (parameter.writable && !held.registers[i].empty())
            file.settings.push_back(settingOf(parameter, held.registers[i]));
    }
    return file;
}

} // namespace zor::monitor
