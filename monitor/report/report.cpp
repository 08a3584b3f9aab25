#include <zor/monitor/data/message.h>
#include <zor/monitor/language/words.h>
#include <zor/monitor/report/report.h>
#include <zor/monitor/report/report_pages.h>
#include <zor/monitor/report/report_writer.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/monitor/settings/comparison.h>
#include <zor/platform/version.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QSaveFile>
#include <QSysInfo>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

// In the order of ReadOutcome.
constexpr std::array kStates{
    QT_TRANSLATE_NOOP("Report", "live"),
    QT_TRANSLATE_NOOP("Report", "not available"),
    QT_TRANSLATE_NOOP("Report", "the device was busy"),
    QT_TRANSLATE_NOOP("Report", "communication failed"),
    QT_TRANSLATE_NOOP("Report", "not answered yet"),
    QT_TRANSLATE_NOOP("Report", "the device has no value"),
};

class Report {
    Q_DECLARE_TR_FUNCTIONS(Report)
public:
    Report(const Session& session, const ReportParts& parts, ReportSink& sink)
        : m_session(session), m_parts(parts), m_writer(sink)
    {}

    void write()
    {
        const QString own = plain(m_session.file().title.in(m_parts.language));
        const QString title = own.isEmpty() ? tr("Report") : tr("%1 - Report").arg(own);
        m_writer.begin(title, plain(m_parts.language));
        addHead();
        addParameters();
        if (m_parts.compared)
            addDifferences(*m_parts.compared);
        addWrites();
        addPictures();
        m_writer.end(tr("Made by zor-monitor %1.").arg(plain(std::string(version()))));
    }

private:
    static QString plain(const std::string& utf8) { return QString::fromStdString(utf8); }
    static QString timeText(const QDateTime& time)
    {
        const QDateTime local = time.toLocalTime();
        QString format = QLocale().dateFormat(QLocale::ShortFormat);
        if (!format.contains("yyyy"))
            format.replace("yy", "yyyy"); // a report is kept for longer than a century has doubts
        return QLocale().toString(local.date(), format) + local.toString(" HH:mm:ss");
    }
    [[nodiscard]] QString caption(const Parameter& parameter) const
    {
        return plain(parameter.captionIn(m_parts.language));
    }

    /// A bit that the file has no words for is on or off.
    [[nodiscard]] QString valueText(const Parameter& parameter, const std::string& text) const
    {
        if (parameter.location.type != ValueType::Bit || (text != "0" && text != "1"))
            return plain(text);
        const auto entry = std::ranges::find(parameter.entries, text == "1" ? 1 : 0, &Entry::value);
        if (entry != parameter.entries.end())
            return plain(entry->text.in(m_parts.language));
        return text == "1" ? tr("On") : tr("Off");
    }

    void addHead()
    {
        const QDateTime now = QDateTime::currentDateTime();
        const auto known = [](const std::string& text) { return text.empty() ? tr("not known") : plain(text); };
        m_writer.pairs(
            {{tr("Device"), known(m_session.deviceType())},
             {tr("Version"), known(m_session.deviceVersion())},
             {tr("Address"), m_parts.simulated ? tr("simulated device") : m_session.link().description()},
             {tr("Date"), timeText(now) + now.toString(" (t)")},
             {tr("Operator"), operatorName()}});
    }

    void addParameters()
    {
        m_writer.heading(tr("Parameters"));
        std::vector<std::string> groups;
        for (const Parameter& parameter : m_session.file().parameters) {
            const std::string& group = parameter.appearance.group.in(m_parts.language);
            if (std::ranges::find(groups, group) == groups.end())
                groups.push_back(group);
        }
        for (const std::string& group : groups) {
            if (groups.size() > 1)
                m_writer.subheading(group.empty() ? tr("General") : plain(group));
            m_writer.beginTable({tr("Parameter"), tr("Tag"), tr("Value"), tr("Unit"), tr("State")});
            for (std::size_t i = 0; i < m_session.file().parameters.size(); ++i) {
                if (m_session.file().parameters[i].appearance.group.in(m_parts.language) == group)
                    addParameter(i);
            }
            m_writer.endTable();
        }
    }

    void addParameter(std::size_t index)
    {
        const Parameter& parameter = m_session.file().parameters[index];
        const ReadOutcome outcome = m_session.outcome(index);
        const ShownValue value =
            describe(parameter, m_session.held(index), m_session.shownUnit(index), m_parts.language);
        const bool unasked = m_session.readAt(index) < 0 && outcome != ReadOutcome::NoAnswer;
        QString state = unasked ? tr("not read") : tr(kStates[static_cast<std::size_t>(outcome)]);
        const bool lacking =
            !m_session.deviceType().empty() &&
            !isSupported(parameter.appearance.supported, m_session.deviceType(), m_session.deviceVersion());
        if (lacking)
            state = tr("this device does not have it");
        // What was read once is no value of a device that has none now.
        const bool has = !lacking && (outcome == ReadOutcome::Live || outcome == ReadOutcome::NoAnswer);
        const QString text = has && value.text != "?" ? valueText(parameter, value.text) : QString();
        m_writer.row({caption(parameter), plain(parameter.tag), text,
                      text.isEmpty() ? QString() : Words::unit(value.unit), state});
    }

