#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

constexpr int64_t longest = 1'000'000; // us, delay and width together

void addStrobe(NodeMapBuilder& b, const std::string& strobe)
{
    const auto time = [&](const std::string& name, int64_t least, const std::string& other, int64_t value) {
        b.integer(name)
            .in("StrobeControl")
            .unit("us")
            .representation(GenApi::Logarithmic)
            .limits(least, Setting<int64_t>([other](const NodeMap& map) {
                               return longest - map.integer(other);
                           }).computedFrom({other}))
            .value(value);
    };
    b.enumeration(strobe + "Mode").in("StrobeControl").entries({"Disabled", "Enabled"});
    b.enumeration(strobe + "Reference").in("StrobeControl").entries({"ExposureStart", "ReadoutStart"});
    time(strobe + "Delay", 0, strobe + "Width", 0);
    time(strobe + "Width", 1, strobe + "Delay", 1000);
}

void addOutput(NodeMapBuilder& b, const std::string& line)
{
    b.enumeration(line + "Selector")
        .in("StrobeControl")
        .entries({"None", "Strobe1", "Strobe2", "TriggerActual", "PulseGenerator"});
    b.enumeration(line + "Polarity").in("StrobeControl").entries({"ActiveLow", "ActiveHigh"});
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
