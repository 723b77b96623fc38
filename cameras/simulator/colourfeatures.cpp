#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

constexpr int64_t unity = 256;

/// What the automatic white balance finds for the simulated scene.
void balance(NodeMap& map, int64_t mode)
{
    if (mode == 0)
        return;
    map.assign("RedCoefficient", int64_t{301});
    map.assign("GreenCoefficient", unity);
    map.assign("BlueCoefficient", int64_t{417});
}

} // namespace

void addColourFeatures(NodeMapBuilder& b)
{
    b.category("ColourControl").in("Root").displayName("Colour Control");
    b.enumeration("BalanceWhiteAuto")
        .in("ColourControl")
        .standard()
        .toolTip("Finds the coefficients in the picture, once or all the time")
        .entry("Off", 0)
        .entry(Entry("Once", 1).clearsTo(0))
        .entry("Continuous", 2)
        .onWrite(balance);
    b.enumeration("AutoTrackingSpeed")
        .in("ColourControl")
        .entries({"Slow", "Medium", "Fast"})
        .availableIf(isEntry("BalanceWhiteAuto", "Continuous"));
    for (const char* name : {"RedCoefficient", "GreenCoefficient", "BlueCoefficient"})
        b.integer(name)
            .in("ColourControl")
            .toolTip("Factor of the colour in steps of 1/256")
            .limits(0, 4095)
            .lockedIf(isEntry("BalanceWhiteAuto", "Continuous"))
            .value(unity);
}

} // namespace ZetoSimulator
