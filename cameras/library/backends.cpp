#include "backends.h"

#include <simulator.h>

#include <algorithm>

namespace ZetoCameraLibrary {
namespace {

/// The setting `simulator.demo` is the period of the demo mode in milliseconds.
std::unique_ptr<CameraBackend> makeSimulator(ZetoCam::System& system, const Settings& settings)
{
    auto simulator =
        std::make_unique<ZetoSimulator::Simulator>(system, ZetoSimulator::SimulatorSetup::standard());
    simulator->setDemo(settings.number("simulator.demo"));
    return simulator;
}

} // namespace

const std::vector<BackendKind>& backendKinds()
{
    static const std::vector<BackendKind> kinds = {
        {"simulator", makeSimulator},
    };
    return kinds;
}

std::vector<std::unique_ptr<CameraBackend>> makeChosenBackends(ZetoCam::System& system,
                                                               const Settings& settings)
{
    std::vector<std::string> chosen = settings.list("cameras");
    if (chosen.empty())
        chosen = {"simulator"};
    const auto isChosen = [&](const std::string& name) {
        return std::find(chosen.begin(), chosen.end(), name) != chosen.end();
    };
    std::vector<std::unique_ptr<CameraBackend>> backends;
    for (const BackendKind& kind : backendKinds()) {
        if (isChosen(kind.name) || isChosen("all"))
            backends.push_back(kind.make(system, settings));
    }
    return backends;
}

} // namespace ZetoCameraLibrary
