#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include "bootstrap.h"
#include "guardedcall.h"

#include <ZetoCameraGuiApi/zetocamconfig.h>
#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

namespace {

/// Shows a window no longer than the call takes. These functions neither block nor leave a window behind.
template <typename Window>
void showBriefly(ZetoCam::Device* device, HWND parent) noexcept
{
    guardedCall([device, parent] {
        Bootstrap::ensureApplication();
        Window window(device, QWidget::find(reinterpret_cast<WId>(parent)));
        window.show();
    });
}

} // namespace

void ShowCamConfigDialog(ZetoCam::Device* device, HWND parent)
{
    showBriefly<ZetoGui::ZetoCamConfig>(device, parent);
}

void ShowColorDialog(ZetoCam::Device* device, HWND parent)
{
    showBriefly<ZetoGui::ZetoCamConfigColorDialog>(device, parent);
}

void ShowFrameABDialog(ZetoCam::Device* device, HWND parent)
{
    // The colour dialog, as it always was.
    showBriefly<ZetoGui::ZetoCamConfigColorDialog>(device, parent);
}

void ShowOutputDialog(ZetoCam::Device* device, HWND parent)
{
    showBriefly<ZetoGui::ZetoCamConfigOutputDialog>(device, parent);
}

void ShowPulseDialog(ZetoCam::Device* device, HWND parent)
{
    showBriefly<ZetoGui::ZetoCamConfigPulseDialog>(device, parent);
}

void ShowStrobeDialog(ZetoCam::Device* device, HWND parent)
{
    showBriefly<ZetoGui::ZetoCamConfigStrobeDialog>(device, parent);
}

void ShowTriggerDialog(ZetoCam::Device* device, HWND parent)
{
    showBriefly<ZetoGui::ZetoCamConfigTriggerDialog>(device, parent);
}
