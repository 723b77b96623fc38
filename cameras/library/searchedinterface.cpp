#include "searchedinterface.h"

#include "interfacefeatures.h"
#include "vectorlist.h"

#include <genparamerror.h>
#include <nodemap.h>
#include <nodemaparray.h>

#include <algorithm>

namespace ZetoCameraLibrary {

SearchedInterface::SearchedInterface(ZetoCam::System& system)
    : m_system(system)
{
}

SearchedInterface::~SearchedInterface() = default;

ZetoCam::DeviceInfoList* SearchedInterface::GetDeviceInfoList()
{
    return VectorList<ZetoCam::DeviceInfo>::make(found());
}

ZetoGenParam::Array* SearchedInterface::GetParameters(int32_t* error)
{
    ZetoGenParam::setError(error, ZetoCam::Success);
    return &parameters();
}

ZetoCam::System* SearchedInterface::GetSystem()
{
    return &m_system;
}

int32_t SearchedInterface::ReEnumerateDevices(bool* changed, uint64_t timeout)
{
    constexpr uint64_t longest = 60'000; // ms
    std::vector<ZetoCam::DeviceInfo*> answering;
    const int32_t code = search(std::chrono::milliseconds(std::min(timeout, longest)), answering);
    bool isOther = false;
    {
        const std::lock_guard guard(m_mutex);
        answering.swap(m_found);
        isOther = answering != m_found;
    }
    if (isOther)
        parameters().GetNodeMap(0)->InvalidateNodes();
    if (changed)
        *changed = isOther;
    return code;
}

std::vector<ZetoCam::DeviceInfo*> SearchedInterface::found() const
{
    const std::lock_guard guard(m_mutex);
    return m_found;
}

ZetoGenParam::Array& SearchedInterface::parameters()
{
    std::call_once(m_featuresMade, [this] {
        m_features = makeInterfaceFeatures(*this);
        m_parameters = std::make_unique<ZetoGenParam::NodeMapArray>(*m_features);
    });
    return *m_parameters;
}

} // namespace ZetoCameraLibrary
