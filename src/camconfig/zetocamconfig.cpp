#include <ZetoCameraGuiApi/zetocamconfig.h>

#include "zetocamconfig_p.h"

#include <QCloseEvent>

namespace ZetoGui {

ZetoCamConfig::ZetoCamConfig()
    : ZetoCamConfig(nullptr)
{
}

ZetoCamConfig::ZetoCamConfig(ZetoCam::Device* device, QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
    , d_ptr(std::make_unique<ZetoCamConfigPrivate>(*this))
{
    if (!flags)
        setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    if (device)
        SetDevice(device);
}

ZetoCamConfig::~ZetoCamConfig() = default;

void ZetoCamConfig::SetDevice(ZetoCam::Device* device)
{
    d_func()->useCamera(device);
}

void ZetoCamConfig::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    d_func()->onShown();
}

void ZetoCamConfig::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        d_func()->closeDialogs();
}

} // namespace ZetoGui
