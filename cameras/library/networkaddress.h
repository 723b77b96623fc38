#pragma once

#include <cstdint>

namespace ZetoCameraLibrary {

/// An IPv4 configuration; the first octet is in the highest byte.
struct NetworkAddress
{
    uint32_t ip = 0;
    uint32_t mask = 0;
    uint32_t gateway = 0;
};

constexpr uint32_t ipv4(uint32_t a, uint32_t b, uint32_t c, uint32_t d)
{
    return a << 24 | b << 16 | c << 8 | d;
}

/// Whether a program behind \a adapter can talk to a camera at \a camera.
bool isReachable(const NetworkAddress& camera, const NetworkAddress& adapter);

/// Whether a camera that is given \a camera still answers a search of \a adapter: its address is one for a
/// host, in the adapter's subnet, not the adapter's own, and its mask is the adapter's.
bool isUsable(const NetworkAddress& camera, const NetworkAddress& adapter);

} // namespace ZetoCameraLibrary
