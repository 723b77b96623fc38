#include "cameraconnection.h"

#include <ZetoGenParam.h>

#include <utility>

namespace ZetoGui {

CameraConnection::~CameraConnection()
{
    close();
}

void CameraConnection::use(ZetoCam::Device* device)
{
    close();
    m_device = device;
    if (!m_device)
        return;
    int32_t error = 0;
    m_params = m_device->GetParameters(&error);
    m_watch = std::make_unique<DeviceWatch>(*m_device);
    connect(m_watch.get(), &DeviceWatch::lost, this, [this] { setLost(true); });
    connect(m_watch.get(), &DeviceWatch::back, this, [this] { setLost(false); });
}

int32_t CameraConnection::open(ZetoCam::DeviceInfo& info)
{
    close();
    int32_t error = 0;
    ZetoCam::Device* const device = ZetoCam_CreateDevice(&info, ZetoCam::AccessControl, &error);
    if (!device)
        return error ? error : ZetoCam::ErrorUnknown;
    use(device);
    m_ownsDevice = true;
    return 0;
}

void CameraConnection::close()
{
    m_watch.reset();
    m_params = nullptr;
    m_isLost = false;
    ZetoCam::Device* const device = std::exchange(m_device, nullptr);
    if (std::exchange(m_ownsDevice, false))
        device->Release();
}

void CameraConnection::setLost(bool isLost)
{
    m_isLost = isLost;
    if (isLost)
        emit lost();
    else
        emit back();
}

} // namespace ZetoGui
