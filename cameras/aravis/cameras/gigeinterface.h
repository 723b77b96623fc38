#pragma once

#include "gigedeviceinfo.h"

#include <searchedinterface.h>

#include <map>

namespace ZetoAravis {

/// A network adapter with the GigE Vision cameras on its wire. Thread: any.
class GigEInterface final : public ZetoCameraLibrary::SearchedInterface
{
public:
    GigEInterface(ZetoCam::System& system, const NetworkAdapter& adapter);

    const char* GetDescription() override;
    int32_t GetType() override;
    const char* GetID() override;
    const char* GetVersion() override;
    uint64_t adapterMac() const override;
    NetworkAddress adapterAddress() const override;

protected:
    int32_t search(std::chrono::milliseconds timeout, std::vector<ZetoCam::DeviceInfo*>& answering) override;

private:
    GigEDeviceInfo& info(const Gvcp::DiscoveryAnswer& answer);

    const std::string m_adapterName;
    const std::string m_id;
    const std::string m_description;

    std::mutex m_mutex;                                             ///< guards m_infos
    std::map<std::string, std::unique_ptr<GigEDeviceInfo>> m_infos; ///< every camera ever seen, by id
};

} // namespace ZetoAravis
