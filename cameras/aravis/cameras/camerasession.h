#pragma once

#include "livecamera.h"

#include <nodemapdevice.h>
#include <repeater.h>

namespace ZetoAravis {

/// A camera that is open. It looks after its connection on a thread of its own: a camera that does not answer
/// any more is reported lost, and looked for until it answers again.
class CameraSession final : private LiveCamera, public ZetoCameraLibrary::NodeMapDevice
{
public:
    /// \a onRelease is to destroy the session. \throws ZetoGenParam::CodeException with the reason when the
    /// camera cannot be opened.
    CameraSession(std::unique_ptr<CameraRoute> route, ZetoCam::AccessMode accessMode,
                  std::function<void(CameraSession&)> onRelease);
    ~CameraSession() override;

    void Release() override;

private:
    void lookAfter();
    void lose();
    void regain();

    const ZetoCam::AccessMode m_accessMode;
    const std::function<void(CameraSession&)> m_onRelease;
    bool m_isLost = false;
    int m_silences = 0; ///< how often in a row the camera did not answer
    ZetoCameraLibrary::Repeater m_watch;
};

} // namespace ZetoAravis
