#pragma once

/// The address of a device as a user writes it.

#include <zor/monitor/link/link.h>

#include <initializer_list>
#include <memory>
#include <stdexcept>

namespace zor::monitor {

/// Why an address cannot be used.
class AddressError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Raises it, with the address in front of the reason, which is put together as message() does.
[[noreturn]] void refuseAddress(const QString& address, const char* english,
                                std::initializer_list<std::string> parts = {});

/// Where a device is.
struct Endpoint {
    std::unique_ptr<Transport> transport;
    std::uint8_t unit;
};

/// What an address connects to, whatever its options: a host with its port, or a serial device. Addresses with the
/// same one share it.
[[nodiscard]] QString peerOf(const QString& address);

/// The endpoint that
///   tcp://HOST:PORT[?unit=N]                                      (the scheme may be left out; port 502)
///   rtu:DEVICE[?unit=N&baud=B&parity=none|even|odd&stop=1|2]      (19200 baud, even, 1 stop bit)
/// names, with unit 1 unless it says another. Raises AddressError. Nothing is connected yet.
[[nodiscard]] Endpoint endpointOf(const QString& address);
/// A link to it.
[[nodiscard]] std::unique_ptr<Link> openLink(const QString& address, int deadlineMilliseconds);

} // namespace zor::monitor
