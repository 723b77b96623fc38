#include "simulator.h"

#include "simulatedcamera.h"
#include "simulatedinterface.h"

namespace ZetoSimulator {

Simulator::Simulator(ZetoCam::System& system, const SimulatorSetup& setup)
{
    for (const InterfaceSetup& each : setup.interfaces) {
        m_interfaces.push_back(std::make_unique<SimulatedInterface>(system, each, setup.clock));
        for (const auto& camera : m_interfaces.back()->cameras()) {
            if (camera->setup().comesAndGoes)
                m_wanderers.push_back(camera.get());
        }
    }
}

Simulator::~Simulator()
{
    m_demo.stop();
}

std::vector<ZetoCam::Interface*> Simulator::interfaces()
{
    std::vector<ZetoCam::Interface*> plugged;
    for (const auto& each : m_interfaces) {
        if (each->isPlugged())
            plugged.push_back(each.get());
    }
    return plugged;
}

std::vector<std::string> Simulator::interfaceIds() const
{
    std::vector<std::string> ids;
    for (const auto& each : m_interfaces)
        ids.push_back(each->setup().id);
    return ids;
}

std::vector<std::string> Simulator::cameraIds() const
{
    std::vector<std::string> ids;
    for (const auto& each : m_interfaces) {
        for (const auto& camera : each->cameras())
            ids.push_back(camera->setup().id);
    }
    return ids;
}

bool Simulator::setCameraPlugged(const std::string& cameraId, bool plugged)
{
    return withCamera(cameraId, [=](SimulatedCamera& camera) { camera.setPlugged(plugged); });
}

bool Simulator::setInterfacePlugged(const std::string& interfaceId, bool plugged)
{
    return withInterface(interfaceId, [=](SimulatedInterface& each) { each.setPlugged(plugged); });
}

bool Simulator::setAnswering(const std::string& cameraId, bool answering)
{
    return withCamera(cameraId, [=](SimulatedCamera& camera) { camera.setAnswering(answering); });
}

bool Simulator::setHeldByOther(const std::string& cameraId, bool held)
{
    return withCamera(cameraId, [=](SimulatedCamera& camera) { camera.setHeldByOther(held); });
}

bool Simulator::refuseNextWrite(const std::string& cameraId, int32_t code)
{
    return withCamera(cameraId, [=](SimulatedCamera& camera) { camera.faults().refuseNextWrite(code); });
}

bool Simulator::setAccessDelay(const std::string& cameraId, int milliseconds)
{
    return withCamera(cameraId, [=](SimulatedCamera& camera) { camera.faults().setDelay(milliseconds); });
}

bool Simulator::setSearchDelay(const std::string& interfaceId, int milliseconds)
{
    return withInterface(interfaceId, [=](SimulatedInterface& each) { each.setSearchDelay(milliseconds); });
}

void Simulator::setDemo(int period)
{
    const std::lock_guard guard(m_demoMutex);
    if (period > 0 && !m_wanderers.empty())
        m_demo.start(std::chrono::milliseconds(period), [this](std::size_t step) { plugOrUnplugOne(step); });
    else
        m_demo.stop();
}

template <typename Action>
bool Simulator::withCamera(const std::string& id, Action action)
{
    const std::lock_guard guard(m_controlMutex);
    for (const auto& each : m_interfaces) {
        for (const auto& camera : each->cameras()) {
            if (camera->setup().id == id) {
                action(*camera);
                return true;
            }
        }
    }
    return false;
}

template <typename Action>
bool Simulator::withInterface(const std::string& id, Action action)
{
    const std::lock_guard guard(m_controlMutex);
    for (const auto& each : m_interfaces) {
        if (each->setup().id == id) {
            action(*each);
            return true;
        }
    }
    return false;
}

void Simulator::plugOrUnplugOne(std::size_t step)
{
    SimulatedCamera& camera = *m_wanderers[step % m_wanderers.size()];
    if (!camera.isOpen())
        setCameraPlugged(camera.setup().id, !camera.isPlugged());
}

} // namespace ZetoSimulator
