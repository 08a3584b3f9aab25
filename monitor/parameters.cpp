#include "monitor/parameters.h"

#include <QByteArray>
#include <QString>

#include <bit>
#include <cmath>
#include <limits>

namespace zor::monitor {
namespace {

std::uint32_t joined(const QList<quint16>& registers)
{
    return static_cast<std::uint32_t>(registers.at(0)) << 16U | registers.at(1);
}

QList<quint16> parted(std::uint32_t bits)
{
    return {static_cast<quint16>(bits >> 16U), static_cast<quint16>(bits & 0xFFFFU)};
}

template <class Integer>
bool fits(double value)
{
    return value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
}

} // namespace

double decodeNumber(Encoding encoding, const QList<quint16>& registers)
{
    switch (encoding) {
    case Encoding::UInt16: return registers.at(0);
    case Encoding::Int16: return static_cast<std::int16_t>(registers.at(0));
    case Encoding::Int32: return static_cast<std::int32_t>(joined(registers));
    case Encoding::Float32: return std::bit_cast<float>(joined(registers));
    case Encoding::Text: break;
    }
    return std::nan("");
}

std::string decodeText(const QList<quint16>& registers)
{
    QByteArray bytes;
    for (const quint16 pair : registers) {
        bytes.append(static_cast<char>(pair >> 8U));
        bytes.append(static_cast<char>(pair & 0xFFU));
    }
    while (bytes.endsWith('\0') || bytes.endsWith(' '))
        bytes.chop(1);
    return QString::fromLatin1(bytes).toStdString();
}

QList<quint16> encodeNumber(Encoding encoding, double value)
{
    const double whole = std::nearbyint(value);
    switch (encoding) {
    case Encoding::UInt16:
        return fits<std::uint16_t>(whole) ? QList{static_cast<quint16>(whole)} : QList<quint16>{};
    case Encoding::Int16:
        return fits<std::int16_t>(whole) ? QList{static_cast<quint16>(static_cast<std::int16_t>(whole))}
                                         : QList<quint16>{};
    case Encoding::Int32:
        return fits<std::int32_t>(whole) ? parted(static_cast<std::uint32_t>(static_cast<std::int32_t>(whole)))
                                         : QList<quint16>{};
    case Encoding::Float32:
        return std::fabs(value) <= std::numeric_limits<float>::max()
                   ? parted(std::bit_cast<std::uint32_t>(static_cast<float>(value)))
                   : QList<quint16>{};
    case Encoding::Text: break;
    }
    return {};
}

QList<quint16> encodeText(std::string_view text, int registers)
{
    const QString wanted = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    QByteArray bytes = wanted.toLatin1();
    if (QString::fromLatin1(bytes) != wanted || bytes.size() > registers * 2)
        return {};
    bytes.append(registers * 2 - bytes.size(), '\0');
    QList<quint16> result;
    for (int i = 0; i < registers; ++i)
        result.append(static_cast<quint16>(static_cast<quint8>(bytes.at(2 * i)) << 8U |
                                           static_cast<quint8>(bytes.at(2 * i + 1))));
    return result;
}

} // namespace zor::monitor
