#pragma once

#include <QObject>

#include <ZetoCameraApi.h>

namespace ZetoGui {

/// Tells on its own thread, by the event loop, when the connection to a camera is lost and when it is back.
/// What the camera library told before and was not delivered by the end of this object is dropped with it.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    /// \a device must outlive the object.
    explicit DeviceWatch(ZetoCam::Device& device);
    ~DeviceWatch() override;

signals:
    void lost();
    void back();

private:
    static void onEvent(int32_t eventId, void* context);

    ZetoCam::Device& m_device;
};

} // namespace ZetoGui
