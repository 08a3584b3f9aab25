#include <zor/monitor/data/file_content.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/device/device.h>
#include <zor/monitor/link/device_address.h>

#include <utility>

namespace zor::monitor {

ParameterFile loadParameters(const DeviceEntry& entry)
{
    const QString name = entry.parameters.isEmpty() ? QString(":/monitor/demo.json") : entry.parameters;
    return readParameterFile(contentOf(name.toStdString()), name.toStdString());
}

Device::Device(DeviceEntry entry, ParameterFile file)
    : m_entry(std::move(entry)),
      m_log(m_entry.record.isEmpty() ? std::nullopt : std::optional<Log>(std::in_place, m_entry.record)),
      m_frames(m_entry.frames.isEmpty() ? std::nullopt : std::optional<FrameFile>(std::in_place, m_entry.frames)),
      m_address(addressFor(file)),
      m_session(openLink(m_address, m_entry.timeout > 0 ? m_entry.timeout : m_entry.period), std::move(file),
                m_log ? &*m_log : nullptr)
{
    if (m_frames)
        m_frames->follow(m_session.link().frames());
}

void Device::connectTo(const QString& address)
{
    m_session.connectTo(endpointOf(address));
    m_entry.address = address;
    m_simulator.reset();
}

void Device::setPeriod(int milliseconds)
{
    m_entry.period = milliseconds;
    m_session.setPeriod(milliseconds);
}

void Device::start()
{
    if (m_log)
        m_session.readEverything();
    m_session.start(m_entry.period, m_entry.timeout);
}

QString Device::addressFor(const ParameterFile& file)
{
    if (!m_entry.isSimulated())
        return m_entry.address;
    m_simulated = file;
    m_simulator = std::make_unique<Simulator>(m_simulated);
    if (!m_simulator->start())
        throw std::runtime_error(
            message(QT_TRANSLATE_NOOP("texts", "the simulated device: %1"), {m_simulator->error().toStdString()}));
    return QString("tcp://127.0.0.1:%1").arg(m_simulator->port());
}

} // namespace zor::monitor
