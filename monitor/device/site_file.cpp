#include <zor/monitor/data/file_content.h>
#include <zor/monitor/data/file_place.h>
#include <zor/monitor/data/json_fields.h>
#include <zor/monitor/device/site_file.h>
#include <zor/monitor/link/device_address.h>

#include <QDir>
#include <QFileInfo>
#include <nlohmann/json.hpp>

#include <array>
#include <set>
#include <span>

namespace zor::monitor {
namespace {

constexpr std::string_view kSiteFormat = "zor-site";
constexpr int kSiteVersion = 1;
constexpr int kMostDevices = 200; ///< each has a connection of its own

/// A member that names a file.
struct FileRow {
    const char* name;
    QString DeviceEntry::*member;
};

constexpr std::array kFiles{FileRow{"parameters", &DeviceEntry::parameters}, FileRow{"form", &DeviceEntry::form},
                            FileRow{"log", &DeviceEntry::record}, FileRow{"frames", &DeviceEntry::frames}};

/// Those of them that a device writes: its own.
constexpr std::span<const FileRow> kWritten = std::span(kFiles).last<2>();

QString textIn(const Value& value)
{
    if (value.text().empty())
        value.fail(QT_TRANSLATE_NOOP("texts", "an empty text"));
    return QString::fromStdString(value.text());
}

DeviceEntry readEntry(const Value& value, const QDir& folder)
{
    Fields fields = value.object();
    DeviceEntry entry;
    const Value address = fields.need("address");
    entry.address = textIn(address);
    try {
        (void)openLink(entry.address == kSimulated ? "localhost" : entry.address, kLongestPeriod);
    } catch (const AddressError& error) {
        address.fail("%1", {error.what()});
    }
    if (const auto name = fields.take("name"))
        entry.name = textIn(*name);
    for (const FileRow& row : kFiles) {
        if (const auto file = fields.take(row.name))
            entry.*row.member = QDir::cleanPath(folder.absoluteFilePath(textIn(*file)));
    }
    if (const auto period = fields.take("period"))
        entry.period = static_cast<int>(period->integer(kShortestPeriod, kLongestPeriod));
    if (const auto timeout = fields.take("timeout"))
        entry.timeout = static_cast<int>(timeout->integer(kShortestTimeout, kLongestPeriod));
    fields.finish();
    return entry;
}

} // namespace

SiteFile readSiteFile(std::string_view text, const QString& name)
{
    const std::string file = name.toStdString();
    const JsonNode root = parseJson(text, file);
    Fields fields = Value(root, file).object();
    fields.take("$schema");
    const Value format = fields.need("format");
    if (format.text() != kSiteFormat)
        format.fail(QT_TRANSLATE_NOOP("texts", "a site file has the format \"%1\""), {std::string(kSiteFormat)});
    fields.need("formatVersion").version(kSiteVersion);
    SiteFile site;
    if (const auto title = fields.take("title"))
        site.title = QString::fromStdString(title->text());
    const Value devices = fields.need("devices");
    const std::vector<Value> values = devices.array();
    for (const Value& value : values)
        site.devices.push_back(readEntry(value, QFileInfo(name).absoluteDir()));
    if (const auto clash = clashIn(site.devices, name))
        values[clash->device].fail(clash->reason, {clash->member});
    fields.finish();
    if (site.devices.empty() || site.devices.size() > kMostDevices)
        devices.fail(QT_TRANSLATE_NOOP("texts", "a site has 1 to %1 devices"), {std::to_string(kMostDevices)});
    return site;
}

std::optional<FileClash> clashIn(std::span<const DeviceEntry> devices, const QString& site)
{
    std::set<QString> read{placeOf(site)};
    for (const DeviceEntry& entry : devices)
        read.insert({placeOf(entry.parameters), placeOf(entry.form)});
    std::set<QString> written;
    for (std::size_t i = 0; i < devices.size(); ++i) {
        for (const FileRow& row : kWritten) {
            const QString place = placeOf(devices[i].*row.member);
            if (place.isEmpty())
                continue;
            if (read.contains(place))
                return FileClash{i, row.name, QT_TRANSLATE_NOOP("texts", "\"%1\" is a file that is read")};
            if (!written.insert(place).second)
                return FileClash{i, row.name,
                                 QT_TRANSLATE_NOOP("texts", "\"%1\" is written by another device already")};
        }
    }
    return std::nullopt;
}

SiteFile loadSiteFile(const QString& name) { return readSiteFile(contentOf(name.toStdString()), name); }

QByteArray textOf(const SiteFile& site, const QString& folder)
{
    const DeviceEntry usual;
    nlohmann::ordered_json devices = nlohmann::ordered_json::array();
    for (const DeviceEntry& entry : site.devices) {
        nlohmann::ordered_json device;
        if (!entry.name.isEmpty())
            device["name"] = entry.name.toStdString();
        device["address"] = (entry.address.isEmpty() ? QString(kSimulated) : entry.address).toStdString();
        for (const FileRow& row : kFiles) {
            if ((entry.*row.member).isEmpty())
                continue;
            const QString whole = QFileInfo(entry.*row.member).absoluteFilePath();
            const QString near = QDir(folder).relativeFilePath(whole);
            device[row.name] = (near.startsWith("..") ? whole : near).toStdString();
        }
        if (entry.period != usual.period)
            device["period"] = entry.period;
        if (entry.timeout != usual.timeout)
            device["timeout"] = entry.timeout;
        devices.push_back(std::move(device));
    }
    nlohmann::ordered_json root{{"format", kSiteFormat}, {"formatVersion", kSiteVersion}};
    if (!site.title.isEmpty())
        root["title"] = site.title.toStdString();
    root["devices"] = std::move(devices);
    return QByteArray::fromStdString(root.dump(2) + '\n');
}

} // namespace zor::monitor
