#include "camerachooser.h"

#include "scopeddialog.h"

#include <ZetoCameraApi.h>
#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include <QCoreApplication>

namespace ZetoGui {

ZetoCam::DeviceInfo* chooseCamera(QWidget& window)
{
    ZetoCam::System* const system = ZetoCam_GetSystem();
    if (!system)
        return nullptr;
    const ScopedDialog<ZetoCameraSelectorDialog> selector(system, &window, true);
    selector->setWindowTitle(QCoreApplication::translate("ZetoCamConfigMainWindow", "Select a device"));
    const bool isAccepted = selector->exec() == QDialog::Accepted;
    return selector && isAccepted ? selector->selectedCamera() : nullptr;
}

} // namespace ZetoGui
