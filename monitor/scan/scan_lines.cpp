#include <zor/monitor/scan/scan_lines.h>

#include <QStringList>

#include <algorithm>

namespace zor::monitor {
namespace {

constexpr int kLastSerialUnit = 247;

std::vector<std::uint8_t> unitsOf(const QString& address, const QString& list)
{
    std::vector<std::uint8_t> units;
    for (const QString& part : list.split(',')) {
        bool isFirst = false;
        bool isLast = false;
        const int first = part.section('-', 0, 0).toInt(&isFirst);
        const int last = part.contains('-') ? part.section('-', 1).toInt(&isLast) : first;
        if (!isFirst || (part.contains('-') && !isLast) || first < 0 || first > last || last > UINT8_MAX)
            refuseAddress(
                address,
                QT_TRANSLATE_NOOP("texts", "unit is a list of numbers from 0 to 255 and ranges, as in 1-10,17"));
        for (int unit = first; unit <= last; ++unit) {
            if (std::ranges::find(units, unit) == units.end())
                units.push_back(static_cast<std::uint8_t>(unit));
        }
    }
    return units;
}

QString joined(const QString& base, const QStringList& options)
{
    return options.isEmpty() ? base : base + '?' + options.join('&');
}

} // namespace

QString ScanLine::addressOf(std::uint8_t unit) const
{
    return address + QString(address.contains('?') ? "&unit=%1" : "?unit=%1").arg(unit);
}

std::vector<ScanLine> scanLines(const QString& address)
{
    const bool serial = address.startsWith("rtu:");
    QString units = serial ? QString("1-%1").arg(kLastSerialUnit) : QString("1");
    std::vector<QStringList> variants{{}};
    for (const QString& option : address.section('?', 1).split('&', Qt::SkipEmptyParts)) {
        const QString name = option.section('=', 0, 0);
        if (name == "unit") {
            units = option.section('=', 1);
            continue;
        }
        const QStringList values = option.section('=', 1).split(',');
        std::vector<QStringList> more;
        for (const QStringList& variant : variants) {
            for (const QString& value : values)
                more.push_back(QStringList(variant) << name + '=' + value);
        }
        variants = std::move(more);
    }
    std::vector<ScanLine> lines;
    for (const QStringList& variant : variants) {
        lines.push_back({joined(address.section('?', 0, 0), variant), unitsOf(address, units)});
        // What else there is to refuse, the address of a single device refuses.
        for (const std::uint8_t unit : lines.back().units)
            (void)endpointOf(lines.back().addressOf(unit));
    }
    return lines;
}

} // namespace zor::monitor
