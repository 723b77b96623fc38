#pragma once

#include <ZetoCameraApi.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ZetoCameraLibrary {

/// One way of reaching cameras, for example the simulator. The library's system shows the interfaces of all
/// backends that were chosen at run time, see backends.h.
class CameraBackend
{
public:
    CameraBackend() = default;
    virtual ~CameraBackend() = default;
    CameraBackend(const CameraBackend&) = delete;
    CameraBackend& operator=(const CameraBackend&) = delete;

    /// The interfaces that are there now, in a constant order, as pointers that stay valid as long as the
    /// backend. Thread: any.
    virtual std::vector<ZetoCam::Interface*> interfaces() = 0;
};

/// A camera description that can open its camera. All descriptions of all backends are of this class.
class OpenableDeviceInfo : public ZetoCam::DeviceInfo
{
public:
    /// Opens the camera as ZetoCam_CreateDevice() does. \a accessMode is one of ZetoCam::AccessMode and \a
    /// error is never null.
    virtual ZetoCam::Device* open(ZetoCam::AccessMode accessMode, int32_t* error) = 0;
};

} // namespace ZetoCameraLibrary
