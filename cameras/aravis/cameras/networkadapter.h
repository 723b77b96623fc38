#pragma once

#include <networkaddress.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ZetoAravis {

using ZetoCameraLibrary::NetworkAddress;

/// A network adapter of this machine.
struct NetworkAdapter
{
    std::string name; ///< as the system calls it, for example eth0
    bool isLoopback = false;
    std::uint64_t mac = 0;
    std::vector<NetworkAddress> addresses; ///< at least one

    /// The adapter's own address in the subnet of \a camera; nothing when the camera is in a foreign subnet.
    std::optional<NetworkAddress> addressTowards(const NetworkAddress& camera) const;
};

/// The adapters on which Aravis looks for cameras: up, with IPv4, not point-to-point, loopback included; by
/// name.
std::vector<NetworkAdapter> networkAdapters();

/// The one called \a name, if it is there now.
std::optional<NetworkAdapter> networkAdapter(const std::string& name);

} // namespace ZetoAravis
