#pragma once

#include "camerabackend.h"
#include "settings.h"

namespace ZetoCameraLibrary {

/// A kind of backend that this build contains.
struct BackendKind
{
    const char* name; ///< as in the setting `cameras`
    std::unique_ptr<CameraBackend> (*make)(ZetoCam::System& system, const Settings& settings);
};

/// All of them, in the order in which the system lists their interfaces. A new backend is one line here.
const std::vector<BackendKind>& backendKinds();

/// The backends for \a system that the setting `cameras` names, for example `simulator, aravis`; `all` stands
/// for all, nothing for the simulator. Names of backends that this build lacks are passed over.
std::vector<std::unique_ptr<CameraBackend>> makeChosenBackends(ZetoCam::System& system,
                                                               const Settings& settings);

} // namespace ZetoCameraLibrary
