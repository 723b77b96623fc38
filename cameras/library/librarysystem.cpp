#include "librarysystem.h"

#include "vectorlist.h"

#include <genparamerror.h>

namespace ZetoCameraLibrary {
namespace {

bool isInMask(ZetoCam::Interface& candidate, uint32_t typeMask)
{
    const int32_t type = candidate.GetType();
    return type >= 0 && type < 32 && (typeMask >> type & 1U);
}

} // namespace

LibrarySystem::~LibrarySystem() = default;

void LibrarySystem::add(std::unique_ptr<CameraBackend> backend)
{
    m_backends.push_back(std::move(backend));
}

bool LibrarySystem::isOpen() const
{
    return !m_backends.empty();
}

int32_t LibrarySystem::Close()
{
    m_backends.clear();
    return ZetoCam::Success;
}

ZetoCam::InterfaceList* LibrarySystem::GetInterfaceList(uint32_t typeMask)
{
    std::vector<ZetoCam::Interface*> matching;
    for (const auto& backend : m_backends) {
        for (ZetoCam::Interface* candidate : backend->interfaces()) {
            if (isInMask(*candidate, typeMask))
                matching.push_back(candidate);
        }
    }
    return VectorList<ZetoCam::Interface>::make(std::move(matching));
}

ZetoCam::Device* openDevice(ZetoCam::DeviceInfo* info, int32_t accessMode, int32_t* error)
{
    int32_t code = ZetoCam::ErrorInvalidArgument;
    ZetoCam::Device* device = nullptr;
    auto* openable = dynamic_cast<OpenableDeviceInfo*>(info);
    if (openable && (accessMode == ZetoCam::AccessReadOnly || accessMode == ZetoCam::AccessControl))
        device = openable->open(static_cast<ZetoCam::AccessMode>(accessMode), &code);
    ZetoGenParam::setError(error, code);
    return device;
}

} // namespace ZetoCameraLibrary
