#include "nodemapdevice.h"

#include <genparamerror.h>

#include <GenApi/GenApi.h>

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

void restrictAccess(const GENAPI_NAMESPACE::INodeMap& nodeMap, ZetoCam::AccessMode accessMode)
{
    using namespace GENAPI_NAMESPACE;
    NodeList_t nodes;
    nodeMap.GetNodes(nodes);
    for (INode* node : nodes)
        node->ImposeAccessMode(accessMode == ZetoCam::AccessReadOnly ? RO : RW);
}

} // namespace ZetoCameraLibrary
