#pragma once

#include <QString>

namespace ZetoCam {
class Device;
}

/// A camera of the camera access library, open as long as this object.
class OpenCamera
{
public:
    /// \param id the camera's id; empty: the first camera that can be opened; "none": no camera
    /// \throws std::runtime_error with a text for the person when there is no such camera or it cannot be
    /// opened
    explicit OpenCamera(const QString& id);
    ~OpenCamera();
    Q_DISABLE_COPY(OpenCamera)

    /// Null for no camera.
    ZetoCam::Device* device() const { return m_device; }

private:
    ZetoCam::Device* const m_device;
};
