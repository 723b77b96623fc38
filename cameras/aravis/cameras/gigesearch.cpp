#include "gigesearch.h"

#include "udpsocket.h"

#include <atomic>
#include <system_error>

namespace ZetoAravis {
namespace {

using Gvcp::Datagram;
using Sockets = std::vector<std::unique_ptr<UdpSocket>>;
using Clock = std::chrono::steady_clock;

constexpr std::uint32_t everyone = 0xFFFFFFFF;

/// Answers to one command are told from late answers to another.
std::uint16_t nextId()
{
    static std::atomic<std::uint16_t> last{0};
    const std::uint16_t id = ++last;
    return id ? id : ++last;
}

/// A socket on each address of the adapter; an address may have gone meanwhile.
Sockets openSockets(const std::vector<std::uint32_t>& ownAddresses)
{
    Sockets sockets;
    for (const std::uint32_t own : ownAddresses) {
        try {
            sockets.push_back(std::make_unique<UdpSocket>(own));
        } catch (const std::system_error&) {
            continue;
        }
    }
    return sockets;
}

std::vector<std::uint32_t> ipsOf(const NetworkAdapter& adapter)
{
    std::vector<std::uint32_t> ips;
    for (const NetworkAddress& address : adapter.addresses)
        ips.push_back(address.ip);
    return ips;
}

bool sendToAll(const Sockets& sockets, const Datagram& command, std::uint32_t address)
{
    bool anySent = false;
    for (const auto& socket : sockets)
        anySent = socket->send(command, address, Gvcp::port) || anySent;
    return anySent;
}

/// Sends \a command to one camera. \return what \a read makes of the first datagram that it takes for the
/// answer
template <class Answer>
std::optional<Answer> ask(std::uint32_t own, std::uint32_t camera, std::uint16_t id, const Datagram& command,
                          std::optional<Answer> (*read)(const Datagram&, std::uint16_t))
{
    const Sockets sockets = openSockets({own});
    sendToAll(sockets, command, camera);
    const auto deadline = Clock::now() + answerTime;
    while (const auto datagram = UdpSocket::receive(sockets, deadline)) {
        if (auto answer = read(*datagram, id))
            return answer;
    }
    return std::nullopt;
}

std::optional<Gvcp::RegisterAnswer> readRegister(std::uint32_t own, std::uint32_t camera,
                                                 std::uint32_t address)
{
    const std::uint16_t id = nextId();
    return ask(own, camera, id, Gvcp::readRegisterCommand(id, address), Gvcp::registerAnswer);
}

} // namespace

std::vector<Gvcp::DiscoveryAnswer> searchCameras(const NetworkAdapter& adapter,
                                                 std::chrono::milliseconds duration)
{
    const std::uint16_t id = nextId();
    const Sockets sockets = openSockets(ipsOf(adapter));
    sendToAll(sockets, Gvcp::discoveryCommand(id), everyone);
    const auto deadline = Clock::now() + duration;
    std::vector<Gvcp::DiscoveryAnswer> answers;
    while (const auto datagram = UdpSocket::receive(sockets, deadline)) {
        if (auto answer = Gvcp::discoveryAnswer(*datagram, id))
            answers.push_back(std::move(*answer));
    }
    return answers;
}

std::optional<Gvcp::DiscoveryAnswer> askCamera(std::uint32_t own, std::uint32_t camera)
{
    const std::uint16_t id = nextId();
    return ask(own, camera, id, Gvcp::discoveryCommand(id), Gvcp::discoveryAnswer);
}

ZetoCam::AccessStatus accessStatus(const NetworkAdapter& adapter, const NetworkAddress& camera)
{
    const auto own = adapter.addressTowards(camera);
    if (!own)
        return ZetoCam::AccessStatusSubnetMismatch;
    const auto privilege = readRegister(own->ip, camera.ip, Gvcp::controlPrivilegeRegister);
    if (!privilege || privilege->status != 0 || (privilege->value & Gvcp::exclusiveAccess))
        return ZetoCam::AccessStatusNoAccess;
    return privilege->value & Gvcp::controlAccess ? ZetoCam::AccessStatusReadOnly
                                                  : ZetoCam::AccessStatusReadWrite;
}

bool forceAddress(const NetworkAdapter& adapter, std::uint64_t mac, const NetworkAddress& address)
{
    const Sockets sockets = openSockets(ipsOf(adapter));
    return sendToAll(sockets, Gvcp::forceAddressCommand(nextId(), mac, address), everyone);
}

} // namespace ZetoAravis
