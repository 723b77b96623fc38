#pragma once

#include "simulateddeviceinfo.h"
#include "simulatorsetup.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace ZetoGenParam {
class NodeMapArray;
}

namespace ZetoNodeMap {
class NodeMap;
}

namespace ZetoSimulator {

/// A simulated interface with all cameras that can ever be plugged into it. Thread: any.
class SimulatedInterface final : public ZetoCam::Interface
{
public:
    SimulatedInterface(ZetoCam::System& system, InterfaceSetup setup, const Clock& clock);
    ~SimulatedInterface() override;
    SimulatedInterface(const SimulatedInterface&) = delete;
    SimulatedInterface& operator=(const SimulatedInterface&) = delete;

    ZetoCam::DeviceInfoList* GetDeviceInfoList() override;
    ZetoGenParam::Array* GetParameters(int32_t* error) override;
    ZetoCam::System* GetSystem() override;
    int32_t ReEnumerateDevices(bool* changed, uint64_t timeout) override;
    const char* GetDescription() override;
    int32_t GetType() override;
    const char* GetID() override;
    const char* GetVersion() override;

    const InterfaceSetup& setup() const { return m_setup; }
    const std::vector<std::unique_ptr<SimulatedCamera>>& cameras() const { return m_cameras; }

    /// The cameras that the last search found.
    std::vector<SimulatedDeviceInfo*> found() const;

    bool isPlugged() const { return m_plugged; }
    void setPlugged(bool plugged);
    void setSearchDelay(int milliseconds) { m_searchDelay = milliseconds; }

private:
    bool search();

    ZetoCam::System& m_system;
    const InterfaceSetup m_setup;
    std::vector<std::unique_ptr<SimulatedCamera>> m_cameras;
    std::vector<std::unique_ptr<SimulatedDeviceInfo>> m_infos; ///< one for each camera, in the same order
    std::atomic<bool> m_plugged{true};
    std::atomic<int> m_searchDelay{0}; ///< ms

    mutable std::mutex m_mutex; ///< guards m_found; nothing else is called while it is held
    std::vector<SimulatedDeviceInfo*> m_found;

    std::unique_ptr<ZetoNodeMap::NodeMap> m_features;
    std::unique_ptr<ZetoGenParam::NodeMapArray> m_parameters;
};

} // namespace ZetoSimulator
