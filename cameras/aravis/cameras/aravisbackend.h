#pragma once

#include <camerabackend.h>

#include <map>
#include <mutex>

namespace ZetoAravis {

class GigEInterface;
class ListedInterface;

/// The GigE Vision cameras on each network adapter of this machine and the USB3 Vision cameras, through the
/// Aravis library.
class AravisBackend final : public ZetoCameraLibrary::CameraBackend
{
public:
    /// The interfaces belong to \a system.
    explicit AravisBackend(ZetoCam::System& system);
    ~AravisBackend() override;

    std::vector<ZetoCam::Interface*> interfaces() override;

private:
    ZetoCam::System& m_system;
    std::unique_ptr<ListedInterface> m_usb;

    std::mutex m_mutex;                                               ///< guards m_adapters
    std::map<std::string, std::unique_ptr<GigEInterface>> m_adapters; ///< every one ever seen, by name
};

} // namespace ZetoAravis
