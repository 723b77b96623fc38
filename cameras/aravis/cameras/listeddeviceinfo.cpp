#include "listeddeviceinfo.h"

#include "listedcameras.h"

#include <utility>

namespace ZetoAravis {
namespace {

class ListedRoute final : public CameraRoute
{
public:
    ListedRoute(ArvInterface& lister, std::string id)
        : m_lister(lister)
        , m_id(std::move(id))
    {
    }

    GObjectPointer<ArvDevice> connect(ZetoCam::AccessMode) override
    {
        listedCameras(m_lister); // the library opens only what its last search found
        return openListed(m_lister, m_id);
    }

    /// There is no other way than the connection.
    bool isAnswering() const override { return true; }

    bool isGood(ArvDevice& device, ZetoCam::AccessMode) const override
    {
        constexpr guint64 versionRegister = 0; // every GenCP device has it
        guint32 version = 0;
        return arv_device_read_memory(&device, versionRegister, sizeof version, &version, nullptr);
    }

private:
    ArvInterface& m_lister;
    const std::string m_id;
};

} // namespace

ListedDeviceInfo::ListedDeviceInfo(ZetoCam::Interface& owner, std::string id, ArvInterface& lister,
                                   std::string listedId)
    : AravisDeviceInfo(owner, std::move(id))
    , m_lister(lister)
    , m_listedId(std::move(listedId))
{
}

int32_t ListedDeviceInfo::GetAccessStatus()
{
    constexpr int32_t unknown = 0;
    return isOpen() ? ZetoCam::AccessStatusNoAccess : unknown;
}

int32_t ListedDeviceInfo::ForceIP(uint32_t, uint32_t, uint32_t)
{
    return ZetoCam::ErrorInvalidState;
}

std::unique_ptr<CameraRoute> ListedDeviceInfo::makeRoute() const
{
    return std::make_unique<ListedRoute>(m_lister, m_listedId);
}

} // namespace ZetoAravis
