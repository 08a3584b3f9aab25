#include <zor/monitor/data/message.h>
#include <zor/monitor/link/device_address.h>
#include <zor/monitor/link/rtu_link.h>
#include <zor/monitor/link/tcp_link.h>

#include <QMap>
#include <QStringList>
#include <QUrl>
#include <QUrlQuery>

namespace zor::monitor {
namespace {

constexpr int kUsualPort = 502;
constexpr int kLastUnit = 255;

/// The options after the question mark; each is taken once, and none may be left.
class Options {
public:
    Options(const QString& address, const QString& query) : m_address(address)
    {
        for (const auto& [name, value] : QUrlQuery(query).queryItems()) {
            if (m_options.contains(name))
                refuseAddress(address, QT_TRANSLATE_NOOP("texts", "\"%1\" stands twice"), {name.toStdString()});
            m_options.insert(name, value);
        }
    }

    int number(const QString& name, int usual, int lowest, int highest)
    {
        if (!m_options.contains(name))
            return usual;
        bool isNumber = false;
        const int value = m_options.take(name).toInt(&isNumber);
        if (!isNumber || value < lowest || value > highest)
            refuseAddress(m_address, QT_TRANSLATE_NOOP("texts", "%1 is a number from %2 to %3"),
                          {name.toStdString(), std::to_string(lowest), std::to_string(highest)});
        return value;
    }

    int choice(const QString& name, const QMap<QString, int>& choices, const QString& usual)
    {
        const QString value = m_options.contains(name) ? m_options.take(name) : usual;
        if (!choices.contains(value))
            refuseAddress(m_address, QT_TRANSLATE_NOOP("texts", "%1 is one of %2"),
                          {name.toStdString(), choices.keys().join(", ").toStdString()});
        return choices.value(value);
    }

    void finish() const
    {
        if (!m_options.isEmpty())
            refuseAddress(m_address, QT_TRANSLATE_NOOP("texts", "\"%1\" is not known here"),
                          {m_options.firstKey().toStdString()});
    }

private:
    QString m_address;
    QMap<QString, QString> m_options;
};

Endpoint serialEndpoint(const QString& address)
{
    const QString rest = address.mid(4);
    Options options(address, rest.section('?', 1));
    SerialSettings settings;
    settings.device = rest.section('?', 0, 0);
    if (settings.device.isEmpty())
        refuseAddress(address, QT_TRANSLATE_NOOP("texts", "a serial device is missing, as in rtu:/dev/ttyUSB0"));
    constexpr int kFastest = 4000000;
    settings.baud = options.number("baud", settings.baud, 50, kFastest);
    settings.parity = options.choice("parity", {{"none", 0}, {"even", 2}, {"odd", 3}}, "even");
    settings.stopBits = options.number("stop", settings.stopBits, 1, 2);
    const int unit = options.number("unit", 1, 1, kLastUnit);
    options.finish();
    return {std::make_unique<RtuTransport>(settings), static_cast<std::uint8_t>(unit)};
}

QUrl urlOf(const QString& address)
{
    return QUrl(address.contains("://") ? address : "tcp://" + address, QUrl::StrictMode);
}

Endpoint tcpEndpoint(const QString& address)
{
    const QUrl url = urlOf(address);
    if (!url.isValid() || url.scheme() != "tcp" || url.host().isEmpty() || !url.userInfo().isEmpty() ||
        (!url.path().isEmpty() && url.path() != "/") || url.hasFragment() || url.port(kUsualPort) == 0)
        refuseAddress(address, QT_TRANSLATE_NOOP("texts", "not a device; write tcp://HOST:PORT or rtu:DEVICE"));
    Options options(address, url.query());
    const int unit = options.number("unit", 1, 0, kLastUnit);
    options.finish();
    return {std::make_unique<TcpTransport>(url.host(), static_cast<quint16>(url.port(kUsualPort))),
            static_cast<std::uint8_t>(unit)};
}

} // namespace

void refuseAddress(const QString& address, const char* english, std::initializer_list<std::string> parts)
{
    throw AddressError(address.toStdString() + ": " + message(english, parts));
}

QString peerOf(const QString& address)
{
    if (address.startsWith("rtu:"))
        return address.section('?', 0, 0);
    const QUrl url = urlOf(address);
    return url.host() + ':' + QString::number(url.port(kUsualPort));
}

Endpoint endpointOf(const QString& address)
{
    return address.startsWith("rtu:") ? serialEndpoint(address) : tcpEndpoint(address);
}

std::unique_ptr<Link> openLink(const QString& address, int deadlineMilliseconds)
{
    Endpoint endpoint = endpointOf(address);
    return std::make_unique<Link>(std::move(endpoint.transport), endpoint.unit, deadlineMilliseconds);
}

} // namespace zor::monitor
