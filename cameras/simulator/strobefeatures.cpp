#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

constexpr int64_t longest = 1'000'000; // us, delay and width together

void addStrobe(NodeMapBuilder& b, const std::string& strobe)
{
    const auto time = [&](const std::string& name, int64_t least, const std::string& other, int64_t value,
                          const std::string& toolTip) {
        b.integer(name)
            .in("StrobeControl")
            .toolTip(toolTip)
            .unit("us")
            .representation(GenApi::Logarithmic)
            .limits(least, restOf(longest, other))
            .value(value);
    };
    b.enumeration(strobe + "Mode")
        .in("StrobeControl")
        .toolTip("Whether the strobe is given with each frame")
        .entries({"Disabled", "Enabled"});
    b.enumeration(strobe + "Reference")
        .in("StrobeControl")
        .toolTip("What the delay counts from")
        .entries({"ExposureStart", "ReadoutStart"});
    time(strobe + "Delay", 0, strobe + "Width", 0, "From the reference to the start of the strobe");
    time(strobe + "Width", 1, strobe + "Delay", 1000,
         "How long the strobe lasts; delay and width together are limited");
}

void addOutput(NodeMapBuilder& b, const std::string& line)
{
    b.enumeration(line + "Selector")
        .in("StrobeControl")
        .toolTip("The signal that the output carries; the trigger only while it is on")
        .entries({"None", "Strobe1", "Strobe2"})
        .entry(Entry("TriggerActual", 3).availableIf(isEntry("TriggerMode", "On")))
        .entry("PulseGenerator", 4);
    b.enumeration(line + "Polarity")
        .in("StrobeControl")
        .toolTip("The level of the output while its signal is on")
        .entries({"ActiveLow", "ActiveHigh"});
}

} // namespace

void addStrobeFeatures(NodeMapBuilder& b)
{
    b.category("StrobeControl").in("Root").displayName("Strobe Control");
    addStrobe(b, "Strobe1");
    addStrobe(b, "Strobe2");
    addOutput(b, "OUT1");
    addOutput(b, "OUT2");
}

} // namespace ZetoSimulator
