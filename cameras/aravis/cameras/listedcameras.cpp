#include "listedcameras.h"

#include <mutex>

namespace ZetoAravis {
namespace {

std::mutex& listMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::string text(const char* found)
{
    return found ? found : "";
}

} // namespace

std::vector<ListedCamera> listedCameras(ArvInterface& lister)
{
    const std::lock_guard guard(listMutex());
    arv_interface_update_device_list(&lister);
    std::vector<ListedCamera> cameras;
    for (guint i = 0; i < arv_interface_get_n_devices(&lister); ++i)
        cameras.push_back({text(arv_interface_get_device_id(&lister, i)),
                           text(arv_interface_get_device_vendor(&lister, i)),
                           text(arv_interface_get_device_model(&lister, i)),
                           text(arv_interface_get_device_serial_nbr(&lister, i))});
    return cameras;
}

GObjectPointer<ArvDevice> openListed(ArvInterface& lister, const std::string& id)
{
    const std::lock_guard guard(listMutex());
    return openDevice([&](GError** error) { return arv_interface_open_device(&lister, id.c_str(), error); });
}

} // namespace ZetoAravis
