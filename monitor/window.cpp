#include "monitor/window.h"

#include "core/frm_Container.h"
#include "platform/qt/looks.h"
#include "units/unit_catalogue.h"

#include <QAction>
#include <QGridLayout>
#include <QMenuBar>
#include <QStatusBar>
#include <QTime>
#include <QToolBar>

namespace zor::monitor {
namespace {

constexpr int kBoxWidth = 260;
constexpr int kBoxHeight = 26;
constexpr int kMessageMilliseconds = 8000;

QString text(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

template <class Set>
void setIfNew(bool now, bool wanted, Set&& set)
{
    if (now != wanted)
        set(wanted);
}

} // namespace

Window::Window(const QString& host, int port, int periodMilliseconds)
    : m_form(new QWidget(this)), m_container(*m_form, core::pictureData), m_state(new QLabel(this)),
      m_address(host + ':' + QString::number(port)), m_link(host, port), m_poller(m_link, periodMilliseconds)
{
    setWindowTitle("ZorSmartControls Monitor");
    setCentralWidget(m_form);
    build();
    buildMenus();
    m_state->setTextFormat(Qt::PlainText);
    m_state->setText(m_address + ": connecting");
    statusBar()->addPermanentWidget(m_state);
    m_container.setUserMode(true);
    m_poller.onRead = [this](std::size_t parameter, const Reply& reply) { hear(parameter, reply); };
    m_poller.onIdentity = [this](const std::string& type, const std::string& version) {
        for (const auto& box : m_boxes) {
            box->DeviceType(type);
            box->DeviceVersion(version);
        }
    };
    m_poller.onRound = [this](bool answered) {
        m_healthy = answered;
        m_state->setText(m_address + (answered ? ": connected, read at " : ": no answer, tried at ") +
                         QTime::currentTime().toString("HH:mm:ss"));
    };
}

Window::~Window()
{
    // The controls' widgets are children of the form; they go before it does.
    for (auto& box : m_boxes)
        box.reset();
}

void Window::build()
{
    auto* grid = new QGridLayout(m_form);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const REGISTER_TYPE bank : {InputRegister, HoldingRegister}) {
        auto* heading = new QLabel(bank == InputRegister ? "Measured values" : "Settings", m_form);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        grid->addWidget(heading, row++, 0, 1, 2);
        for (std::size_t i = 0; i < kParameters.size(); ++i) {
            if (kParameters[i].bank == bank)
                addRow(*grid, i, row++);
        }
    }
    grid->setRowStretch(row, 1);
}

void Window::addRow(QGridLayout& grid, std::size_t parameter, int row)
{
    const Parameter& p = kParameters[parameter];
    auto& box = m_boxes[parameter] = ctx_ZorTextBox::create(m_container);
    box->initialiseProperties();
    box->DeviceTag(p.tag);
    box->RegisterType(p.bank);
    box->UnitType(p.unitType);
    box->DeviceUnit(p.deviceUnit);
    box->OutputUnit(p.outputUnit);
    box->DefaultUnit(p.outputUnit);
    box->InvalidEntryEnable(p.minimum != 0 || p.maximum != 0);
    box->MinValue(p.minimum);
    box->MaxValue(p.maximum);
    if (p.encoding == Encoding::Text) {
        box->EntryType(Text);
        box->MaxLength(static_cast<std::int16_t>(p.registers * 2));
    }
    box->DeviceTypeSupported("ZT100");
    box->DeviceType("ZT100");
    box->WaitingForData(true);

    QWidget& widget = platform::qt::widgetOf(box->surface());
    widget.setFixedSize(kBoxWidth, kBoxHeight);
    auto* caption = new QLabel(text(p.caption), m_form);
    caption->setBuddy(&platform::qt::widgetOf(*box->widget(1)));
    grid.addWidget(caption, row, 0);
    grid.addWidget(&widget, row, 1, Qt::AlignLeft);
}

void Window::buildMenus()
{
    QMenu* device = menuBar()->addMenu("&Device");
    QAction* write =
        device->addAction("&Write edits", QKeySequence("Ctrl+Return"), this, [this] { writeEdits(); });
    QAction* undo = device->addAction("&Undo all", QKeySequence("Ctrl+Shift+Z"), this, [this] { undoAll(); });
    device->addSeparator();
    device->addAction("&Quit", QKeySequence::Quit, this, [this] { close(); });
    QToolBar* bar = addToolBar("Device");
    bar->setMovable(false);
    bar->addAction(write);
    bar->addAction(undo);

    QMenu* all = menuBar()->addMenu("&Units");
    for (std::size_t i = 0; i < kParameters.size(); ++i) {
        const units::UnitTypeRow* type = units::rowOf(kParameters[i].unitType);
        if (type == nullptr || type->first == type->last)
            continue;
        QMenu* menu = all->addMenu(text(kParameters[i].caption));
        for (std::int32_t unit = type->first; unit <= type->last; ++unit) {
            const QString label = text(fc_GetUnitLabel(MEAS_TYPE{unit}));
            menu->addAction(label, this, [this, i, unit] {
                try {
                    m_boxes[i]->OutputUnit(MEAS_TYPE{unit});
                } catch (const std::exception& error) {
                    say(QString("The value cannot be shown in that unit: %1").arg(error.what()));
                }
            });
        }
    }
}

void Window::say(const QString& message) { statusBar()->showMessage(message, kMessageMilliseconds); }

void Window::hear(std::size_t parameter, const Reply& reply)
{
    ctx_ZorTextBox& box = *m_boxes[parameter];
    const bool answered = reply.outcome == Outcome::Answered;
    setIfNew(box.WaitingForData(), false, [&](bool on) { box.WaitingForData(on); });
    setIfNew(box.CFail(), reply.outcome == Outcome::NoAnswer, [&](bool on) { box.CFail(on); });
    setIfNew(box.DataNotAvailable(), reply.outcome == Outcome::Refused,
             [&](bool on) { box.DataNotAvailable(on); });
    if (!answered)
        return;
    const Parameter& p = kParameters[parameter];
    if (p.encoding == Encoding::Text)
        showValue(parameter, decodeText(reply.registers));
    else
        showValue(parameter, decodeNumber(p.encoding, reply.registers));
}

void Window::showValue(std::size_t parameter, const Variant& value)
{
    ctx_ZorTextBox& box = *m_boxes[parameter];
    const bool changed = !(m_last[parameter] == value);
    const bool known = !m_last[parameter].isEmpty();
    m_last[parameter] = value;
    // An edit is the operator's until he writes or undoes it; he is told that the device has moved on.
    if (box.DataModified() && !m_written[parameter]) {
        if (changed && known)
            box.DataChanged(true);
        return;
    }
    m_written[parameter] = false;
    if (!changed && !box.DataModified())
        return;
    try {
        box.DeviceValue(value);
    } catch (const std::exception&) {
        // A device may send what is no number of this unit.
        box.DataNotAvailable(true);
    }
}

void Window::writeEdits()
{
    bool any = false;
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        if (!m_boxes[i]->DataModified())
            continue;
        any = true;
        writeEdit(i);
    }
    if (!any)
        say("Nothing to write");
}

