#include "backends.h"

#include <simulator.h>

#ifdef ZETO_HAS_ARAVIS
#include <aravisbackend.h>
#endif

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

#ifdef ZETO_HAS_ARAVIS
std::unique_ptr<CameraBackend> makeAravis(ZetoCam::System& system, const Settings&)
{
    return std::make_unique<ZetoAravis::AravisBackend>(system);
}
#endif

} // namespace

const std::vector<BackendKind>& backendKinds()
{
    static const std::vector<BackendKind> kinds = {
        {"simulator", makeSimulator},
#ifdef ZETO_HAS_ARAVIS
        {"aravis", makeAravis},
#endif
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
