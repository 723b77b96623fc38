#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>

#include "zetocamconfigframeabdialog_p.h"

#include <QCloseEvent>

namespace ZetoGui {

ZetoCamConfigFrameABDialog::ZetoCamConfigFrameABDialog(ZetoCam::Device* device, QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCamConfigFrameABDialogPrivate>(this))
{
    SetDevice(device);
}

ZetoCamConfigFrameABDialog::~ZetoCamConfigFrameABDialog() = default;

bool ZetoCamConfigFrameABDialog::SetDevice(ZetoCam::Device* device)
{
    return d_func()->SetDevice(device);
}

void ZetoCamConfigFrameABDialog::closeEvent(QCloseEvent* event)
{
    emit closing();
    QDialog::closeEvent(event);
}

} // namespace ZetoGui
