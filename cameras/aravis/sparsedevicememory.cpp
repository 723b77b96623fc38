#include "sparsedevicememory.h"

#include <arv.h>

namespace ZetoAravis {
namespace {

bool succeeded(bool success, guint64 address, GError** error)
{
    if (!success)
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
                    "no memory at 0x%" G_GINT64_MODIFIER "x", address);
    return success;
}

} // namespace

bool SparseDeviceMemory::readMemory(guint64 address, guint32 size, void* buffer, GError** error)
{
    return succeeded(m_memory.read(address, static_cast<std::uint8_t*>(buffer), size), address, error);
}

bool SparseDeviceMemory::writeMemory(guint64 address, guint32 size, void* buffer, GError** error)
{
    return succeeded(m_memory.write(address, static_cast<const std::uint8_t*>(buffer), size), address, error);
}

bool SparseDeviceMemory::readRegister(guint64 address, guint32* value, GError** error)
{
    return readMemory(address, sizeof *value, value, error);
}

bool SparseDeviceMemory::writeRegister(guint64 address, guint32 value, GError** error)
{
    return writeMemory(address, sizeof value, &value, error);
}

} // namespace ZetoAravis
