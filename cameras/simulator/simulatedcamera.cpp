#include "simulatedcamera.h"

#include "camerafeatures.h"

#include <nodemap.h>

#include <utility>

namespace ZetoSimulator {
namespace {

class Session final : public ZetoCameraLibrary::NodeMapDevice
{
public:
    Session(SimulatedCamera& camera, ZetoNodeMap::NodeMap& features)
        : NodeMapDevice(features)
        , m_camera(camera)
    {
    }

    void Release() override { m_camera.closeSession(); }

private:
    SimulatedCamera& m_camera;
};

} // namespace

SimulatedCamera::SimulatedCamera(CameraSetup setup, ZetoCam::InterfaceType interfaceType,
                                 NetworkAddress adapter, Clock clock)
    : m_setup(std::move(setup))
    , m_interfaceType(interfaceType)
    , m_adapter(adapter)
    , m_clock(std::move(clock))
    , m_userName(m_setup.userName)
    , m_state{m_setup.plugged, true, true, m_setup.heldByOther, m_setup.address}
{
}

SimulatedCamera::~SimulatedCamera() = default;

NetworkAddress SimulatedCamera::address() const
{
    const std::lock_guard guard(m_mutex);
    return m_state.address;
}

ZetoCam::AccessStatus SimulatedCamera::accessStatus() const
{
    const std::lock_guard guard(m_mutex);
    return statusLocked();
}

bool SimulatedCamera::isFoundBySearch() const
{
    const std::lock_guard guard(m_mutex);
    return m_state.answersSearch();
}

bool SimulatedCamera::isPlugged() const
{
    const std::lock_guard guard(m_mutex);
    return m_state.plugged;
}

bool SimulatedCamera::isOpen() const
{
    const std::lock_guard guard(m_mutex);
    return m_session != nullptr;
}

int32_t SimulatedCamera::forceAddress(const NetworkAddress& address)
{
    const std::lock_guard guard(m_mutex);
    if (!isOnNetwork())
        return ZetoCam::ErrorInvalidState;
    if (!m_state.answersSearch())
        return ZetoCam::ErrorNoDevice;
    if (m_state.heldByOther || m_session)
        return ZetoCam::ErrorGenICamAccess;
    m_state.address = address;
    m_state.hidden = !isUsable(address, m_adapter);
    return ZetoCam::Success;
}

ZetoCam::Device* SimulatedCamera::open(ZetoCam::AccessMode accessMode, int32_t* error)
{
    std::call_once(m_featuresMade, [this] { makeFeatures(); });
    std::shared_ptr<ZetoCameraLibrary::NodeMapDevice> session;
    {
        const std::lock_guard guard(m_mutex);
        const bool isFree = m_state.answersSearch() && statusLocked() == ZetoCam::AccessStatusReadWrite;
        *error = isFree ? ZetoCam::Success : ZetoCam::ErrorNoDevice;
        if (!isFree)
            return nullptr;
        session = std::make_shared<Session>(*this, *m_features);
        m_session = session;
    }
    ZetoCameraLibrary::restrictAccess(*m_features, accessMode);
    return session.get();
}

void SimulatedCamera::closeSession()
{
    std::shared_ptr<ZetoCameraLibrary::NodeMapDevice> session;
    const std::lock_guard guard(m_mutex);
    session.swap(m_session);
}

void SimulatedCamera::setPlugged(bool plugged)
{
    change([&](State& state) {
        if (plugged && !state.plugged) {
            state.address = m_setup.address;
            state.hidden = false;
        }
        state.plugged = plugged;
    });
}

void SimulatedCamera::setInterfacePlugged(bool plugged)
{
    change([&](State& state) { state.interfacePlugged = plugged; });
}

void SimulatedCamera::setAnswering(bool answering)
{
    change([&](State& state) { state.answering = answering; });
}

void SimulatedCamera::setHeldByOther(bool held)
{
    change([&](State& state) { state.heldByOther = held; });
}

template <typename Change>
void SimulatedCamera::change(Change change)
{
    std::shared_ptr<ZetoCameraLibrary::NodeMapDevice> session;
    bool connected = false;
    {
        const std::lock_guard guard(m_mutex);
        const bool before = m_state.isConnected();
        change(m_state);
        connected = m_state.isConnected();
        m_faults.setConnected(connected);
        if (connected != before)
            session = m_session;
    }
    if (session)
        session->events().notify(connected ? ZetoCam::EventDeviceBack : ZetoCam::EventDeviceLost);
}

ZetoCam::AccessStatus SimulatedCamera::statusLocked() const
{
    if (isOnNetwork() && !isReachable(m_state.address, m_adapter))
        return ZetoCam::AccessStatusSubnetMismatch;
    return m_state.heldByOther || m_session ? ZetoCam::AccessStatusNoAccess : ZetoCam::AccessStatusReadWrite;
}

void SimulatedCamera::makeFeatures()
{
    m_features = makeCameraFeatures(*this);
    m_features->setAccessHook(
        [this](const char* call, const GENAPI_NAMESPACE::INode*) { m_faults.onCall(call); });
}

} // namespace ZetoSimulator
