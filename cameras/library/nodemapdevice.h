#pragma once

#include "deviceevents.h"

#include <nodemaparray.h>

namespace ZetoCameraLibrary {

/// An open camera whose parameters are those of a node map, which must outlive it. What Release() does is
/// left to the backend.
class NodeMapDevice : public ZetoCam::Device
{
public:
    explicit NodeMapDevice(GENAPI_NAMESPACE::INodeMap& nodeMap);

    ZetoGenParam::Array* GetParameters(int32_t* error) override;
    int32_t RegisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context) override;
    int32_t UnregisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context) override;

    DeviceEvents& events() { return m_events; }

private:
    ZetoGenParam::NodeMapArray m_parameters;
    DeviceEvents m_events;
};

/// Lets nothing be written to a camera that is opened for reading only.
void restrictAccess(const GENAPI_NAMESPACE::INodeMap& nodeMap, ZetoCam::AccessMode accessMode);

} // namespace ZetoCameraLibrary
