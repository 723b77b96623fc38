#include "nodemapdevice.h"

#include <genparamerror.h>

namespace ZetoCameraLibrary {

NodeMapDevice::NodeMapDevice(GENAPI_NAMESPACE::INodeMap& nodeMap)
    : m_parameters(nodeMap)
{
}

ZetoGenParam::Array* NodeMapDevice::GetParameters(int32_t* error)
{
    ZetoGenParam::setError(error, ZetoCam::Success);
    return &m_parameters;
}

int32_t NodeMapDevice::RegisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    return m_events.add(eventId, callback, context);
}

int32_t NodeMapDevice::UnregisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    m_events.remove(eventId, callback, context);
    return ZetoCam::Success;
}

} // namespace ZetoCameraLibrary
