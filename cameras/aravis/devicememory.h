#pragma once

#include <glib.h>

namespace ZetoAravis {

/// What answers for the memory of a device that makeMemoryDevice() makes. As the Aravis library has it: a
/// failed access returns false and sets \a error, which may be null.
class DeviceMemory
{
public:
    DeviceMemory() = default;
    virtual ~DeviceMemory() = default;
    DeviceMemory(const DeviceMemory&) = delete;
    DeviceMemory& operator=(const DeviceMemory&) = delete;

    virtual bool readMemory(guint64 address, guint32 size, void* buffer, GError** error) = 0;
    virtual bool writeMemory(guint64 address, guint32 size, void* buffer, GError** error) = 0;

    // Single registers, in the byte order of this machine.
    virtual bool readRegister(guint64 address, guint32* value, GError** error) = 0;
    virtual bool writeRegister(guint64 address, guint32 value, GError** error) = 0;
};

} // namespace ZetoAravis
