#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include "bootstrap.h"
#include "centredhost.h"
#include "guardedcall.h"
#include "native.h"

#include <ZetoCameraGuiApi/qwinwidget.h>
#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include <QTimer>

namespace {

constexpr std::chrono::milliseconds timeBetweenLooks(200);

/// Cancels \a dialog, and what it has opened, once the host's \a window is gone. On Windows their own windows
/// go along, without Qt telling, and nobody could close them any more.
void endWith(HWND window, QDialog& dialog)
{
    auto* const timer = new QTimer(&dialog);
    QObject::connect(timer, &QTimer::timeout, &dialog, [window, &dialog] {
        if (Native::isWindow(window))
            return;
        const auto opened = dialog.findChildren<QDialog*>();
        for (QDialog* each : opened)
            each->reject();
        dialog.reject();
    });
    timer->start(timeBetweenLooks);
}

ZetoCam::DeviceInfo* selectCamera(ZetoCam::System* system, const QString& title, HWND window, bool poll)
{
    Bootstrap::ensureApplicationWithPlugins();
    const auto host = centredHost(window);
    ZetoGui::ZetoCameraSelectorDialog dialog(system, host.get(), poll);
    dialog.setWindowTitle(title);
    dialog.setModal(true);
    if (host)
        endWith(window, dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedCamera() : nullptr;
}

} // namespace

ZetoCam::DeviceInfo* SelectCameraA(ZetoCam::System* system, const char* title, HWND hwnd, bool poll)
{
    return guardedCall([&] { return selectCamera(system, QString::fromUtf8(title), hwnd, poll); });
}

ZetoCam::DeviceInfo* SelectCameraW(ZetoCam::System* system, const wchar_t* title, HWND hwnd, bool poll)
{
    return guardedCall([&] { return selectCamera(system, QString::fromWCharArray(title), hwnd, poll); });
}
