#pragma once

#include "camerabackend.h"

namespace ZetoCameraLibrary {

/// The interfaces of several backends as one system.
class LibrarySystem : public ZetoCam::System
{
public:
    ~LibrarySystem() override;

    /// Adds a backend that was made for this system. Before the system is used.
    void add(std::unique_ptr<CameraBackend> backend);

    /// Whether it has a backend: not before the first one is added nor after Close().
    bool isOpen() const;

    /// The first backend that is a \a Kind, or null.
    template <typename Kind>
    Kind* backend() const
    {
        for (const auto& each : m_backends) {
            if (auto* kind = dynamic_cast<Kind*>(each.get()))
                return kind;
        }
        return nullptr;
    }

    int32_t Close() override;
    ZetoCam::InterfaceList* GetInterfaceList(uint32_t typeMask) override;

private:
    std::vector<std::unique_ptr<CameraBackend>> m_backends;
};

/// Opens the camera that \a info describes; see ZetoCam_CreateDevice().
ZetoCam::Device* openDevice(ZetoCam::DeviceInfo* info, int32_t accessMode, int32_t* error);

} // namespace ZetoCameraLibrary
