#pragma once

#include "aravisdeviceinfo.h"

#include <arv.h>

namespace ZetoAravis {

/// A camera of a ListedInterface: without a network, and with a status that the library does not know.
class ListedDeviceInfo final : public AravisDeviceInfo
{
public:
    ListedDeviceInfo(ZetoCam::Interface& owner, std::string id, ArvInterface& lister, std::string listedId);

    using AravisDeviceInfo::setTexts;

    /// 0 for unknown, or AccessStatusNoAccess while it is open here.
    int32_t GetAccessStatus() override;
    uint64_t GetMACAddress() override { return 0; }
    uint32_t GetIPAddress() override { return 0; }
    uint32_t GetSubnetMask() override { return 0; }
    uint32_t GetGateway() override { return 0; }
    int32_t ForceIP(uint32_t address, uint32_t mask, uint32_t gateway) override;

protected:
    std::unique_ptr<CameraRoute> makeRoute() const override;

private:
    ArvInterface& m_lister;
    const std::string m_listedId;
};

} // namespace ZetoAravis
