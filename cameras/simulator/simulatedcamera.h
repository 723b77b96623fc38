#pragma once

#include "accessfaults.h"
#include "simulatorsetup.h"

#include <nodemapdevice.h>
#include <stabletext.h>

#include <memory>
#include <mutex>

namespace ZetoNodeMap {
class NodeMap;
}

namespace ZetoSimulator {

/// A camera: its connection, its address, its features and the one session that may be open. Features keep
/// their values from session to session. Thread: any.
class SimulatedCamera
{
public:
    /// \a adapter is the address of the interface's network adapter.
    SimulatedCamera(CameraSetup setup, ZetoCam::InterfaceType interfaceType, NetworkAddress adapter,
                    Clock clock);
    ~SimulatedCamera();
    SimulatedCamera(const SimulatedCamera&) = delete;
    SimulatedCamera& operator=(const SimulatedCamera&) = delete;

    const CameraSetup& setup() const { return m_setup; }
    ZetoCam::InterfaceType interfaceType() const { return m_interfaceType; }
    const Clock& clock() const { return m_clock; }
    const ZetoCameraLibrary::StableText& userName() const { return m_userName; }
    void setUserName(const std::string& name) { m_userName.set(name); }

    NetworkAddress address() const;
    ZetoCam::AccessStatus accessStatus() const;
    bool isFoundBySearch() const;
    bool isPlugged() const;
    bool isOpen() const;

    int32_t forceAddress(const NetworkAddress& address);

    /// The session is owned by the camera until its Release(). Null with an \a error when it cannot be
    /// opened.
    ZetoCam::Device* open(ZetoCam::AccessMode accessMode, int32_t* error);
    void closeSession();

    // The camera's fate. A change tells an open session that the camera is lost or back.
    void setPlugged(bool plugged);
    void setInterfacePlugged(bool plugged);
    void setAnswering(bool answering);
    void setHeldByOther(bool held);
    AccessFaults& faults() { return m_faults; }

private:
    struct State
    {
        bool plugged;
        bool interfacePlugged = true;
        bool answering = true;
        bool heldByOther;
        NetworkAddress address;
        bool hidden = false; ///< behind an address that no search of the adapter reaches

        bool isConnected() const { return plugged && interfacePlugged && answering; }
        bool answersSearch() const { return isConnected() && !hidden; }
    };

    template <typename Change>
    void change(Change change);
    bool isOnNetwork() const { return m_interfaceType == ZetoCam::InterfaceGigEVision; }
    ZetoCam::AccessStatus statusLocked() const;
    void makeFeatures();

    const CameraSetup m_setup;
    const ZetoCam::InterfaceType m_interfaceType;
    const NetworkAddress m_adapter;
    const Clock m_clock;
    ZetoCameraLibrary::StableText m_userName;
    AccessFaults m_faults;

    std::once_flag m_featuresMade;
    std::unique_ptr<ZetoNodeMap::NodeMap> m_features; ///< null until the camera is opened for the first time

    mutable std::mutex m_mutex; ///< never held while features are accessed or callbacks run
    State m_state;
    std::shared_ptr<ZetoCameraLibrary::NodeMapDevice> m_session;
};

} // namespace ZetoSimulator
