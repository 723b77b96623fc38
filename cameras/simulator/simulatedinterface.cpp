#include "simulatedinterface.h"

#include "simulatedcamera.h"

#include <thread>
#include <utility>

namespace ZetoSimulator {

SimulatedInterface::SimulatedInterface(ZetoCam::System& system, InterfaceSetup setup, const Clock& clock)
    : SearchedInterface(system)
    , m_setup(std::move(setup))
{
    for (const CameraSetup& camera : m_setup.cameras) {
        m_cameras.push_back(std::make_unique<SimulatedCamera>(camera, m_setup.type, m_setup.address, clock));
        m_infos.push_back(std::make_unique<SimulatedDeviceInfo>(*this, *m_cameras.back()));
    }
}

SimulatedInterface::~SimulatedInterface() = default;

const char* SimulatedInterface::GetDescription()
{
    return m_setup.description.c_str();
}

int32_t SimulatedInterface::GetType()
{
    return m_setup.type;
}

const char* SimulatedInterface::GetID()
{
    return m_setup.id.c_str();
}

const char* SimulatedInterface::GetVersion()
{
    return m_setup.version.c_str();
}

const char* SimulatedInterface::usbVersion() const
{
    return m_setup.type == ZetoCam::InterfaceUSB3Vision ? "3.2" : nullptr;
}

void SimulatedInterface::setPlugged(bool plugged)
{
    m_plugged = plugged;
    for (const auto& camera : m_cameras)
        camera->setInterfacePlugged(plugged);
}

int32_t SimulatedInterface::search(std::chrono::milliseconds, std::vector<ZetoCam::DeviceInfo*>& answering)
{
    if (const int delay = m_searchDelay)
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    for (const auto& info : m_infos) {
        if (info->camera().isFoundBySearch())
            answering.push_back(info.get());
    }
    return m_plugged ? ZetoCam::Success : ZetoCam::ErrorNoDevice;
}

} // namespace ZetoSimulator
