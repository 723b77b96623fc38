#include "memorydevice.h"

#include "sparsememory.h"

namespace ZetoAravis {
namespace {

struct ZetoMemoryDevice
{
    ArvDevice parent;
    SparseMemory* memory; ///< not owned
};

struct ZetoMemoryDeviceClass
{
    ArvDeviceClass parent;
};

SparseMemory& memoryOf(ArvDevice* device)
{
    return *reinterpret_cast<ZetoMemoryDevice*>(device)->memory;
}

gboolean succeeded(bool success, guint64 address, GError** error)
{
    if (!success)
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
                    "no memory at 0x%" G_GINT64_MODIFIER "x", address);
    return success ? TRUE : FALSE;
}

gboolean readMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    return succeeded(memoryOf(device).read(address, static_cast<std::uint8_t*>(buffer), size), address,
                     error);
}

gboolean writeMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    return succeeded(memoryOf(device).write(address, static_cast<const std::uint8_t*>(buffer), size), address,
                     error);
}

gboolean readRegister(ArvDevice* device, guint64 address, guint32* value, GError** error)
{
    return readMemory(device, address, sizeof *value, value, error);
}

gboolean writeRegister(ArvDevice* device, guint64 address, guint32 value, GError** error)
{
    return writeMemory(device, address, sizeof value, &value, error);
}

void initialiseClass(gpointer classPointer, gpointer /*data*/)
{
    auto* deviceClass = static_cast<ArvDeviceClass*>(classPointer);
    deviceClass->get_genicam_xml = [](ArvDevice*, size_t* size) -> const char* {
        *size = 0;
        return nullptr;
    };
    deviceClass->get_genicam = [](ArvDevice*) -> ArvGc* { return nullptr; };
    deviceClass->read_memory = readMemory;
    deviceClass->write_memory = writeMemory;
    deviceClass->read_register = readRegister;
    deviceClass->write_register = writeRegister;
}

GType memoryDeviceType()
{
    static const GType type =
        g_type_register_static_simple(ARV_TYPE_DEVICE, "ZetoMemoryDevice", sizeof(ZetoMemoryDeviceClass),
                                      initialiseClass, sizeof(ZetoMemoryDevice), nullptr, GTypeFlags(0));
    return type;
}

} // namespace

GObjectPointer<ArvDevice> makeMemoryDevice(SparseMemory& memory)
{
    GObjectPointer<ArvDevice> device(static_cast<ArvDevice*>(g_object_new(memoryDeviceType(), nullptr)));
    reinterpret_cast<ZetoMemoryDevice*>(device.get())->memory = &memory;
    return device;
}

} // namespace ZetoAravis
