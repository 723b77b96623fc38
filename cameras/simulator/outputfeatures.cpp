#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

/// A correction of single pixels and its threshold, which only the dynamic kinds use.
void addCorrection(NodeMapBuilder& b, const std::string& kind)
{
    const std::string correction = kind + "Correction";
    b.enumeration(correction).in("DataOutput").entries({"Off", "Static", "Dynamic", "StaticDynamic"});
    b.integer(kind + "Threshold")
        .in("DataOutput")
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
        .standard()
        .entry("BayerRG8", 0)
        .entry("BayerRG10", 1)
        .entry(Entry("BayerRG12", 2).availableIf(isEntry("SensorADCBitDepth", "Bits12")))
        .entry("RGB8", 3)
        .lockedIf("AcquisitionActive");
    b.enumeration("SensorADCBitDepth11")
        .in("DataOutput")
        .displayName("Taps")
        .entries({"Taps2", "Taps4", "Taps8", "Taps10"})
        .lockedIf("AcquisitionActive");
    b.boolean("LUTEnable").in("DataOutput").standard().value(false);
    b.enumeration("LUTSelector").in("DataOutput").standard().entries({"LUT1", "LUT2", "LUT3", "LUT4"});
    addCorrection(b, "DefectPixel");
    addCorrection(b, "HotPixel");
    b.boolean("ReverseX").in("DataOutput").standard().value(false);
    b.boolean("ReverseY").in("DataOutput").standard().value(false);
    b.enumeration("TestPattern")
        .in("DataOutput")
        .standard()
        .entries({"Off", "GreyHorizontalRamp", "GreyVerticalRamp", "ColorBar"});
}

} // namespace ZetoSimulator
