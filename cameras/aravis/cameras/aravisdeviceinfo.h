#pragma once

#include "camerasession.h"

#include <camerabackend.h>
#include <stabletext.h>

#include <list>
#include <mutex>

namespace ZetoAravis {

/// What is known of a camera, and its open sessions. Thread: any.
class AravisDeviceInfo : public ZetoCameraLibrary::OpenableDeviceInfo
{
public:
    struct Texts
    {
        std::string vendor;
        std::string model;
        std::string version;
        std::string serialNumber;
        std::string userName;
    };

    AravisDeviceInfo(ZetoCam::Interface& owner, std::string id);
    ~AravisDeviceInfo() override;
    AravisDeviceInfo(const AravisDeviceInfo&) = delete;
    AravisDeviceInfo& operator=(const AravisDeviceInfo&) = delete;

    ZetoCam::Interface* GetInterface() override;
    const char* GetID() override;
    const char* GetVendor() override;
    const char* GetModel() override;
    const char* GetDisplayName() override;
    const char* GetUserName() override;
    const char* GetSerialNumber() override;
    const char* GetVersion() override;

    ZetoCam::Device* open(ZetoCam::AccessMode accessMode, int32_t* error) override;

protected:
    void setTexts(const Texts& texts);
    bool isOpen() const;

    /// A way to the camera as the last search found it.
    virtual std::unique_ptr<CameraRoute> makeRoute() const = 0;

private:
    void close(CameraSession& session);

    ZetoCam::Interface& m_owner;
    const std::string m_id;
    ZetoCameraLibrary::StableText m_vendor;
    ZetoCameraLibrary::StableText m_model;
    ZetoCameraLibrary::StableText m_version;
    ZetoCameraLibrary::StableText m_serialNumber;
    ZetoCameraLibrary::StableText m_userName;
    ZetoCameraLibrary::StableText m_displayName;

    mutable std::mutex m_mutex; ///< guards m_sessions
    std::list<std::unique_ptr<CameraSession>> m_sessions;
};

/// An identifying text of what a camera is called, below that of the interface: ASCII without blanks.
std::string cameraId(const std::string& interfaceId, const std::string& name);

} // namespace ZetoAravis
