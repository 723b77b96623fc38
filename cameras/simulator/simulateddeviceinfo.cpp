#include "simulateddeviceinfo.h"

#include "simulatedcamera.h"

namespace ZetoSimulator {

SimulatedDeviceInfo::SimulatedDeviceInfo(ZetoCam::Interface& owner, SimulatedCamera& camera)
    : m_owner(owner)
    , m_camera(camera)
{
}

ZetoCam::Interface* SimulatedDeviceInfo::GetInterface()
{
    return &m_owner;
}

const char* SimulatedDeviceInfo::GetID()
{
    return m_camera.setup().id.c_str();
}

const char* SimulatedDeviceInfo::GetVendor()
{
    return m_camera.setup().vendor.c_str();
}

const char* SimulatedDeviceInfo::GetModel()
{
    return m_camera.setup().model.c_str();
}

const char* SimulatedDeviceInfo::GetDisplayName()
{
    return m_camera.setup().displayName.c_str();
}

const char* SimulatedDeviceInfo::GetUserName()
{
    return m_camera.userName().get();
}

const char* SimulatedDeviceInfo::GetSerialNumber()
{
    return m_camera.setup().serialNumber.c_str();
}

const char* SimulatedDeviceInfo::GetVersion()
{
    return m_camera.setup().version.c_str();
}

int32_t SimulatedDeviceInfo::GetAccessStatus()
{
    return m_camera.accessStatus();
}

uint64_t SimulatedDeviceInfo::GetMACAddress()
{
    return m_camera.setup().mac;
}

uint32_t SimulatedDeviceInfo::GetIPAddress()
{
    return m_camera.address().ip;
}

uint32_t SimulatedDeviceInfo::GetSubnetMask()
{
    return m_camera.address().mask;
}

uint32_t SimulatedDeviceInfo::GetGateway()
{
    return m_camera.address().gateway;
}

int32_t SimulatedDeviceInfo::ForceIP(uint32_t address, uint32_t mask, uint32_t gateway)
{
    return m_camera.forceAddress({address, mask, gateway});
}

ZetoCam::Device* SimulatedDeviceInfo::open(ZetoCam::AccessMode accessMode, int32_t* error)
{
    return m_camera.open(accessMode, error);
}

} // namespace ZetoSimulator
