#include "deviceevents.h"

namespace ZetoCameraLibrary {

int32_t DeviceEvents::add(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    const bool known = eventId == ZetoCam::EventDeviceLost || eventId == ZetoCam::EventDeviceBack;
    if (!callback || !known)
        return ZetoCam::ErrorInvalidArgument;
    const std::lock_guard guard(m_mutex);
    m_registrations.add({eventId, callback, context});
    return ZetoCam::Success;
}

void DeviceEvents::remove(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    const std::lock_guard guard(m_mutex);
    m_registrations.remove({eventId, callback, context});
}

void DeviceEvents::notify(ZetoCam::DeviceEvent eventId)
{
    const std::lock_guard guard(m_mutex);
    m_registrations.notify([eventId](const Registration& registration) {
        if (registration.eventId == eventId)
            registration.callback(eventId, registration.context);
    });
}

} // namespace ZetoCameraLibrary
