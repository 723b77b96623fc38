#pragma once

#include "simulateddeviceinfo.h"
#include "simulatorsetup.h"

#include <searchedinterface.h>

#include <atomic>
#include <memory>

namespace ZetoSimulator {

/// A simulated interface with all cameras that can ever be plugged into it. Thread: any.
class SimulatedInterface final : public ZetoCameraLibrary::SearchedInterface
{
public:
    SimulatedInterface(ZetoCam::System& system, InterfaceSetup setup, const Clock& clock);
    ~SimulatedInterface() override;

    const char* GetDescription() override;
    int32_t GetType() override;
    const char* GetID() override;
    const char* GetVersion() override;
    uint64_t adapterMac() const override { return m_setup.mac; }
    NetworkAddress adapterAddress() const override { return m_setup.address; }
    const char* usbVersion() const override;

    const InterfaceSetup& setup() const { return m_setup; }
    const std::vector<std::unique_ptr<SimulatedCamera>>& cameras() const { return m_cameras; }

    bool isPlugged() const { return m_plugged; }
    void setPlugged(bool plugged);
    void setSearchDelay(int milliseconds) { m_searchDelay = milliseconds; }

protected:
    int32_t search(std::chrono::milliseconds timeout, std::vector<ZetoCam::DeviceInfo*>& answering) override;

private:
    const InterfaceSetup m_setup;
    std::vector<std::unique_ptr<SimulatedCamera>> m_cameras;
    std::vector<std::unique_ptr<SimulatedDeviceInfo>> m_infos; ///< one for each camera, in the same order
    std::atomic<bool> m_plugged{true};
    std::atomic<int> m_searchDelay{0}; ///< ms
};

} // namespace ZetoSimulator
