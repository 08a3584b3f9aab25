#include <zor/monitor/link/failure.h>

#include <QtGlobal>

#include <array>

namespace zor::monitor {
namespace {

struct Row {
    std::string_view words;
    std::string_view advice;
};

constexpr std::string_view kForeign =
    QT_TRANSLATE_NOOP("advice", "What answers does not keep to the protocol, or two programs talk on the same "
                                "line; see the bytes in the frames.");
constexpr std::string_view kLine = QT_TRANSLATE_NOOP(
    "advice",
    "Check baud rate, parity and stop bits, the termination of the line, and that nobody else is sending on it.");
constexpr std::string_view kWait =
    QT_TRANSLATE_NOOP("advice", "Wait a little; if it stays so, restart the device.");

// In the order of Fault.
constexpr std::array<Row, 25> kFaults{{
    {"", ""},
    {"", QT_TRANSLATE_NOOP("advice", "The operating system says why; check cable, adapter and address.")},
    {QT_TRANSLATE_NOOP("reasons", "the connection was refused"),
     QT_TRANSLATE_NOOP("advice",
                       "The host is there, but nothing listens on this port. Check the port (usually 502), that "
                       "Modbus TCP is switched on in the device, and that it has a connection to spare.")},
    {QT_TRANSLATE_NOOP("reasons", "the device closed the connection"),
     QT_TRANSLATE_NOOP("advice", "The device may allow too few connections at a time, or only certain addresses. "
                                 "End other programs that are connected to it.")},
    {QT_TRANSLATE_NOOP("reasons", "there is no such host"),
     QT_TRANSLATE_NOOP("advice", "Check the spelling of the name, or write the address in numbers.")},
    {QT_TRANSLATE_NOOP("reasons", "the network does not reach the device"),
     QT_TRANSLATE_NOOP("advice", "Check cable and link lamp, the address and mask of this computer, and the way "
                                 "(gateway) to the device's network.")},
    {QT_TRANSLATE_NOOP("reasons", "the host does not answer"),
     QT_TRANSLATE_NOOP("advice", "Check that the device is switched on, its address and cable, and that no "
                                 "firewall stands between. A slow network needs a longer timeout.")},
    {QT_TRANSLATE_NOOP("reasons", "there is no such serial port"),
     QT_TRANSLATE_NOOP("advice", "Check that the adapter is plugged in, and the name of the port.")},
    {QT_TRANSLATE_NOOP("reasons", "the serial port cannot be opened"),
     QT_TRANSLATE_NOOP("advice", "End the program that has the port open; on Linux the user must be in the port's "
                                 "group, usually dialout.")},
    {QT_TRANSLATE_NOOP("reasons", "the serial port is gone"),
     QT_TRANSLATE_NOOP("advice", "Check that the adapter is plugged in.")},
    {QT_TRANSLATE_NOOP("reasons", "no complete answer in time"),
     QT_TRANSLATE_NOOP("advice",
                       "Connected, but nothing came back. Check the unit number; behind a gateway also the "
                       "wiring, baud rate and parity of its line. A slow device needs a longer timeout.")},
    {QT_TRANSLATE_NOOP("reasons", "no complete answer in time"),
     QT_TRANSLATE_NOOP("advice",
                       "Check the unit number, baud rate, parity and stop bits, the wiring (A and B may be "
                       "exchanged) and that the device is switched on. A slow device needs a longer timeout.")},
    {QT_TRANSLATE_NOOP("reasons", "the connection was lost"),
     QT_TRANSLATE_NOOP("advice", "It is connected anew with the next request.")},
    {QT_TRANSLATE_NOOP("reasons", "a reply to another transaction"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "a reply in another protocol"),
     QT_TRANSLATE_NOOP("advice", "What listens on this port is not Modbus TCP; check the port.")},
    {QT_TRANSLATE_NOOP("reasons", "a reply of an impossible length"),
     QT_TRANSLATE_NOOP("advice", "What listens on this port is not Modbus TCP; check the port.")},
    {QT_TRANSLATE_NOOP("reasons", "a reply from another unit"),
     QT_TRANSLATE_NOOP("advice", "Check the unit number; on a serial line also baud rate and parity, and that no "
                                 "two devices have the same number.")},
    {QT_TRANSLATE_NOOP("reasons", "more bytes than the reply has"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "a wrong checksum"), kLine},
    {QT_TRANSLATE_NOOP("reasons", "a reply of another length than was asked for"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "an empty reply"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "an exception of the wrong length"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "a reply to another function"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "a reply to another write"), kForeign},
    {QT_TRANSLATE_NOOP("reasons", "bytes that nobody asked for"), kForeign},
}};

// By code; the protocol leaves 0, 7 and 9 without a meaning for these requests.
constexpr std::array<Row, 12> kExceptions{{
    {"", ""},
    {QT_TRANSLATE_NOOP("reasons", "the device does not know this function"),
     QT_TRANSLATE_NOOP(
         "advice",
         "Check the bank in the parameter file, and whether the device writes single registers or several.")},
    {QT_TRANSLATE_NOOP("reasons", "the device does not have this address"),
     QT_TRANSLATE_NOOP("advice",
                       "Check bank and address in the parameter file: manuals often count from 1, 40001 or 30001. "
                       "The device may also take fewer registers in a request, or no gaps between them.")},
    {QT_TRANSLATE_NOOP("reasons", "the device does not take this value"),
     QT_TRANSLATE_NOOP("advice", "Check the limits of the parameter in the device's manual.")},
    {QT_TRANSLATE_NOOP("reasons", "the device has failed"), kWait},
    {QT_TRANSLATE_NOOP("reasons", "the device is still working on it"), kWait},
    {QT_TRANSLATE_NOOP("reasons", "the device is busy"), kWait},
    {"", ""},
    {QT_TRANSLATE_NOOP("reasons", "the device's memory is damaged"),
     QT_TRANSLATE_NOOP("advice", "The device needs repair.")},
    {"", ""},
    {QT_TRANSLATE_NOOP("reasons", "the gateway has no path to the device"),
     QT_TRANSLATE_NOOP("advice", "Check the unit number and the gateway's table of units and lines.")},
    {QT_TRANSLATE_NOOP("reasons", "the device behind the gateway does not answer"),
     QT_TRANSLATE_NOOP("advice", "The gateway is there, the device is not. Check the unit number, that the device "
                                 "is switched on, and the wiring, baud rate and parity of the gateway's line.")},
}};

} // namespace

std::string_view reasonOf(Fault fault) noexcept { return kFaults[static_cast<std::size_t>(fault)].words; }

std::string_view exceptionMeaning(std::uint8_t exception) noexcept
{
    return exception < kExceptions.size() ? kExceptions[exception].words : std::string_view();
}

std::string_view adviceOn(Fault fault, std::uint8_t exception) noexcept
{
    if (exception == 0)
        return kFaults[static_cast<std::size_t>(fault)].advice;
    return exception < kExceptions.size() ? kExceptions[exception].advice : std::string_view();
}

} // namespace zor::monitor
