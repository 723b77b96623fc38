#include "camerasnapshot.h"

#include <algorithm>
#include <memory>

namespace {

constexpr uint64_t searchTimeMs = 200;

/// The elements of a list that the library made for us; null is taken for an empty one.
template <typename T>
std::vector<T*> takeElements(ZetoCam::List<T>* list)
{
    const auto release = [](ZetoCam::List<T>* released) { released->Release(); };
    const std::unique_ptr<ZetoCam::List<T>, decltype(release)> owner(list, release);
    std::vector<T*> elements;
    if (!list || list->GetCount() == 0)
        return elements;
    for (T* each = list->GetFirst(); each; each = list->GetNext())
        elements.push_back(each);
    return elements;
}

bool haveSameId(ZetoCam::DeviceInfo* one, ZetoCam::DeviceInfo* other)
{
    return qstrcmp(one->GetID(), other->GetID()) == 0;
}

} // namespace

const std::vector<ZetoCam::DeviceInfo*>& CameraSnapshot::camerasOn(const QString& interfaceId) const
{
    static const std::vector<ZetoCam::DeviceInfo*> none;
    const auto found = cameras.find(interfaceId);
    return found == cameras.end() ? none : found->second;
}

CameraSnapshot scanCameras(ZetoCam::System* system)
{
    CameraSnapshot found;
    if (!system)
        return found;
    found.interfaces = takeElements(system->GetInterfaceList(ZetoCam::InterfaceMaskAll));
    for (ZetoCam::Interface* each : found.interfaces) {
        bool changed = false;
        each->ReEnumerateDevices(&changed, searchTimeMs);
        std::vector<ZetoCam::DeviceInfo*>& cameras = found.cameras[idOf(*each)];
        const auto onThisOne = camerasListedBy(*each);
        cameras.insert(cameras.end(), onThisOne.begin(), onThisOne.end());
    }
    return found;
}

std::vector<ZetoCam::DeviceInfo*> camerasListedBy(ZetoCam::Interface& owner)
{
    return takeElements(owner.GetDeviceInfoList());
}

bool listSameCameras(const CameraSnapshot& one, const CameraSnapshot& other)
{
    const auto isSame = [&](ZetoCam::Interface* its, ZetoCam::Interface* others) {
        const QString id = idOf(*its);
        const auto& cameras = one.camerasOn(id);
        const auto& otherCameras = other.camerasOn(id);
        return id == idOf(*others) && std::equal(cameras.begin(), cameras.end(), otherCameras.begin(),
                                                 otherCameras.end(), haveSameId);
    };
    return std::equal(one.interfaces.begin(), one.interfaces.end(), other.interfaces.begin(),
                      other.interfaces.end(), isSame);
}
