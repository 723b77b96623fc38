#pragma once

#include "listeddeviceinfo.h"

#include <searchedinterface.h>

#include <map>

namespace ZetoAravis {

/// One of the Aravis library's own interfaces, with the cameras as the library lists them: USB3 Vision, for
/// which it does not tell one controller from another. Thread: any.
class ListedInterface final : public ZetoCameraLibrary::SearchedInterface
{
public:
    /// \a lister is one of the library's interfaces, which live as long as the process.
    ListedInterface(ZetoCam::System& system, ArvInterface& lister, ZetoCam::InterfaceType type,
                    std::string id, std::string description);

    const char* GetDescription() override;
    int32_t GetType() override;
    const char* GetID() override;
    const char* GetVersion() override;

protected:
    int32_t search(std::chrono::milliseconds timeout, std::vector<ZetoCam::DeviceInfo*>& answering) override;

private:
    ArvInterface& m_lister;
    const ZetoCam::InterfaceType m_type;
    const std::string m_id;
    const std::string m_description;

    std::mutex m_mutex;                                               ///< guards m_infos
    std::map<std::string, std::unique_ptr<ListedDeviceInfo>> m_infos; ///< every camera ever seen, by id
};

} // namespace ZetoAravis
