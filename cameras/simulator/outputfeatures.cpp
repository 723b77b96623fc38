#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

/// A correction of single pixels and its threshold, which only the dynamic kinds use.
void addCorrection(NodeMapBuilder& b, const std::string& kind, const std::string& toolTip)
{
    const std::string correction = kind + "Correction";
    b.enumeration(correction)
        .in("DataOutput")
        .toolTip(toolTip)
        .entries({"Off", "Static", "Dynamic", "StaticDynamic"});
    b.integer(kind + "Threshold")
        .in("DataOutput")
        .toolTip("How far a pixel differs from its neighbours before it is corrected; for the dynamic kinds")
        .limits(0, 4095)
        .availableIf(Setting<bool>([correction](const NodeMap& map) {
                         return map.integer(correction) >= 2;
                     }).computedFrom({correction}))
        .value(64);
}

} // namespace

void addOutputFeatures(NodeMapBuilder& b)
{
    b.category("DataOutput").in("Root").displayName("Data Output");
    b.enumeration("PixelFormat")
        .in("DataOutput")
        .toolTip("What a pixel of the output is")
        .standard()
        .entry("BayerRG8", 0)
        .entry("BayerRG10", 1)
        .entry(Entry("BayerRG12", 2).availableIf(isEntry("SensorADCBitDepth", "Bits12")))
        .entry("RGB8", 3)
        .lockedIf("AcquisitionActive");
    b.enumeration("SensorADCBitDepth11")
        .in("DataOutput")
        .displayName("Taps")
        .toolTip("Pixels in each clock of the output")
        .entries({"Taps2", "Taps4", "Taps8", "Taps10"})
        .lockedIf("AcquisitionActive");
    b.boolean("LUTEnable")
        .in("DataOutput")
        .toolTip("Whether pixels go through the look-up table")
        .standard()
        .value(false);
    b.enumeration("LUTSelector")
        .in("DataOutput")
        .toolTip("The look-up table that is used")
        .standard()
        .entries({"LUT1", "LUT2", "LUT3", "LUT4"});
    addCorrection(b, "DefectPixel",
                  "Replaces pixels that give no right value: those of a list, those that stand out, or both");
    addCorrection(b, "HotPixel",
                  "Replaces pixels that are too bright: those of a list, those that stand out, or both");
    b.boolean("ReverseX").in("DataOutput").toolTip("Flips the image left to right").standard().value(false);
    b.boolean("ReverseY").in("DataOutput").toolTip("Flips the image upside down").standard().value(false);
    b.enumeration("TestPattern")
        .in("DataOutput")
        .toolTip("An image of the camera's own in place of the sensor's")
        .standard()
        .entries({"Off", "GreyHorizontalRamp", "GreyVerticalRamp", "ColorBar"});
}

} // namespace ZetoSimulator
