#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <ZetoCameraApi.h>

#include <chrono>

namespace ZetoAravis {

/// How long a camera that was asked directly has to answer.
constexpr std::chrono::milliseconds answerTime(200);

/// Every camera that answers on the adapter's wire within \a duration, also those in foreign subnets. A
/// camera may be listed more than once.
std::vector<Gvcp::DiscoveryAnswer> searchCameras(const NetworkAdapter& adapter,
                                                 std::chrono::milliseconds duration);

/// Asks the camera at the IPv4 address \a camera, from \a own address, what it is.
std::optional<Gvcp::DiscoveryAnswer> askCamera(std::uint32_t own, std::uint32_t camera);

/// Whether the camera could be opened now. A camera that does not answer gives AccessStatusNoAccess.
ZetoCam::AccessStatus accessStatus(const NetworkAdapter& adapter, const NetworkAddress& camera);

/// Tells the camera with the address \a mac, wherever it is on the adapter's wire, to use \a address. \return
/// whether it could be sent
bool forceAddress(const NetworkAdapter& adapter, std::uint64_t mac, const NetworkAddress& address);

} // namespace ZetoAravis
