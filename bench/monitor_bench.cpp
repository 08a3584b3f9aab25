// The monitor as a process of its own, with a device in this one: from its start until it rests with the first
// values on screen, and what it takes to follow a thousand values ten times a second. Times are the processor time
// of the monitor's process, memory is what it had at most.

#include <zor/bench/qt_application.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QModbusTcpServer>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QThread>
#include <benchmark/benchmark.h>

#include <ctime>

namespace {

using benchmark::State;

/// A device whose registers all hold another value with each read.
class Device final : public QModbusTcpServer {
public:
    explicit Device(int registers)
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        m_port = probe.serverPort();
        probe.close();
        setMap({{QModbusDataUnit::HoldingRegisters,
                 {QModbusDataUnit::HoldingRegisters, 0, static_cast<quint16>(registers)}}});
        setConnectionParameter(NetworkAddressParameter, "127.0.0.1");
        setConnectionParameter(NetworkPortParameter, m_port);
        setServerAddress(1);
        connectDevice();
    }
    [[nodiscard]] int reads() const { return m_reads; }
    [[nodiscard]] QString address() const { return QString("tcp://127.0.0.1:%1").arg(m_port); }

protected:
    bool readData(QModbusDataUnit* unit) const override
    {
        ++m_reads;
        for (qsizetype i = 0; i < static_cast<qsizetype>(unit->valueCount()); ++i)
            unit->setValue(i, static_cast<quint16>(m_reads + i));
        return true;
    }

private:
    int m_port = 0;
    mutable int m_reads = 0;
};

/// A running monitor.
class Monitor {
public:
    Monitor(const QStringList& arguments, const Device& device)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        m_process.setProcessEnvironment(environment);
        m_process.start(ZOR_MONITOR, arguments + QStringList{"--device", device.address()});
        m_process.waitForStarted();
    }
    ~Monitor()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;

    /// Seconds of processor time since its start.
    [[nodiscard]] double seconds() const
    {
        clockid_t clock{};
        timespec time{};
        clock_getcpuclockid(static_cast<pid_t>(m_process.processId()), &clock);
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }
    /// The most memory that it had, in bytes.
    [[nodiscard]] double memory() const
    {
        QFile file(QString("/proc/%1/status").arg(m_process.processId()));
        file.open(QIODevice::ReadOnly);
        const QByteArray status = file.readAll();
        constexpr int kKilo = 1024;
        return status.mid(status.indexOf("VmHWM:") + 6).trimmed().split(' ').front().toDouble() * kKilo;
    }
    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QProcess m_process;
};

void serveFor(int milliseconds)
{
    for (const QDeadlineTimer end(milliseconds); !end.hasExpired(); QThread::msleep(1))
        QCoreApplication::processEvents();
}

/// Serves until the monitor has read and then done nothing for a while.
bool serveUntilIdle(const Device& device, const Monitor& monitor)
{
    constexpr int kWhile = 100;
    constexpr double kNothing = 0.001;
    for (double before = -1; monitor.isRunning();) {
        const double now = monitor.seconds();
        if (device.reads() > 0 && now - before < kNothing)
            return true;
        before = now;
        serveFor(kWhile);
    }
    return false;
}

/// A parameter file, and a form file that shows all of it.
struct Files {
    Files(std::int64_t parameters, std::int64_t groups)
    {
        QString text;
        QString form;
        for (int i = 0; i < parameters; ++i) {
            text += QString("%1{\"tag\": \"P%2\", \"bank\": \"holding\", \"address\": %2, \"type\": \"uint16\", "
                            "\"access\": \"write\", \"group\": \"Group %3\"}")
                        .arg(i == 0 ? "" : ",\n")
                        .arg(i)
                        .arg(i * groups / parameters);
            form += QString("<widget class=\"zor::ZorTextBox\" name=\"w%1\"><property name=\"DeviceTag\"><string>"
                            "P%1</string></property></widget>")
                        .arg(i);
        }
        write("parameters.json", "{\"parameters\": [" + text + "]}");
        write("form.ui", "<ui version=\"4.0\"><class>F</class><widget class=\"QWidget\" name=\"F\">" + form +
                             "</widget></ui>");
    }
    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(name); }

private:
    void write(const char* name, const QString& text) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(text.toUtf8());
    }
    QTemporaryDir m_folder;
};

/// As many parameters as the first argument says, in as many groups as the second.
void start(State& state, bool hasForm)
{
    zor::bench::startQt();
    const Files files(state.range(0), state.range(1));
    QStringList arguments{"--period", "60000", "--parameters", files.path("parameters.json")};
    if (hasForm)
        arguments += {"--form", files.path("form.ui")};
    for (auto _ : state) {
        const Device device(static_cast<int>(state.range(0)));
        const Monitor monitor(arguments, device);
        if (!serveUntilIdle(device, monitor))
            state.SkipWithError("the monitor has ended");
        state.SetIterationTime(monitor.seconds());
        state.counters["bytes"] = monitor.memory();
    }
}

/// The time is that of a second's work.
void follow(State& state)
{
    zor::bench::startQt();
    constexpr int kSeconds = 2;
    constexpr int kSecond = 1000;
    const Files files(state.range(0), 1);
    for (auto _ : state) {
        const Device device(static_cast<int>(state.range(0)));
        const Monitor monitor({"--period", "100", "--parameters", files.path("parameters.json")}, device);
        while (device.reads() == 0 && monitor.isRunning())
            serveFor(1);
        serveFor(kSecond);
        const double before = monitor.seconds();
        serveFor(kSeconds * kSecond);
        if (!monitor.isRunning())
            state.SkipWithError("the monitor has ended");
        state.SetIterationTime((monitor.seconds() - before) / kSeconds);
    }
}

void once(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(start, made, false)
    ->Name("start")
    ->ArgsProduct({{10, 100, 1000, 2000, 10'000}, {50}})
    ->Apply(once);
BENCHMARK_CAPTURE(start, made, false)->Name("start")->Args({7, 1})->Apply(once);
BENCHMARK_CAPTURE(start, drawn, true)->Name("start with a form file")->Args({1000, 1})->Apply(once);
BENCHMARK(follow)->Name("follow ten times a second")->Arg(1000)->Apply(once);

} // namespace
