#include "gigeinterface.h"

#include "aravisversion.h"

namespace ZetoAravis {
namespace {

/// As Aravis itself calls its cameras. Without a serial number the MAC address tells them apart.
std::string nameOf(const Gvcp::DiscoveryAnswer& answer)
{
    return answer.vendor + "-" + answer.model + "-" +
           (answer.serialNumber.empty() ? std::to_string(answer.mac) : answer.serialNumber);
}

} // namespace

GigEInterface::GigEInterface(ZetoCam::System& system, const NetworkAdapter& adapter)
    : SearchedInterface(system)
    , m_adapterName(adapter.name)
    , m_id("aravis.gev." + adapter.name)
    , m_description((adapter.isLoopback ? "Loopback adapter " : "Network adapter ") + adapter.name)
{
}

const char* GigEInterface::GetDescription()
{
    return m_description.c_str();
}

int32_t GigEInterface::GetType()
{
    return ZetoCam::InterfaceGigEVision;
}

const char* GigEInterface::GetID()
{
    return m_id.c_str();
}

const char* GigEInterface::GetVersion()
{
    return aravisVersion();
}

uint64_t GigEInterface::adapterMac() const
{
    const auto adapter = networkAdapter(m_adapterName);
    return adapter ? adapter->mac : 0;
}

NetworkAddress GigEInterface::adapterAddress() const
{
    const auto adapter = networkAdapter(m_adapterName);
    return adapter ? adapter->addresses.front() : NetworkAddress();
}

int32_t GigEInterface::search(std::chrono::milliseconds timeout, std::vector<ZetoCam::DeviceInfo*>& answering)
{
    const auto adapter = networkAdapter(m_adapterName);
    if (!adapter)
        return ZetoCam::ErrorNoDevice;
    std::map<std::string, ZetoCam::DeviceInfo*> found;
    for (const Gvcp::DiscoveryAnswer& answer : searchCameras(*adapter, timeout)) {
        GigEDeviceInfo& camera = info(answer);
        if (found.emplace(camera.GetID(), &camera).second)
            camera.update(answer, accessStatus(*adapter, answer.address));
    }
    for (const auto& [id, camera] : found)
        answering.push_back(camera);
    return ZetoCam::Success;
}

GigEDeviceInfo& GigEInterface::info(const Gvcp::DiscoveryAnswer& answer)
{
    const std::string id = cameraId(m_id, nameOf(answer));
    const std::lock_guard guard(m_mutex);
    auto& known = m_infos[id];
    if (!known)
        known = std::make_unique<GigEDeviceInfo>(*this, id, m_adapterName);
    return *known;
}

} // namespace ZetoAravis
