#include "gigeroute.h"

#include <genparamerror.h>

#include <array>

namespace ZetoAravis {
namespace {

GObjectPointer<GInetAddress> inetAddress(std::uint32_t ip)
{
    const std::array<guint8, 4> bytes = {static_cast<guint8>(ip >> 24), static_cast<guint8>(ip >> 16),
                                         static_cast<guint8>(ip >> 8), static_cast<guint8>(ip)};
    return GObjectPointer<GInetAddress>(g_inet_address_new_from_bytes(bytes.data(), G_SOCKET_FAMILY_IPV4));
}

[[noreturn]] void refuse()
{
    throw ZetoGenParam::CodeException(ZetoCam::ErrorNoDevice);
}

bool isAllowed(ZetoCam::AccessMode accessMode, ZetoCam::AccessStatus status)
{
    return status == ZetoCam::AccessStatusReadWrite ||
           (status == ZetoCam::AccessStatusReadOnly && accessMode == ZetoCam::AccessReadOnly);
}

} // namespace

GigERoute::GigERoute(std::string adapterName, Gvcp::DiscoveryAnswer camera)
    : m_adapterName(std::move(adapterName))
    , m_camera(std::move(camera))
{
}

/// The library takes control of every camera that it opens; a reader gives it back.
GObjectPointer<ArvDevice> GigERoute::connect(ZetoCam::AccessMode accessMode)
{
    const auto adapter = networkAdapter(m_adapterName);
    const auto own = adapter ? adapter->addressTowards(m_camera.address) : std::nullopt;
    if (!own || !isMet(own->ip) || !isAllowed(accessMode, accessStatus(*adapter, m_camera.address)))
        refuse();
    const auto ownInet = inetAddress(own->ip);
    const auto cameraInet = inetAddress(m_camera.address.ip);
    auto device =
        openDevice([&](GError** error) { return arv_gv_device_new(ownInet.get(), cameraInet.get(), error); });
    auto* const gvDevice = ARV_GV_DEVICE(device.get());
    if (accessMode == ZetoCam::AccessReadOnly)
        arv_gv_device_leave_control(gvDevice, nullptr);
    else if (!arv_gv_device_is_controller(gvDevice))
        refuse();
    return device;
}

bool GigERoute::isAnswering() const
{
    const auto adapter = networkAdapter(m_adapterName);
    const auto own = adapter ? adapter->addressTowards(m_camera.address) : std::nullopt;
    return own && isMet(own->ip);
}

/// The library asks the camera once a second, and notices when it was restarted meanwhile or obeys another
/// program.
bool GigERoute::isGood(ArvDevice& device, ZetoCam::AccessMode accessMode) const
{
    return accessMode == ZetoCam::AccessReadOnly || arv_gv_device_is_controller(ARV_GV_DEVICE(&device));
}

/// Whether this camera, and not another one, answers at its address.
bool GigERoute::isMet(std::uint32_t ownAddress) const
{
    const auto answer = askCamera(ownAddress, m_camera.address.ip);
    return answer && answer->mac == m_camera.mac && answer->vendor == m_camera.vendor &&
           answer->model == m_camera.model && answer->serialNumber == m_camera.serialNumber;
}

} // namespace ZetoAravis
