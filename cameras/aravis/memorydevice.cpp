#include "memorydevice.h"

#include "devicememory.h"

#include <string>

namespace ZetoAravis {
namespace {

struct ZetoMemoryDevice
{
    ArvDevice parent;
    DeviceMemory* memory; ///< not owned
};

struct ZetoMemoryDeviceClass
{
    ArvDeviceClass parent;
};

DeviceMemory& memoryOf(ArvDevice* device)
{
    return *reinterpret_cast<ZetoMemoryDevice*>(device)->memory;
}

gboolean readMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    return memoryOf(device).readMemory(address, size, buffer, error) ? TRUE : FALSE;
}

gboolean writeMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    return memoryOf(device).writeMemory(address, size, buffer, error) ? TRUE : FALSE;
}

gboolean readRegister(ArvDevice* device, guint64 address, guint32* value, GError** error)
{
    return memoryOf(device).readRegister(address, value, error) ? TRUE : FALSE;
}

gboolean writeRegister(ArvDevice* device, guint64 address, guint32 value, GError** error)
{
    return memoryOf(device).writeRegister(address, value, error) ? TRUE : FALSE;
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

/// The name is unique in the process, where several libraries may contain this code.
std::string memoryDeviceName()
{
    static const char place = 0;
    return "ZetoMemoryDevice" + std::to_string(reinterpret_cast<std::uintptr_t>(&place));
}

GType memoryDeviceType()
{
    static const GType type = g_type_register_static_simple(ARV_TYPE_DEVICE, memoryDeviceName().c_str(),
                                                            sizeof(ZetoMemoryDeviceClass), initialiseClass,
                                                            sizeof(ZetoMemoryDevice), nullptr, GTypeFlags(0));
    return type;
}

} // namespace

GObjectPointer<ArvDevice> makeMemoryDevice(DeviceMemory& memory)
{
    GObjectPointer<ArvDevice> device(static_cast<ArvDevice*>(g_object_new(memoryDeviceType(), nullptr)));
    reinterpret_cast<ZetoMemoryDevice*>(device.get())->memory = &memory;
    return device;
}

} // namespace ZetoAravis
