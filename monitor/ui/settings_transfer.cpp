#include <zor/monitor/language/words.h>
#include <zor/monitor/ui/settings_transfer.h>

#include <QDate>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace zor::monitor {

SettingsTransfer::SettingsTransfer(QWidget& window, Session& session) : m_window(window), m_session(session) {}

SettingsTransfer::~SettingsTransfer() { delete m_progress; }

void SettingsTransfer::fail(const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Settings file"), text, QMessageBox::Ok, &m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

std::optional<SettingsFile> SettingsTransfer::open(const QString& title, const QString& file)
{
    const QString name =
        file.isEmpty() ? QFileDialog::getOpenFileName(&m_window, title, {}, tr("Settings files (*.json)")) : file;
    if (name.isEmpty())
        return std::nullopt;
    try {
        m_lastFile = loadSettingsFile(name.toStdString());
        return m_lastFile;
    } catch (const FileError& error) {
        fail(tr("This is no settings file that can be used:") + "\n\n" + QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

// --- Reading the device

void SettingsTransfer::read(std::vector<std::size_t> parameters, std::function<void()> then)
{
    if (m_survey != nullptr)
        return;
    m_survey = std::make_unique<Survey>(m_session, std::move(parameters));
    m_then = std::move(then);
    m_progress = new QProgressDialog(tr("Reading the device..."), tr("Cancel"), 0,
                                     static_cast<int>(m_survey->total()), &m_window);
    m_progress->setWindowTitle(tr("Settings file"));
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setAutoReset(false);
    QObject::connect(m_progress, &QProgressDialog::canceled, m_progress, [this] {
        end();
        say(tr("Cancelled; nothing has been written"));
    });
    m_progress->setValue(0);
}

void SettingsTransfer::end()
{
    m_survey.reset();
    if (m_progress != nullptr)
        m_progress->deleteLater();
    m_progress = nullptr;
}

void SettingsTransfer::hearRound(bool answered)
{
    if (m_survey == nullptr)
        return;
    const Survey::State state = m_survey->hearRound(answered);
    if (m_progress != nullptr)
        m_progress->setValue(static_cast<int>(m_survey->done()));
    if (m_survey == nullptr || state == Survey::State::Going)
        return; // showing the progress may have let the operator cancel
    end();
    if (state == Survey::State::Complete)
        return std::exchange(m_then, nullptr)();
    const Reply& failure = m_session.poller().failure();
    const QString reason = failure.outcome == Outcome::Answered ? QString() : ": " + Words::reason(failure);
    fail(tr("The device did not answer for all parameters") + reason);
}

// --- Saving

void SettingsTransfer::save(QString file)
{
    if (file.isEmpty()) {
        const QString usual = QString::fromStdString(m_session.deviceType()) +
                              QDate::currentDate().toString("-yyyy-MM-dd") + ".json";
        file = QFileDialog::getSaveFileName(&m_window, tr("Save settings"), usual, tr("Settings files (*.json)"));
    }
    if (!file.isEmpty())
        read(concerned(m_session.file(), {}), [this, file] { keep(file); });
}

void SettingsTransfer::keep(const QString& file)
{
    const SettingsFile settings = settingsOf(m_session);
    if (settings.settings.empty())
        return fail(tr("The device has none of the parameters that can be written"));
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly))
        target.write(textOf(settings));
    if (!target.commit())
        return fail(file + ": " + target.errorString());
    const std::size_t count = settings.settings.size();
    say(count == 1 ? tr("1 setting saved") : tr("%1 settings saved").arg(count));
}

// --- Comparing and loading

void SettingsTransfer::compare(const QString& file)
{
    if (const auto settings = open(tr("Compare with file"), file))
        read(concerned(m_session.file(), *settings), [this, settings] { show(*settings, false); });
}

void SettingsTransfer::load(const QString& file)
{
    if (const auto settings = open(tr("Load settings"), file))
        read(concerned(m_session.file(), *settings), [this, settings] { show(*settings, true); });
}

void SettingsTransfer::compareFiles(const QString& file, const QString& other)
{
    const auto one = open(tr("Compare two files: the first"), file);
    const auto two = one ? open(tr("Compare two files: the second"), other) : std::nullopt;
    if (!two)
        return;
    show(*one, heldBy(m_session.file(), *two), {tr("Compare two files"), tr("File"), tr("Second file")});
}

void SettingsTransfer::compareWith(SettingsTransfer& other, const std::array<QString, 2>& names)
{
    // One after the other: each says itself when its device does not answer. Either may be closed meanwhile.
    read(concerned(m_session.file(), {}), [this, &other, there = QPointer(&other.m_window), names] {
        if (there == nullptr)
            return;
        const SettingsFile mine = settingsOf(m_session);
        other.read(concerned(other.m_session.file(), mine),
                   [this, here = QPointer(&m_window), &other, names, mine] {
                       if (here == nullptr)
                           return;
                       show(mine, heldBy(m_session.file(), settingsOf(other.m_session)),
                            {tr("Compare two devices"), names[0], names[1]});
                   });
    });
}

void SettingsTransfer::show(const SettingsFile& file, const Held& held, const std::array<QString, 3>& titles)
{
    SettingsDialog::Use use{titles[0], titles[1], titles[2]};
    auto* dialog = new SettingsDialog(monitor::compare(m_session.file(), file, held, m_language), m_session.file(),
                                      std::move(use), m_language, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    m_dialog = dialog;
}

void SettingsTransfer::show(const SettingsFile& file, bool loads)
{
    SettingsDialog::Use use{loads ? tr("Load settings") : tr("Compare with file"), tr("File"), tr("Device"), loads,
                            m_session.editable()};
    auto* dialog = new SettingsDialog(monitor::compare(m_session.file(), file, heldBy(m_session), m_language),
                                      m_session.file(), std::move(use), m_language, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, dialog,
                     [this, dialog] { propose(dialog->comparison(), dialog->ticked()); });
    dialog->open();
    m_dialog = dialog;
}

// --- A single value

std::optional<Compared> SettingsTransfer::rowOf(std::size_t parameter) const
{
    const ParameterFile& parameters = m_session.file();
    if (!m_lastFile)
        return std::nullopt;
    SettingsFile one = *m_lastFile;
    std::erase_if(one.settings, [tag = std::string_view(parameters.parameters[parameter].tag)](const Setting& s) {
        return s.tag != tag;
    });
    const Comparison all = monitor::compare(parameters, one, heldBy(m_session), m_language);
    const auto row = std::ranges::find_if(all.rows, [&](const Compared& compared) {
        return compared.parameter == parameter && compared.verdict != Verdict::MissingThere;
    });
    return row != all.rows.end() ? std::optional(*row) : std::nullopt;
}

QString SettingsTransfer::fileValue(std::size_t parameter) const
{
    const auto row = rowOf(parameter);
    const QString file = m_lastFile ? QFileInfo(QString::fromStdString(m_lastFile->name)).fileName() : QString();
    return row ? file + ": " + Words::value(row->fileText, row->unit) : QString();
}

void SettingsTransfer::setToFile(std::size_t parameter)
{
    const QString tag = QString::fromStdString(m_session.file().parameters[parameter].tag);
    const auto row = rowOf(parameter);
    if (!row)
        return fail(tr("The file has no value for %1").arg(tag));
    if (row->verdict == Verdict::Same)
        return say(tr("The device holds this value already"));
    if (row->verdict != Verdict::Different)
        return fail(tag + ": " +
                    (row->problem != Problem::None ? Words::problem(row->problem) : Words::verdict(row->verdict)));
    if (!m_session.propose(parameter, row->there))
        fail(tr("Not every value could be entered in its field: %1").arg(tag));
}

void SettingsTransfer::setToOtherFile(std::size_t parameter, const QString& file)
{
    if (open(tr("Set to file value"), file))
        setToFile(parameter);
}

void SettingsTransfer::propose(const Comparison& comparison, const std::set<std::size_t>& ticked)
{
    if (comparison.device != m_session.device())
        return fail(tr("Another device has taken over since; nothing has been loaded"));
    QStringList left;
    for (const Compared& row : comparison.rows) {
        if (row.parameter && ticked.contains(*row.parameter) && !m_session.propose(*row.parameter, row.there))
            left.append(QString::fromStdString(row.tag));
    }
    if (!left.isEmpty())
        fail(tr("Not every value could be entered in its field: %1").arg(left.join(", ")));
    onProposed();
}

} // namespace zor::monitor
