#pragma once

#include "aravisdeviceinfo.h"
#include "gigesearch.h"

namespace ZetoAravis {

/// A GigE Vision camera as the last search found it. Thread: any.
class GigEDeviceInfo final : public AravisDeviceInfo
{
public:
    GigEDeviceInfo(ZetoCam::Interface& owner, std::string id, std::string adapterName);

    void update(const Gvcp::DiscoveryAnswer& answer, ZetoCam::AccessStatus status);

    int32_t GetAccessStatus() override;
    uint64_t GetMACAddress() override;
    uint32_t GetIPAddress() override;
    uint32_t GetSubnetMask() override;
    uint32_t GetGateway() override;

    /// Aravis has no such command; the datagram is made here. ErrorInvalidState for a camera without a MAC
    /// address, by which it would be told.
    int32_t ForceIP(uint32_t address, uint32_t mask, uint32_t gateway) override;

protected:
    std::unique_ptr<CameraRoute> makeRoute() const override;

private:
    Gvcp::DiscoveryAnswer answer() const;

    const std::string m_adapterName;

    mutable std::mutex m_mutex; ///< guards the following
    Gvcp::DiscoveryAnswer m_answer;
    ZetoCam::AccessStatus m_status = ZetoCam::AccessStatusNoAccess;
};

} // namespace ZetoAravis
