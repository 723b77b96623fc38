#include "simulatedinterface.h"

#include "interfacefeatures.h"
#include "simulatedcamera.h"

#include <genparamerror.h>
#include <nodemap.h>
#include <nodemaparray.h>
#include <vectorlist.h>

#include <chrono>
#include <thread>
#include <utility>

namespace ZetoSimulator {

SimulatedInterface::SimulatedInterface(ZetoCam::System& system, InterfaceSetup setup, const Clock& clock)
    : m_system(system)
    , m_setup(std::move(setup))
{
    for (const CameraSetup& camera : m_setup.cameras) {
        m_cameras.push_back(std::make_unique<SimulatedCamera>(camera, m_setup.type, m_setup.address, clock));
        m_infos.push_back(std::make_unique<SimulatedDeviceInfo>(*this, *m_cameras.back()));
    }
    m_features = makeInterfaceFeatures(*this);
    m_parameters = std::make_unique<ZetoGenParam::NodeMapArray>(*m_features);
}

SimulatedInterface::~SimulatedInterface() = default;

ZetoCam::DeviceInfoList* SimulatedInterface::GetDeviceInfoList()
{
    const std::vector<SimulatedDeviceInfo*> cameras = found();
    return ZetoCameraLibrary::VectorList<ZetoCam::DeviceInfo>::make({cameras.begin(), cameras.end()});
}

ZetoGenParam::Array* SimulatedInterface::GetParameters(int32_t* error)
{
    ZetoGenParam::setError(error, ZetoCam::Success);
    return m_parameters.get();
}

ZetoCam::System* SimulatedInterface::GetSystem()
{
    return &m_system;
}

int32_t SimulatedInterface::ReEnumerateDevices(bool* changed, uint64_t)
{
    if (const int delay = m_searchDelay)
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    const bool isOther = search();
    if (isOther)
        m_features->InvalidateNodes();
    if (changed)
        *changed = isOther;
    return m_plugged ? ZetoCam::Success : ZetoCam::ErrorNoDevice;
}

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

std::vector<SimulatedDeviceInfo*> SimulatedInterface::found() const
{
    const std::lock_guard guard(m_mutex);
    return m_found;
}

void SimulatedInterface::setPlugged(bool plugged)
{
    m_plugged = plugged;
    for (const auto& camera : m_cameras)
        camera->setInterfacePlugged(plugged);
}

/// \return whether it found other cameras than the search before
bool SimulatedInterface::search()
{
    std::vector<SimulatedDeviceInfo*> answering;
    for (const auto& info : m_infos) {
        if (info->camera().isFoundBySearch())
            answering.push_back(info.get());
    }
    const std::lock_guard guard(m_mutex);
    answering.swap(m_found);
    return answering != m_found;
}

} // namespace ZetoSimulator
