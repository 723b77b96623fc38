#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

void addGain(NodeMapBuilder& b)
{
    b.enumeration("Frame_AnalogGain").in("FrameVideo").entries({"Gain1x", "Gain2x", "Gain4x", "Gain8x"});
    b.integer("Frame_DigitalCourseGain")
        .in("FrameVideo")
        .toolTip("The power of two by which pixels are multiplied")
        .limits(0, 4)
        .value(0);
    b.integer("Frame_DigitalFineGain").in("FrameVideo").toolTip("Steps of 1/64").limits(0, 63).value(0);
    b.integer("Frame_BlackLevel")
        .in("FrameVideo")
        .limits(0, Setting<int64_t>([](const NodeMap& map) {
                       return map.text("SensorADCBitDepth") == "Bits12" ? 1023 : 255;
                   }).computedFrom({"SensorADCBitDepth"}))
        .value(16);
}

/// Three knees of the response curve; each has an exposure no longer than that of the one before.
void addWideDynamicRange(NodeMapBuilder& b)
{
    b.boolean("Frame_WdrEnable")
        .in("FrameVideo")
        .toolTip("Wide dynamic range, with the rolling shutter only")
        .availableIf(isEntry("ShutterMode", "Rolling"))
        .value(false);
    const std::string exposure = "Frame_WdrE";
    for (int knee = 1; knee <= 3; ++knee) {
        b.enumeration("Frame_WdrP" + std::to_string(knee))
            .in("FrameVideo")
            .entries({"Off", "Low", "Middle", "High"})
            .availableIf("Frame_WdrEnable");
        auto kneeExposure = b.integer(exposure + std::to_string(knee))
                                .in("FrameVideo")
                                .unit("us")
                                .availableIf("Frame_WdrEnable")
                                .value(1000 / knee);
        if (knee == 1)
            kneeExposure.limits(0, "CurrentExposureTime");
        else
            kneeExposure.limits(0, exposure + std::to_string(knee - 1));
    }
}

} // namespace

void addFrameVideoFeatures(NodeMapBuilder& b)
{
    b.category("FrameVideo").in("Root").displayName("Frame Video");
    addGain(b);
    addWideDynamicRange(b);
}

} // namespace ZetoSimulator
