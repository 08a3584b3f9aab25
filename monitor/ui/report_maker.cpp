#include <zor/monitor/parts/save_dialog.h>
#include <zor/monitor/ui/report_dialog.h>
#include <zor/monitor/ui/report_maker.h>

#include <QDate>
#include <QMessageBox>

#include <array>
#include <numeric>

namespace zor::monitor {

void ReportMaker::fail(const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Report"), text, QMessageBox::Ok, &m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

void ReportMaker::ask(DevicePanel& panel)
{
    auto* dialog = new ReportDialog(!panel.trend().curves().empty(), &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, &panel, [this, dialog, &panel] {
        const QString usual = "report-" + QString::fromStdString(panel.session().deviceType()) +
                              QDate::currentDate().toString("-yyyy-MM-dd");
        const std::array kinds{FileKind{tr("PDF (*.pdf)"), "pdf"}, FileKind{tr("HTML (*.html)"), "html"}};
        const QString file = askWhereToSave(&m_window, tr("Save report"), usual, kinds);
        if (!file.isEmpty())
            make(panel, file, dialog->compared(), dialog->hasPicture());
    });
    dialog->open();
}

void ReportMaker::make(DevicePanel& panel, const QString& file, const QString& compared, bool picture)
{
    std::optional<SettingsFile> settings;
    try {
        if (!compared.isEmpty())
            settings = loadSettingsFile(compared.toStdString());
    } catch (const FileError& error) {
        return fail(tr("This is no settings file that can be used:") + "\n\n" + QString::fromUtf8(error.what()));
    }
    const auto finish = [this, &panel, file, settings, picture] {
        run(reportJob(file, panel.session(), partsOf(panel, settings, picture)), panel, file);
    };
    if (!panel.isAnswered())
        return finish();
    std::vector<std::size_t> all(panel.session().file().parameters.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    panel.transfer().read(std::move(all), finish);
}

void ReportMaker::run(std::function<QString()> job, DevicePanel& panel, const QString& file)
{
    auto error = std::make_shared<QString>();
    QThread* thread = QThread::create([job = std::move(job), error] { *error = job(); });
    m_saving.emplace_back(thread);
    QObject::connect(thread, &QThread::finished, &m_window,
                     [this, thread, error, file, device = QPointer<DevicePanel>(&panel)] {
                         if (!error->isEmpty())
                             fail(file + ": " + *error);
                         else if (device != nullptr)
                             device->say(tr("Report saved: %1").arg(file));
                         thread->wait(); // it says so shortly before it ends
                         std::erase_if(m_saving, [thread](const auto& one) { return one.get() == thread; });
                     });
    thread->start();
}

ReportMaker::~ReportMaker()
{
    for (const auto& thread : m_saving)
        thread->wait();
}

ReportParts ReportMaker::partsOf(DevicePanel& panel, std::optional<SettingsFile> compared, bool picture) const
{
    constexpr QSize kSize(660, 380); ///< what fits a page
    constexpr double kRatio = 3;     ///< as fine as a printer
    ReportParts parts{
        std::move(compared), {}, m_languages.current().toStdString(), panel.device().entry().isSimulated()};
    if (picture && !panel.trend().curves().empty())
        parts.pictures.push_back(
            plotPicture(panel.trend(), m_trend.plot().lastingView(), kSize, kRatio, parts.language));
    return parts;
}

QString ReportMaker::save(DevicePanel& panel, const QString& file, std::optional<SettingsFile> compared,
                          bool picture) const
{
    return saveReport(file, panel.session(), partsOf(panel, std::move(compared), picture));
}

} // namespace zor::monitor
