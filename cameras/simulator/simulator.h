#pragma once

#include "simulatorcontrol.h"
#include "simulatorsetup.h"

#include <camerabackend.h>
#include <repeater.h>

#include <mutex>

namespace ZetoSimulator {

class SimulatedCamera;
class SimulatedInterface;

/// The simulated interfaces and cameras, and the hand that plugs them.
class Simulator final : public ZetoCameraLibrary::CameraBackend, public SimulatorControl
{
public:
    /// The interfaces belong to \a system.
    Simulator(ZetoCam::System& system, const SimulatorSetup& setup);
    ~Simulator() override;

    std::vector<ZetoCam::Interface*> interfaces() override;

    std::vector<std::string> interfaceIds() const override;
    std::vector<std::string> cameraIds() const override;
    bool setCameraPlugged(const std::string& cameraId, bool plugged) override;
    bool setInterfacePlugged(const std::string& interfaceId, bool plugged) override;
    bool setAnswering(const std::string& cameraId, bool answering) override;
    bool setHeldByOther(const std::string& cameraId, bool held) override;
    bool refuseNextWrite(const std::string& cameraId, int32_t code) override;
    bool setAccessDelay(const std::string& cameraId, int milliseconds) override;
    bool setSearchDelay(const std::string& interfaceId, int milliseconds) override;
    void setDemo(int period) override;

private:
    template <typename Action>
    bool withCamera(const std::string& id, Action action);
    template <typename Action>
    bool withInterface(const std::string& id, Action action);
    void plugOrUnplugOne(std::size_t step);

    std::vector<std::unique_ptr<SimulatedInterface>> m_interfaces;
    std::vector<SimulatedCamera*> m_wanderers; ///< come and go in demo mode
    /// Serves the control calls one after the other; recursive, for calls out of event callbacks.
    std::recursive_mutex m_controlMutex;
    std::mutex m_demoMutex;
    ZetoCameraLibrary::Repeater m_demo;
};

} // namespace ZetoSimulator
