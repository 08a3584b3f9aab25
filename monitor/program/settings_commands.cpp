#include <zor/monitor/data/message.h>
#include <zor/monitor/data/printable.h>
#include <zor/monitor/language/words.h>
#include <zor/monitor/program/outcome.h>
#include <zor/monitor/program/settings_commands.h>
#include <zor/monitor/settings/comparison.h>
#include <zor/monitor/settings/survey.h>
#include <zor/units/mod_Common.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QSaveFile>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

namespace zor::monitor {
namespace {

std::string withUnit(const std::string& text, MEAS_TYPE unit)
{
    return text.empty() ? "-" : printable(Words::value(text, unit).toStdString());
}

void warn(const Comparison& comparison, const SettingsFile& file, const Held& held, std::ostream& out)
{
    if (comparison.otherType)
        out << message(QT_TRANSLATE_NOOP("texts", "warning: saved from a device of type %1, compared with %2"),
                       {printable(file.deviceType), printable(held.deviceType)})
            << '\n';
    if (comparison.otherVersion)
        out << message(QT_TRANSLATE_NOOP("texts", "warning: saved from version %1, compared with %2"),
                       {printable(file.deviceVersion), printable(held.deviceVersion)})
            << '\n';
}

void printCounts(const Comparison& comparison, std::ostream& out)
{
    const auto names = verdictNames();
    for (std::size_t i = 0; i < names.size(); ++i)
        out << (i == 0 ? "" : ", ") << comparison.count(static_cast<Verdict>(i)) << ' '
            << message(names[i].data());
    out << '\n';
}

std::string remark(const Compared& row)
{
    const std::string_view reason = reasonOf(row.problem);
    const std::string name = message(verdictNames()[static_cast<std::size_t>(row.verdict)].data());
    return reason.empty() || row.verdict == Verdict::NotWritable ? name : name + ": " + message(reason.data());
}

void printText(const Comparison& comparison, std::ostream& out)
{
    for (const Compared& row : comparison.rows) {
        if (row.verdict != Verdict::Same)
            out << printable(row.tag) << "  " << withUnit(row.fileText, row.unit) << "  "
                << withUnit(row.deviceText, row.unit) << "  " << remark(row) << '\n';
    }
    printCounts(comparison, out);
}

void printJson(const Comparison& comparison, std::ostream& out)
{
    nlohmann::ordered_json root;
    root["same"] = comparison.isSame();
    root["otherType"] = comparison.otherType;
    root["otherVersion"] = comparison.otherVersion;
    for (std::size_t i = 0; i < verdictNames().size(); ++i)
        root["counts"][std::string(verdictNames()[i])] = comparison.count(static_cast<Verdict>(i));
    root["differences"] = nlohmann::ordered_json::array();
    for (const Compared& row : comparison.rows) {
        if (row.verdict == Verdict::Same)
            continue;
        nlohmann::ordered_json& one = root["differences"].emplace_back();
        one["tag"] = row.tag;
        one["verdict"] = verdictNames()[static_cast<std::size_t>(row.verdict)];
        one["file"] = row.fileText;
        one["device"] = row.deviceText;
        one["unit"] = fc_GetUnitLabel(row.unit);
        one["reason"] = reasonOf(row.problem);
    }
    constexpr int kIndent = 2;
    out << root.dump(kIndent, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

int tell(const Comparison& comparison, const SettingsFile& file, const Held& held, const SettingsTask& task,
         std::ostream& out)
{
    if (task.json) {
        printJson(comparison, out);
    } else {
        warn(comparison, file, held, out);
        printText(comparison, out);
    }
    return comparison.isSame() ? 0 : 1;
}

int noAnswer(Session& session, std::ostream& errors, int status)
{
    const Reply& failure = session.poller().failure();
    const QString reason = Words::reason(failure);
    const QString advice = Words::advice(failure);
    errors << "zor-monitor: " << message(QT_TRANSLATE_NOOP("texts", "the device did not answer"))
           << (reason.isEmpty() ? "" : ": ") << reason.toStdString() << '\n'
           << advice.toStdString() << (advice.isEmpty() ? "" : "\n");
    return status;
}

int save(Session& session, const SettingsTask& task, std::ostream& out, std::ostream& errors)
{
    // Nothing is seen of it before it is whole; what stood there stays until then.
    QSaveFile target(QString::fromStdString(task.save));
    if (!target.open(QIODevice::WriteOnly))
        throw FileError(task.save, 0, target.errorString().toStdString());
    if (!surveyAtOnce(session, concerned(session.file(), {})))
        return noAnswer(session, errors, 1);
    const SettingsFile file = settingsOf(session);
    if (file.settings.empty()) {
        errors << "zor-monitor: "
               << message(QT_TRANSLATE_NOOP("texts", "the device has none of the parameters that can be written"))
               << '\n';
        return 1;
    }
    target.write(textOf(file));
    if (!target.commit())
        throw FileError(task.save, 0, target.errorString().toStdString());
    const std::size_t count = file.settings.size();
    out << (count == 1 ? message(QT_TRANSLATE_NOOP("texts", "1 setting saved"))
                       : message(QT_TRANSLATE_NOOP("texts", "%1 settings saved"), {std::to_string(count)}))
        << '\n';
    return 0;
}

void printReview(const std::vector<Change>& changes, std::ostream& out)
{
    for (const Change& change : changes) {
        out << printable(change.tag) << "  " << withUnit(change.oldText, change.unit) << " -> "
            << withUnit(change.newText, change.unit);
        if (change.problem != Problem::None)
            out << "  "
                << message(QT_TRANSLATE_NOOP("texts", "cannot be written: %1"),
                           {message(reasonOf(change.problem).data())});
        out << '\n';
    }
}

void write(Session& session, const std::vector<Change>& changes, std::ostream& out)
{
    QEventLoop loop;
    session.onWritten = [&](const std::vector<Written>& results) {
        for (const Written& one : results)
            out << printable(one.change.tag) << "  " << message(nameOf(one.result.outcome).data())
                << (one.result.reason.empty() ? "" : ": ")
                << Words::reason(one.result.exception, one.result.reason).toStdString() << '\n';
        loop.quit();
    };
    // Where nothing can be written it ends at once, and the loop must not miss that.
    QTimer::singleShot(0, &session, [&] { session.write(changes); });
    loop.exec();
    session.onWritten = nullptr;
}

int load(Session& session, const SettingsTask& task, const SettingsFile& file, std::ostream& out,
         std::ostream& errors)
{
    const auto parameters = concerned(session.file(), file);
    if (!surveyAtOnce(session, parameters))
        return noAnswer(session, errors, 1);
    const Held held = heldBy(session);
    const Comparison before = compare(session.file(), file, held, task.language);
    warn(before, file, held, errors);
    const std::vector<Change> changes = changesOf(session.file(), before, task.language);
    printReview(changes, out);
    if (!task.yes) {
        errors << "zor-monitor: "
               << message(QT_TRANSLATE_NOOP("texts", "nothing has been written; with --yes it is")) << '\n';
        return 2;
    }
    const unsigned device = session.device();
    write(session, changes, out);
    // What was not confirmed may have been carried out all the same, and what was may have moved another value.
    if (!surveyAtOnce(session, parameters))
        return noAnswer(session, errors, 1);
    if (session.device() != device) {
        errors << "zor-monitor: "
               << message(QT_TRANSLATE_NOOP("texts", "another device answers since; it has not been compared"))
               << '\n';
        return 1;
    }
    const Comparison after = compare(session.file(), file, heldBy(session), task.language);
    printText(after, out);
    return after.count(Verdict::Same) + after.count(Verdict::MissingThere) == after.rows.size() ? 0 : 1;
}

} // namespace

int compareFiles(const ParameterFile& parameters, const SettingsTask& task, std::ostream& out)
{
    const SettingsFile file = loadSettingsFile(task.compare);
    const Held other = heldBy(parameters, loadSettingsFile(task.against));
    return tell(compare(parameters, file, other, task.language), file, other, task, out);
}

int runSettings(Session& session, const SettingsTask& task, std::ostream& out, std::ostream& errors)
{
    if (!task.save.empty())
        return save(session, task, out, errors);
    const SettingsFile file = loadSettingsFile(task.load.empty() ? task.compare : task.load);
    if (!task.load.empty())
        return load(session, task, file, out, errors);
    if (!surveyAtOnce(session, concerned(session.file(), file)))
        return noAnswer(session, errors, kSilent);
    const Held held = heldBy(session);
    return tell(compare(session.file(), file, held, task.language), file, held, task, out);
}

} // namespace zor::monitor
