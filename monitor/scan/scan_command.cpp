#include <zor/monitor/data/message.h>
#include <zor/monitor/data/printable.h>
#include <zor/monitor/language/words.h>
#include <zor/monitor/scan/scan_command.h>
#include <zor/monitor/session/frame_file.h>

#include <QEventLoop>

#include <algorithm>
#include <iterator>
#include <optional>
#include <ostream>

namespace zor::monitor {
std::string identificationOf(const ScanHit& hit)
{
    std::string all;
    for (const auto& [number, text] : hit.texts)
        all.append(all.empty() ? "" : " ").append(printableAscii(text));
    return all;
}

int runScan(const ScanTask& task, const ParameterFile& file, std::ostream& out, std::ostream& errors)
{
    std::vector<ScanLine> lines;
    for (const std::string& address : task.addresses)
        std::ranges::move(scanLines(QString::fromStdString(address)), std::back_inserter(lines));
    std::optional<FrameFile> frames;
    if (!task.frames.empty())
        frames.emplace(QString::fromStdString(task.frames));
    Scanner scanner(std::move(lines), file, task.timeout > 0 ? task.timeout : kUsualScanTimeout);
    QEventLoop loop;
    int hits = 0;
    // What stands in the last line of a terminal makes room for what stays.
    const char* const room = task.progress ? "\r\033[K" : "";
    scanner.onLink = [&](Link& link) {
        if (frames)
            frames->follow(link.frames());
    };
    scanner.onHit = [&](const ScanHit& hit) {
        ++hits;
        errors << room << std::flush;
        out << hit.address.toStdString();
        for (const std::string& text : {printable(hit.type), printable(hit.version), identificationOf(hit)})
            out << (text.empty() ? "" : "  ") << text;
        out << "  (" << hit.milliseconds << " ms)" << std::endl;
    };
    scanner.onTrouble = [&](const QString& address, const Reply& reply) {
        errors << room << "zor-monitor: " << address.toStdString() << ": " << Words::reason(reply).toStdString()
               << '\n'
               << Words::advice(reply).toStdString() << std::endl;
    };
    scanner.onProgress = [&](int done, int total) {
        if (task.progress)
            errors << room
                   << message(QT_TRANSLATE_NOOP("texts", "%1 of %2"),
                              {std::to_string(done), std::to_string(total)})
                   << std::flush;
    };
    scanner.onDone = [&] { loop.quit(); };
    scanner.start();
    loop.exec();
    errors << room;
    if (hits == 0)
        errors << "zor-monitor: " << message(QT_TRANSLATE_NOOP("texts", "nothing answers")) << std::endl;
    if (frames && !frames->error().isEmpty()) {
        errors << "zor-monitor: " << task.frames << ": " << frames->error().toStdString() << std::endl;
        return 2;
    }
    return hits > 0 ? 0 : 1;
}

} // namespace zor::monitor
