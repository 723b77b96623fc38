#include "networkaddress.h"

namespace ZetoCameraLibrary {

bool isReachable(const NetworkAddress& camera, const NetworkAddress& adapter)
{
    return (camera.ip & adapter.mask) == (adapter.ip & adapter.mask);
}

bool isUsable(const NetworkAddress& camera, const NetworkAddress& adapter)
{
    const uint32_t host = camera.ip & ~adapter.mask;
    const bool isHost = camera.ip >= ipv4(1, 0, 0, 0) && host != 0 && host != ~adapter.mask;
    return isHost && isReachable(camera, adapter) && camera.ip != adapter.ip && camera.mask == adapter.mask;
}

} // namespace ZetoCameraLibrary
