#include "udpsocket.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace ZetoAravis {
namespace {

sockaddr_in socketAddress(std::uint32_t address, std::uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(address);
    return result;
}

/// Milliseconds until \a deadline, rounded up, so that a wait never ends before.
int remaining(UdpSocket::Deadline deadline)
{
    const auto rest =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(rest.count(), 0));
}

} // namespace

UdpSocket::UdpSocket(std::uint32_t localAddress, std::uint16_t port)
    : m_descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
{
    const int on = 1;
    const sockaddr_in local = socketAddress(localAddress, port);
    setsockopt(m_descriptor, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    if (bind(m_descriptor, reinterpret_cast<const sockaddr*>(&local), sizeof local) == 0)
        return;
    const int code = errno;
    close(m_descriptor);
    throw std::system_error(code, std::generic_category(), "UDP socket");
}

UdpSocket::~UdpSocket()
{
    close(m_descriptor);
}

bool UdpSocket::send(const Datagram& datagram, std::uint32_t address, std::uint16_t port)
{
    const sockaddr_in to = socketAddress(address, port);
    return sendto(m_descriptor, datagram.data(), datagram.size(), 0, reinterpret_cast<const sockaddr*>(&to),
                  sizeof to) == static_cast<ssize_t>(datagram.size());
}

std::optional<UdpSocket::Datagram> UdpSocket::receive(const std::vector<std::unique_ptr<UdpSocket>>& sockets,
                                                      Deadline deadline)
{
    std::vector<pollfd> waiting;
    waiting.reserve(sockets.size());
    for (const auto& each : sockets)
        waiting.push_back({each->m_descriptor, POLLIN, 0});
    while (const int rest = remaining(deadline)) {
        const int ready = poll(waiting.data(), waiting.size(), rest);
        for (const auto& each : sockets) {
            if (auto datagram = each->take())
                return datagram;
        }
        if (ready < 0 && errno != EINTR)
            break;
    }
    return std::nullopt;
}

std::optional<UdpSocket::Datagram> UdpSocket::take() const
{
    Datagram datagram(1500); // more than any answer
    const ssize_t size = recv(m_descriptor, datagram.data(), datagram.size(), 0);
    if (size < 0)
        return std::nullopt;
    datagram.resize(static_cast<std::size_t>(size));
    return datagram;
}

} // namespace ZetoAravis
