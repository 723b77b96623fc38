#include "listedinterface.h"

#include "aravisversion.h"
#include "listedcameras.h"

#include <utility>

namespace ZetoAravis {

ListedInterface::ListedInterface(ZetoCam::System& system, ArvInterface& lister, ZetoCam::InterfaceType type,
                                 std::string id, std::string description)
    : SearchedInterface(system)
    , m_lister(lister)
    , m_type(type)
    , m_id(std::move(id))
    , m_description(std::move(description))
{
}

const char* ListedInterface::GetDescription()
{
    return m_description.c_str();
}

int32_t ListedInterface::GetType()
{
    return m_type;
}

const char* ListedInterface::GetID()
{
    return m_id.c_str();
}

const char* ListedInterface::GetVersion()
{
    return aravisVersion();
}

int32_t ListedInterface::search(std::chrono::milliseconds, std::vector<ZetoCam::DeviceInfo*>& answering)
{
    const std::vector<ListedCamera> cameras = listedCameras(m_lister);
    const std::lock_guard guard(m_mutex);
    for (const ListedCamera& camera : cameras) {
        auto& info = m_infos[camera.id];
        if (!info)
            info = std::make_unique<ListedDeviceInfo>(*this, cameraId(m_id, camera.id), m_lister, camera.id);
        info->setTexts({camera.vendor, camera.model, {}, camera.serialNumber, {}});
        answering.push_back(info.get());
    }
    return ZetoCam::Success;
}

} // namespace ZetoAravis
