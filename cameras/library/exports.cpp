#include "backends.h"
#include "librarysystem.h"

#include <genparamerror.h>
#include <simulatorcontrol.h>

#include <mutex>

namespace {

/// The system of this process. It is not destroyed when the process ends: a backend's threads could not be
/// waited for at that time.
ZetoCameraLibrary::LibrarySystem& processSystem()
{
    static auto* const system = std::make_unique<ZetoCameraLibrary::LibrarySystem>().release();
    return *system;
}

void openProcessSystem()
{
    static std::mutex mutex;
    const std::lock_guard guard(mutex);
    if (processSystem().isOpen())
        return;
    const auto settings = ZetoCameraLibrary::Settings::ofProcess();
    for (auto& backend : ZetoCameraLibrary::makeChosenBackends(processSystem(), settings))
        processSystem().add(std::move(backend));
}

} // namespace

ZetoCam::System* ZetoCam_GetSystem()
{
    const int32_t code = ZetoGenParam::guardedCall(openProcessSystem);
    return code == ZetoCam::Success && processSystem().isOpen() ? &processSystem() : nullptr;
}

ZetoCam::Device* ZetoCam_CreateDevice(ZetoCam::DeviceInfo* info, int32_t accessMode, int32_t* error)
{
    ZetoCam::Device* device = nullptr;
    const int32_t code =
        ZetoGenParam::guardedCall([&] { device = ZetoCameraLibrary::openDevice(info, accessMode, error); });
    if (code != ZetoCam::Success)
        ZetoGenParam::setError(error, code);
    return device;
}

ZetoSimulator::SimulatorControl* ZetoSimulator_GetControl()
{
    return ZetoCam_GetSystem() ? processSystem().backend<ZetoSimulator::SimulatorControl>() : nullptr;
}
