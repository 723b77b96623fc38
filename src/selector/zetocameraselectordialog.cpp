#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include "zetocameraselectordialog_p.h"

namespace ZetoGui {

ZetoCameraSelectorDialog::ZetoCameraSelectorDialog(ZetoCam::System* system, QWidget* parent, bool poll)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCameraSelectorDialogPrivate>(*this, system, poll))
{
}

ZetoCameraSelectorDialog::~ZetoCameraSelectorDialog() = default;

ZetoCam::DeviceInfo* ZetoCameraSelectorDialog::selectedCamera() const
{
    return d_func()->currentCamera();
}

void ZetoCameraSelectorDialog::setSelectedCamera(ZetoCam::DeviceInfo* /*camera*/)
{
}

bool ZetoCameraSelectorDialog::isPollChecked()
{
    return d_func()->isPolling();
}

} // namespace ZetoGui
