#pragma once

class QWidget;

namespace ZetoCam {
class DeviceInfo;
}

namespace ZetoGui {

/// Lets a person choose a camera in a dialog over \a window, and returns when that is done or \a window is
/// gone. \return null when none was chosen or there is no camera library
ZetoCam::DeviceInfo* chooseCamera(QWidget& window);

} // namespace ZetoGui
