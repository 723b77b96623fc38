#include "devicewatch.h"

namespace ZetoGui {
namespace {

constexpr ZetoCam::DeviceEvent Events[] = {ZetoCam::EventDeviceBack, ZetoCam::EventDeviceLost};

} // namespace

DeviceWatch::DeviceWatch(ZetoCam::Device& device)
    : m_device(device)
{
    for (const ZetoCam::DeviceEvent event : Events) {
        m_device.UnregisterEvent(event, onEvent, this);
        m_device.RegisterEvent(event, onEvent, this);
    }
}

DeviceWatch::~DeviceWatch()
{
    for (const ZetoCam::DeviceEvent event : Events)
        m_device.UnregisterEvent(event, onEvent, this);
}

/// Always by an event, also on the own thread: the library must not be called back to release the device.
void DeviceWatch::onEvent(int32_t eventId, void* context)
{
    auto* const watch = static_cast<DeviceWatch*>(context);
    if (eventId == ZetoCam::EventDeviceLost)
        QMetaObject::invokeMethod(watch, &DeviceWatch::lost, Qt::QueuedConnection);
    else if (eventId == ZetoCam::EventDeviceBack)
        QMetaObject::invokeMethod(watch, &DeviceWatch::back, Qt::QueuedConnection);
}

} // namespace ZetoGui
