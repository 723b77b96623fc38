#pragma once

class QWidget;

namespace ZetoCam {
class DeviceInfo;
}

/// Lets a person give \a camera another IP configuration, and has the camera take it. A configuration that
/// puts the camera out of its adapter's reach is asked about first. \return false when the camera is on no
/// network, its adapter cannot be read or the camera refused; to cancel is no failure
bool configureIp(ZetoCam::DeviceInfo& camera, QWidget* parent);
