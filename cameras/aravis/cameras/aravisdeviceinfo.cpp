#include "aravisdeviceinfo.h"

#include <genparamerror.h>

#include <algorithm>
#include <utility>

namespace ZetoAravis {

AravisDeviceInfo::AravisDeviceInfo(ZetoCam::Interface& owner, std::string id)
    : m_owner(owner)
    , m_id(std::move(id))
{
}

AravisDeviceInfo::~AravisDeviceInfo() = default;

ZetoCam::Interface* AravisDeviceInfo::GetInterface()
{
    return &m_owner;
}

const char* AravisDeviceInfo::GetID()
{
    return m_id.c_str();
}

const char* AravisDeviceInfo::GetVendor()
{
    return m_vendor.get();
}

const char* AravisDeviceInfo::GetModel()
{
    return m_model.get();
}

const char* AravisDeviceInfo::GetDisplayName()
{
    return m_displayName.get();
}

const char* AravisDeviceInfo::GetUserName()
{
    return m_userName.get();
}

const char* AravisDeviceInfo::GetSerialNumber()
{
    return m_serialNumber.get();
}

const char* AravisDeviceInfo::GetVersion()
{
    return m_version.get();
}

ZetoCam::Device* AravisDeviceInfo::open(ZetoCam::AccessMode accessMode, int32_t* error)
{
    std::unique_ptr<CameraSession> session;
    *error = ZetoGenParam::guardedCall([&] {
        session = std::make_unique<CameraSession>(makeRoute(), accessMode,
                                                  [this](CameraSession& released) { close(released); });
    });
    if (!session)
        return nullptr;
    const std::lock_guard guard(m_mutex);
    return m_sessions.emplace_back(std::move(session)).get();
}

void AravisDeviceInfo::setTexts(const Texts& texts)
{
    m_vendor.set(texts.vendor);
    m_model.set(texts.model);
    m_version.set(texts.version);
    m_serialNumber.set(texts.serialNumber);
    m_userName.set(texts.userName);
    const std::string name = texts.vendor + " " + texts.model;
    m_displayName.set(texts.serialNumber.empty() ? name : name + " (" + texts.serialNumber + ")");
}

bool AravisDeviceInfo::isOpen() const
{
    const std::lock_guard guard(m_mutex);
    return !m_sessions.empty();
}

/// Destroys the session without the lock: it waits for the camera's farewell.
void AravisDeviceInfo::close(CameraSession& session)
{
    std::list<std::unique_ptr<CameraSession>> closed;
    const std::lock_guard guard(m_mutex);
    const auto found = std::find_if(m_sessions.begin(), m_sessions.end(),
                                    [&](const auto& each) { return each.get() == &session; });
    if (found != m_sessions.end())
        closed.splice(closed.begin(), m_sessions, found);
}

std::string cameraId(const std::string& interfaceId, const std::string& name)
{
    std::string id = interfaceId + "." + name;
    std::replace_if(
        id.begin(), id.end(), [](char c) { return c <= ' ' || c >= 0x7F; }, '_');
    return id;
}

} // namespace ZetoAravis
