#pragma once

#include "networkaddress.h"

#include <ZetoCameraApi.h>

#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

namespace ZetoGenParam {
class NodeMapArray;
}

namespace ZetoNodeMap {
class NodeMap;
}

namespace ZetoCameraLibrary {

/// An interface that keeps what its last search found and offers the usual features of an interface. How it
/// searches, and what it is, is left to the backend. Thread: any.
class SearchedInterface : public ZetoCam::Interface
{
public:
    explicit SearchedInterface(ZetoCam::System& system);
    ~SearchedInterface() override;
    SearchedInterface(const SearchedInterface&) = delete;
    SearchedInterface& operator=(const SearchedInterface&) = delete;

    ZetoCam::DeviceInfoList* GetDeviceInfoList() override;
    ZetoGenParam::Array* GetParameters(int32_t* error) override;
    ZetoCam::System* GetSystem() override;
    int32_t ReEnumerateDevices(bool* changed, uint64_t timeout) override;

    /// The cameras that the last search found.
    std::vector<ZetoCam::DeviceInfo*> found() const;

    /// The network adapter, asked of GigE Vision interfaces only.
    virtual uint64_t adapterMac() const { return 0; }
    virtual NetworkAddress adapterAddress() const { return {}; }

    /// The version of USB by which the cameras are connected; null where it is not known.
    virtual const char* usbVersion() const { return nullptr; }

protected:
    /// Puts the cameras that answer within \a timeout into \a answering, in a constant order. Several threads
    /// may search at once. \return a ZetoCam::ErrorCode
    virtual int32_t search(std::chrono::milliseconds timeout,
                           std::vector<ZetoCam::DeviceInfo*>& answering) = 0;

private:
    ZetoGenParam::Array& parameters();

    ZetoCam::System& m_system;

    mutable std::mutex m_mutex; ///< guards m_found; nothing else is called while it is held
    std::vector<ZetoCam::DeviceInfo*> m_found;

    std::once_flag m_featuresMade;
    std::unique_ptr<ZetoNodeMap::NodeMap> m_features;
    std::unique_ptr<ZetoGenParam::NodeMapArray> m_parameters;
};

} // namespace ZetoCameraLibrary
