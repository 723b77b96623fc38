#include "camerasession.h"

#include <genparamerror.h>
#include <nodemap.h>

#include <utility>

namespace ZetoAravis {
namespace {

constexpr std::chrono::milliseconds watchPeriod(500);
constexpr int silencesOfALostCamera = 2; // a single datagram may get lost on the way

} // namespace

CameraSession::CameraSession(std::unique_ptr<CameraRoute> route, ZetoCam::AccessMode accessMode,
                             std::function<void(CameraSession&)> onRelease)
    : LiveCamera(std::move(route), accessMode)
    , NodeMapDevice(nodeMap())
    , m_accessMode(accessMode)
    , m_onRelease(std::move(onRelease))
{
    ZetoCameraLibrary::restrictAccess(nodeMap(), accessMode);
    m_watch.start(watchPeriod, [this](std::size_t) { lookAfter(); });
}

CameraSession::~CameraSession()
{
    m_watch.stop();
}

void CameraSession::Release()
{
    m_onRelease(*this);
}

void CameraSession::lookAfter()
{
    if (m_isLost)
        return regain();
    const auto isGood = [this](ArvDevice& device) { return route().isGood(device, m_accessMode); };
    const bool isThere = route().isAnswering() && link().isGood(isGood);
    m_silences = isThere ? 0 : m_silences + 1;
    if (m_silences == silencesOfALostCamera || !link().isConnected())
        lose();
}

void CameraSession::lose()
{
    link().breakOff();
    m_silences = 0;
    m_isLost = true;
    events().notify(ZetoCam::EventDeviceLost);
    link().drop();
}

/// The same camera with another firmware has another node map: it stays lost to this session.
void CameraSession::regain()
{
    GObjectPointer<ArvDevice> device;
    const bool isBack = ZetoGenParam::guardedCall([&] { device = route().connect(m_accessMode); }) == 0;
    if (!isBack || !describes(*device))
        return;
    link().connect(std::move(device));
    m_isLost = false;
    nodeMap().InvalidateNodes();
    events().notify(ZetoCam::EventDeviceBack);
}

} // namespace ZetoAravis
