#pragma once

#include "devicememory.h"
#include "sparsememory.h"

namespace ZetoAravis {

/// The memory of a camera that exists only in this process, as a device sees it.
class SparseDeviceMemory final : public DeviceMemory
{
public:
    bool readMemory(guint64 address, guint32 size, void* buffer, GError** error) override;
    bool writeMemory(guint64 address, guint32 size, void* buffer, GError** error) override;
    bool readRegister(guint64 address, guint32* value, GError** error) override;
    bool writeRegister(guint64 address, guint32 value, GError** error) override;

private:
    SparseMemory m_memory;
};

} // namespace ZetoAravis
