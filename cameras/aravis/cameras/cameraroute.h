#pragma once

#include "gobjectpointer.h"

#include <arv.h>

#include <ZetoCameraApi.h>

#include <functional>

namespace ZetoAravis {

/// The way to one camera. Thread: connect() one at a time, the rest any.
class CameraRoute
{
public:
    CameraRoute() = default;
    virtual ~CameraRoute() = default;
    CameraRoute(const CameraRoute&) = delete;
    CameraRoute& operator=(const CameraRoute&) = delete;

    /// Opens the camera. \throws ZetoGenParam::CodeException with the reason when it cannot be opened.
    virtual GObjectPointer<ArvDevice> connect(ZetoCam::AccessMode accessMode) = 0;

    /// Whether the camera is still there: asked besides the connection, which would wait for seconds.
    virtual bool isAnswering() const = 0;

    /// Whether the library still reaches and, for AccessControl, controls the camera over the connection.
    virtual bool isGood(ArvDevice& device, ZetoCam::AccessMode accessMode) const = 0;
};

/// Opens a device of the library with \a open(GError**). \throws ZetoGenParam::CodeException when nothing is
/// opened: ErrorGenICamTree when the camera has no usable description, else ErrorNoDevice.
GObjectPointer<ArvDevice> openDevice(const std::function<ArvDevice*(GError**)>& open);

} // namespace ZetoAravis
