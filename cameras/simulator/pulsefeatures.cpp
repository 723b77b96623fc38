#include "camerafeatures.h"
#include "simulatedcamera.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

/// Since when the generator runs; guarded by the lock of the node map.
struct PulseGenerator
{
    bool isOn = false;
    std::chrono::steady_clock::time_point start;
};

/// How long the counted pulses take.
std::chrono::microseconds countedTime(const NodeMap& map)
{
    return std::chrono::microseconds(map.integer("PulseGenNumPulses") * map.integer("PulseGenPeriod") *
                                     map.integer("PulseGenGranularity"));
}

void addSwitch(NodeMapBuilder& b, const Clock& clock)
{
    const auto generator = std::make_shared<PulseGenerator>();
    b.boolean("PulseGenEnable")
        .in("PulseGenerator")
        .toolTip("Turns off by itself after the number of pulses, unless the mode is Continuous")
        .pollingTime(200)
        .onRead([generator, clock](const NodeMap& map) {
            const bool isCounted = map.text("PulseGenMode") == "NumPulses";
            if (isCounted && clock() - generator->start >= countedTime(map))
                generator->isOn = false;
            return generator->isOn;
        })
        .onWrite([generator, clock](NodeMap&, bool on) {
            *generator = {on, clock()};
        });
}

} // namespace

void addPulseFeatures(NodeMapBuilder& b, const SimulatedCamera& camera)
{
    b.category("PulseGenerator").in("Root").displayName("Pulse Generator");
    b.enumeration("PulseGenGranularity")
        .in("PulseGenerator")
        .toolTip("By how much period and width are longer than their numbers say")
        .entry("x1", 1)
        .entry("x2", 2)
        .entry("x4", 4)
        .entry("x16", 16);
    b.integer("PulseGenPeriod")
        .in("PulseGenerator")
        .toolTip("From the start of a pulse to the start of the next")
        .unit("us")
        .representation(GenApi::Logarithmic)
        .limits(2, 10'000'000)
        .value(1000);
    b.integer("PulseGenWidth")
        .in("PulseGenerator")
        .toolTip("How long a pulse lasts; shorter than the period")
        .unit("us")
        .representation(GenApi::Logarithmic)
        .limits(1, Setting<int64_t>([](const NodeMap& map) {
                       return map.integer("PulseGenPeriod") - 1;
                   }).computedFrom({"PulseGenPeriod"}))
        .value(250);
    b.enumeration("PulseGenMode")
        .in("PulseGenerator")
        .toolTip("Whether pulses are given until they are stopped, or a number of them")
        .entries({"Continuous", "NumPulses"});
    b.integer("PulseGenNumPulses")
        .in("PulseGenerator")
        .toolTip("How many pulses are given in the mode NumPulses")
        .limits(1, 65535)
        .availableIf(isEntry("PulseGenMode", "NumPulses"))
        .value(10);
    addSwitch(b, camera.clock());
}

} // namespace ZetoSimulator
