#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {

void addTriggerFeatures(NodeMapBuilder& b, bool hasAllFeatures)
{
    b.category("TriggerControl").in("Root").displayName("Trigger Control");
    b.enumeration("TriggerMode")
        .in("TriggerControl")
        .standard()
        .toolTip("Whether a frame waits for a trigger or is taken at once")
        .entries({"Off", "On"});
    b.enumeration("TriggerSource")
        .in("TriggerControl")
        .standard()
        .toolTip("Where the trigger comes from")
        .entries(hasAllFeatures ? std::vector<std::string>{"Line1", "Line2", "PulseGenerator", "Software"}
                                : std::vector<std::string>{"Line1", "Software"});
    b.enumeration("TriggerActivation")
        .in("TriggerControl")
        .standard()
        .toolTip("The edge of the input that triggers; a software trigger has none")
        .entries({"RisingEdge", "FallingEdge"})
        .lockedIf(isEntry("TriggerSource", "Software"));
    if (hasAllFeatures)
        b.enumeration("TriggerDebounce")
            .in("TriggerControl")
            .toolTip("How long the input must be stable to count")
            .entries({"Disabled", "TenMicroseconds", "HundredMicroseconds", "OneMillisecond"});
    b.command("TriggerSoftware")
        .in("TriggerControl")
        .standard()
        .toolTip("Triggers one frame")
        .availableIf(Setting<bool>([](const NodeMap& map) {
                         return map.text("TriggerMode") == "On" && map.text("TriggerSource") == "Software";
                     }).computedFrom({"TriggerMode", "TriggerSource"}))
        .onExecute([](NodeMap& map) { map.assign("TriggerCount", map.integer("TriggerCount") + 1); });
    b.integer("TriggerCount")
        .in("TriggerControl")
        .toolTip("Software triggers since the camera's power came")
        .access(GenApi::RO)
        .value(0);
}

} // namespace ZetoSimulator
