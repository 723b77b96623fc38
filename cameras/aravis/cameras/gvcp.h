#pragma once

#include <networkaddress.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The datagrams of the GigE Vision control protocol that the library sends itself: the search for cameras,
/// for which Aravis keeps half of the answer to itself, and the forced address, which Aravis lacks.
namespace ZetoAravis::Gvcp {

using ZetoCameraLibrary::NetworkAddress;
using Datagram = std::vector<std::uint8_t>;

constexpr std::uint16_t port = 3956;

/// What a camera says about itself. Texts are UTF-8.
struct DiscoveryAnswer
{
    std::uint64_t mac = 0; ///< the first byte in the highest place of six
    NetworkAddress address;
    std::string vendor;
    std::string model;
    std::string version;
    std::string serialNumber;
    std::string userName;
};

struct RegisterAnswer
{
    std::uint16_t status = 0; ///< 0 for success
    std::uint32_t value = 0;
};

/// Bootstrap register that tells whether a program controls the camera.
constexpr std::uint32_t controlPrivilegeRegister = 0x0A00;
constexpr std::uint32_t exclusiveAccess = 1; ///< bit of the register: others may not even read
constexpr std::uint32_t controlAccess = 2;   ///< bit of the register: others may read

// Commands. An answer carries the same \a id, which is not 0.
Datagram discoveryCommand(std::uint16_t id);
Datagram readRegisterCommand(std::uint16_t id, std::uint32_t address);
Datagram forceAddressCommand(std::uint16_t id, std::uint64_t mac, const NetworkAddress& address);

// Answers; nothing when \a datagram is not the answer to that command.
std::optional<DiscoveryAnswer> discoveryAnswer(const Datagram& datagram, std::uint16_t id);
std::optional<RegisterAnswer> registerAnswer(const Datagram& datagram, std::uint16_t id);

} // namespace ZetoAravis::Gvcp
