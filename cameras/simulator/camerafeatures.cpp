#include "camerafeatures.h"

#include "simulatedcamera.h"

#include <nodemapbuilder.h>

namespace ZetoSimulator {
namespace {

void addDualFrameFeatures(ZetoNodeMap::NodeMapBuilder& b, const SimulatedCamera& camera)
{
    addFrameTimingFeatures(b);
    addFrameSizeFeatures(b);
    addFrameVideoFeatures(b);
    addPulseFeatures(b, camera);
    addStrobeFeatures(b);
    addOutputFeatures(b);
    addColourFeatures(b);
}

} // namespace

ZetoNodeMap::Setting<int64_t> restOf(int64_t whole, const std::string& other)
{
    return ZetoNodeMap::Setting<int64_t>(
               [whole, other](const ZetoNodeMap::NodeMap& map) { return whole - map.integer(other); })
        .computedFrom({other});
}

std::unique_ptr<ZetoNodeMap::NodeMap> makeCameraFeatures(SimulatedCamera& camera)
{
    const bool isDualFrame = camera.setup().kind == CameraKind::DualFrame;
    ZetoNodeMap::NodeMapBuilder b;
    b.category("Root");
    addDeviceFeatures(b, camera);
    if (camera.interfaceType() == ZetoCam::InterfaceGigEVision)
        addNetworkFeatures(b, camera);
    addAcquisitionFeatures(b);
    addTriggerFeatures(b, isDualFrame);
    if (isDualFrame)
        addDualFrameFeatures(b, camera);
    else
        addPlainImageFeatures(b);
    return b.build();
}

} // namespace ZetoSimulator
