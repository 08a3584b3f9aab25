#pragma once

/// What a device was, held and was told in a session, for people: HTML or PDF.

#include <zor/monitor/session/session.h>
#include <zor/monitor/settings/settings_file.h>

#include <QImage>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zor::monitor {

/// What a report is made of beside the session itself.
struct ReportParts {
    std::optional<SettingsFile> compared{}; ///< the device is compared with it
    std::vector<QImage> pictures{};         ///< of the trend
    std::string language = "en"; ///< of captions and entries; that of the program's own texts is in force
    bool simulated = false;      ///< the device is none
};

/// The report as one HTML document that needs no other file: device, address and time; every parameter with its
/// value in the unit that the operator sees; what differs from a settings file; all writes of the session;
/// pictures. Texts of the device and of files stand in it as texts, whatever characters they have.
[[nodiscard]] QString reportHtml(const Session& session, const ReportParts& parts);

/// Takes down what the report is to hold, and returns what saves it, in whatever thread, as the ending of the
/// file's name says: .pdf, or else HTML. What stood in the file stays until the new one is whole. It gives the
/// reason why it could not be saved, or nothing.
[[nodiscard]] std::function<QString()> reportJob(const QString& file, const Session& session,
                                                 const ReportParts& parts);
/// The same at once.
[[nodiscard]] QString saveReport(const QString& file, const Session& session, const ReportParts& parts);

/// Who sits at this machine, as the operating system names him.
[[nodiscard]] QString operatorName();

} // namespace zor::monitor
