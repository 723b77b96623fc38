#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ZetoAravis {

/// A socket for datagrams on one address of this machine. IPv4 addresses have the first octet in the highest
/// byte.
class UdpSocket
{
public:
    using Datagram = std::vector<std::uint8_t>;
    using Deadline = std::chrono::steady_clock::time_point;

    /// Bound to \a localAddress on any \a port (0) or that one. \throws std::system_error when the address is
    /// not one of this machine.
    explicit UdpSocket(std::uint32_t localAddress, std::uint16_t port = 0);
    ~UdpSocket();
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;

    /// \return false when the system cannot send it
    bool send(const Datagram& datagram, std::uint32_t address, std::uint16_t port);

    /// The next datagram that arrives at one of \a sockets; nothing when \a deadline passes before.
    static std::optional<Datagram> receive(const std::vector<std::unique_ptr<UdpSocket>>& sockets,
                                           Deadline deadline);

private:
    std::optional<Datagram> take() const;

    int m_descriptor;
};

} // namespace ZetoAravis
