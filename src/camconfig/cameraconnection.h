#pragma once

#include "devicewatch.h"

#include <memory>

namespace ZetoGui {

/// One camera at a time: given by a caller, who keeps it, or opened here and released here.
class CameraConnection : public QObject
{
    Q_OBJECT

public:
    CameraConnection() = default;
    ~CameraConnection() override;

    /// Uses \a device, which belongs to the caller and must outlive its use. Null leaves no camera.
    void use(ZetoCam::Device* device);

    /// Opens the camera that \a info describes. \return 0, or the error code, and there is no camera then
    int32_t open(ZetoCam::DeviceInfo& info);

    /// Who uses the camera or its parameters has let go of them before.
    void close();

    ZetoCam::Device* device() const { return m_device; }

    /// Null without a camera or when it cannot be read.
    ZetoGenParam::Array* params() const { return m_params; }

    /// Whether the camera was lost and is not back.
    bool isLost() const { return m_isLost; }

signals:
    void lost();
    void back();

private:
    void setLost(bool isLost);

    ZetoCam::Device* m_device = nullptr;
    ZetoGenParam::Array* m_params = nullptr;
    bool m_ownsDevice = false;
    bool m_isLost = false;
    std::unique_ptr<DeviceWatch> m_watch;
};

} // namespace ZetoGui
