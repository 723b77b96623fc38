#include "gigedeviceinfo.h"

#include "gigeroute.h"

#include <algorithm>
#include <utility>

namespace ZetoAravis {

GigEDeviceInfo::GigEDeviceInfo(ZetoCam::Interface& owner, std::string id, std::string adapterName)
    : AravisDeviceInfo(owner, std::move(id))
    , m_adapterName(std::move(adapterName))
{
}

void GigEDeviceInfo::update(const Gvcp::DiscoveryAnswer& answer, ZetoCam::AccessStatus status)
{
    setTexts({answer.vendor, answer.model, answer.version, answer.serialNumber, answer.userName});
    const std::lock_guard guard(m_mutex);
    m_answer = answer;
    m_status = status;
}

int32_t GigEDeviceInfo::GetAccessStatus()
{
    const std::lock_guard guard(m_mutex);
    return m_status;
}

uint64_t GigEDeviceInfo::GetMACAddress()
{
    return answer().mac;
}

uint32_t GigEDeviceInfo::GetIPAddress()
{
    return answer().address.ip;
}

uint32_t GigEDeviceInfo::GetSubnetMask()
{
    return answer().address.mask;
}

uint32_t GigEDeviceInfo::GetGateway()
{
    return answer().address.gateway;
}

int32_t GigEDeviceInfo::ForceIP(uint32_t address, uint32_t mask, uint32_t gateway)
{
    const std::uint64_t mac = answer().mac;
    if (mac == 0)
        return ZetoCam::ErrorInvalidState;
    const auto adapter = networkAdapter(m_adapterName);
    if (!adapter)
        return ZetoCam::ErrorNoDevice;
    const auto answers = searchCameras(*adapter, answerTime);
    const auto camera = std::find_if(answers.begin(), answers.end(),
                                     [mac](const Gvcp::DiscoveryAnswer& each) { return each.mac == mac; });
    if (camera == answers.end())
        return ZetoCam::ErrorNoDevice;
    const ZetoCam::AccessStatus status = accessStatus(*adapter, camera->address);
    if (status == ZetoCam::AccessStatusReadOnly || status == ZetoCam::AccessStatusNoAccess)
        return ZetoCam::ErrorGenICamAccess;
    return forceAddress(*adapter, mac, {address, mask, gateway}) ? ZetoCam::Success : ZetoCam::ErrorNoDevice;
}

std::unique_ptr<CameraRoute> GigEDeviceInfo::makeRoute() const
{
    return std::make_unique<GigERoute>(m_adapterName, answer());
}

Gvcp::DiscoveryAnswer GigEDeviceInfo::answer() const
{
    const std::lock_guard guard(m_mutex);
    return m_answer;
}

} // namespace ZetoAravis