void Window::writeEdit(std::size_t parameter)
{
    ctx_ZorTextBox& box = *m_boxes[parameter];
    const Parameter& p = kParameters[parameter];
    const QString caption = text(p.caption);
    try {
        box.s_ForceOutputValueUpdate();
    } catch (const std::exception& error) {
        return say(QString("%1: not written, %2").arg(caption, error.what()));
    }
    if (box.InvalidEntry() || p.bank != HoldingRegister)
        return say(caption + ": not written, the entry is not valid");
    const Variant value = box.OutputValue();
    const bool numeric = p.encoding != Encoding::Text;
    const std::optional<double> number = validNumber(value);
    if (numeric && !number)
        return say(caption + ": not written, the entry is not a number");
    const QList<quint16> registers =
        numeric ? encodeNumber(p.encoding, *number) : encodeText(value.toText(), p.registers);
    if (registers.isEmpty())
        return say(caption + ": not written, the device cannot hold the entry");
    m_poller.write(parameter, registers, [this, parameter, caption](const Reply& reply) {
        if (reply.outcome == Outcome::Answered) {
            m_written[parameter] = true;
            say(caption + ": written");
            m_poller.readNow(parameter);
        } else if (reply.outcome == Outcome::Refused) {
            say(QString("%1: the device refused the value (exception %2)").arg(caption).arg(reply.exception));
        } else {
            say(caption + ": unconfirmed, the device did not answer");
        }
    });
}

void Window::undoAll()
{
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        if (m_boxes[i]->DataModified() && !m_last[i].isEmpty())
            m_boxes[i]->DeviceValue(m_last[i]);
    }
}

std::string Window::report()
{
    std::string lines;
    for (const auto& box : m_boxes) {
        const auto& field = dynamic_cast<const platform::TextField&>(*box->widget(1));
        const char* state = box->CFail()              ? "communication failure"
                            : box->WaitingForData()   ? "waiting"
                            : box->DataNotAvailable() ? "not available"
                                                      : "live";
        lines.append(box->DeviceTag()).append("  ").append(field.text()).append(" ");
        lines.append(box->UnitLabelCaption()).append("  ").append(state).append("\n");
    }
    return lines;
}

} // namespace zor::monitor
