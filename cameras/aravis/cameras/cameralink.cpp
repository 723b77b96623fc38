#include "cameralink.h"

#include <utility>

namespace ZetoAravis {

CameraLink::CameraLink(std::function<bool()> isAnswering)
    : m_isAnswering(std::move(isAnswering))
{
}

CameraLink::~CameraLink()
{
    drop();
}

void CameraLink::connect(GObjectPointer<ArvDevice> device)
{
    const std::lock_guard guard(m_mutex);
    m_device = std::move(device);
    m_lastAnswer = std::chrono::steady_clock::now();
    m_connected = true;
}

void CameraLink::drop()
{
    GObjectPointer<ArvDevice> device;
    const std::lock_guard guard(m_mutex);
    device = std::move(m_device);
}

bool CameraLink::readMemory(guint64 address, guint32 size, void* buffer, GError** error)
{
    return perform(error, [&](ArvDevice* device) {
        return arv_device_read_memory(device, address, size, buffer, error);
    });
}

bool CameraLink::writeMemory(guint64 address, guint32 size, void* buffer, GError** error)
{
    return perform(error, [&](ArvDevice* device) {
        return arv_device_write_memory(device, address, size, buffer, error);
    });
}

bool CameraLink::readRegister(guint64 address, guint32* value, GError** error)
{
    return perform(
        error, [&](ArvDevice* device) { return arv_device_read_register(device, address, value, error); });
}

bool CameraLink::writeRegister(guint64 address, guint32 value, GError** error)
{
    return perform(
        error, [&](ArvDevice* device) { return arv_device_write_register(device, address, value, error); });
}

template <typename Access>
bool CameraLink::perform(GError** error, Access access)
{
    const std::lock_guard guard(m_mutex);
    if (isReachable()) {
        const bool success = access(m_device.get()) != FALSE;
        if (success)
            m_lastAnswer = std::chrono::steady_clock::now();
        return success;
    }
    g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONNECTED,
                        "the camera does not answer");
    return false;
}

bool CameraLink::isReachable()
{
    constexpr std::chrono::milliseconds trust(250);
    if (!m_connected || !m_device)
        return false;
    const bool isTrusted = std::chrono::steady_clock::now() - m_lastAnswer < trust;
    if (!isTrusted && !m_isAnswering() && !m_isAnswering()) // a single datagram may get lost on the way
        breakOff();
    return m_connected;
}

} // namespace ZetoAravis
