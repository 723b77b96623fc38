#pragma once

#include <camerabackend.h>

namespace ZetoSimulator {

class SimulatedCamera;

/// The description of a simulated camera. It shows the camera as it is now.
class SimulatedDeviceInfo final : public ZetoCameraLibrary::OpenableDeviceInfo
{
public:
    SimulatedDeviceInfo(ZetoCam::Interface& owner, SimulatedCamera& camera);

    const SimulatedCamera& camera() const { return m_camera; }

    ZetoCam::Interface* GetInterface() override;
    const char* GetID() override;
    const char* GetVendor() override;
    const char* GetModel() override;
    const char* GetDisplayName() override;
    const char* GetUserName() override;
    const char* GetSerialNumber() override;
    const char* GetVersion() override;
    int32_t GetAccessStatus() override;
    uint64_t GetMACAddress() override;
    uint32_t GetIPAddress() override;
    uint32_t GetSubnetMask() override;
    uint32_t GetGateway() override;
    int32_t ForceIP(uint32_t address, uint32_t mask, uint32_t gateway) override;

    ZetoCam::Device* open(ZetoCam::AccessMode accessMode, int32_t* error) override;

private:
    ZetoCam::Interface& m_owner;
    SimulatedCamera& m_camera;
};

} // namespace ZetoSimulator