    /// Two values as the operator sees them; with all their digits where they would look the same.
    [[nodiscard]] std::pair<QString, QString> texts(std::size_t index, const Registers& one,
                                                    const Registers& other, std::uint32_t mask = 0) const
    {
        const Parameter& parameter = m_session.file().parameters[index];
        const auto textsBy = [&](auto describer) {
            const auto text = [&](const Registers& registers) {
                if (registers.empty())
                    return QString();
                const ShownValue value =
                    describer(parameter, registers, m_session.shownUnit(index), m_parts.language, mask);
                return Words::value(valueText(parameter, value.text).toStdString(), value.unit);
            };
            return std::pair(text(one), text(other));
        };
        std::pair<QString, QString> seen = textsBy(describe);
        return seen.first == seen.second && one != other ? textsBy(describeExactly) : seen;
    }

    void addDifferences(const SettingsFile& file)
    {
        const Comparison comparison = compare(m_session.file(), file, heldBy(m_session), m_parts.language);
        m_writer.heading(tr("Differences to the settings file"));
        m_writer.pairs({{tr("File"), plain(file.name)},
                        {tr("Saved"), plain(file.date)},
                        {tr("From"), plain(file.deviceType + ' ' + file.deviceVersion)}});
        if (comparison.otherType || comparison.otherVersion)
            m_writer.paragraph(comparison.otherType
                                   ? tr("Attention: the file is of another type of device.")
                                   : tr("Attention: the file is of another version of the device."));
        if (comparison.isSame())
            return m_writer.paragraph(tr("Nothing differs."));
        m_writer.beginTable({tr("Parameter"), tr("Tag"), tr("File"), tr("Device"), tr("Remark")});
        for (const Compared& row : comparison.rows) {
            if (row.verdict == Verdict::Same)
                continue;
            if (!row.parameter) {
                m_writer.row({QString(), plain(row.tag), plain(row.fileText), QString(), Words::verdict(row)});
                continue;
            }
            auto [there, here] = texts(*row.parameter, row.there, row.here);
            if (row.there.empty())
                there = plain(row.fileText);
            m_writer.row({caption(m_session.file().parameters[*row.parameter]), plain(row.tag), there, here,
                          Words::verdict(row)});
        }
        m_writer.endTable();
    }

    void addWrites()
    {
        m_writer.heading(tr("Writes of this session"));
        if (m_session.writes().empty())
            return m_writer.paragraph(tr("Nothing was written."));
        m_writer.beginTable(
            {tr("Time"), tr("Who"), tr("Parameter"), tr("Old value"), tr("New value"), tr("Result")});
        for (const WriteRecord& write : m_session.writes()) {
            const Parameter& parameter = m_session.file().parameters[write.parameter];
            const auto [before, target] = texts(write.parameter, write.before, write.target, write.mask);
            QString result = plain(message(std::string(write.outcome).c_str()));
            if (!write.reason.empty())
                result += ": " + Words::reason(write.exception, write.reason);
            m_writer.row({timeText(write.time), operatorName(), caption(parameter), before, target, result});
        }
        m_writer.endTable();
    }

    void addPictures()
    {
        if (m_parts.pictures.empty())
            return;
        m_writer.heading(tr("Trend"));
        for (const QImage& picture : m_parts.pictures)
            m_writer.picture(picture, tr("Curves of the session"));
    }

    const Session& m_session;
    const ReportParts& m_parts;
    ReportSink& m_writer;
};

} // namespace

QString operatorName()
{
    const QString user = qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"));
    return user.isEmpty() ? QSysInfo::machineHostName() : user + " @ " + QSysInfo::machineHostName();
}

QString reportHtml(const Session& session, const ReportParts& parts)
{
    ReportWriter writer;
    Report(session, parts, writer).write();
    return writer.html();
}

std::function<QString()> reportJob(const QString& file, const Session& session, const ReportParts& parts)
{
    const auto saved = [](const QString& name, const auto& write) {
        QSaveFile target(name);
        if (!target.open(QIODevice::WriteOnly))
            return target.errorString();
        write(target);
        return target.commit() ? QString() : target.errorString();
    };
    if (!file.endsWith(".pdf", Qt::CaseInsensitive))
        return [=, html = reportHtml(session, parts).toUtf8()] {
            return saved(file, [&](QSaveFile& target) { target.write(html); });
        };
    auto pages = std::make_shared<ReportPages>();
    Report(session, parts, *pages).write();
    return [=] { return saved(file, [&](QSaveFile& target) { pages->print(target); }); };
}

QString saveReport(const QString& file, const Session& session, const ReportParts& parts)
{
    return reportJob(file, session, parts)();
}

} // namespace zor::monitor
