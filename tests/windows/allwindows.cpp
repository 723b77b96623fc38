#include "allwindows.h"

#include "aboutdialog.h"
#include "generrorsdlg.h"
#include "setipdialog.h"

#include <ZetoCameraGuiApi/zetocamconfig.h>
#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>
#include <ZetoCameraGuiApi/zetocameraselectordialog.h>
#include <ZetoCameraGuiApi/zetogenparamtreeview.h>
#include <ZetoGenParam.h>

#include <QTest>

using namespace ZetoGui;

namespace {

template <typename Dialog>
WindowKind onCamera(const char* name)
{
    return {name,
            [](ZetoCam::System&, ZetoCam::Device& device) { return std::make_unique<Dialog>(&device); }};
}

template <typename Dialog>
WindowKind openedByAnother(const char* name)
{
    return {name, [](ZetoCam::System&, ZetoCam::Device&) { return std::make_unique<Dialog>(nullptr); }, true};
}

} // namespace

const std::vector<WindowKind>& allWindows()
{
    static const std::vector<WindowKind> windows = {
        {"browser",
         [](ZetoCam::System&, ZetoCam::Device& device) {
             return std::make_unique<ZetoGenParamTreeView>(device.GetParameters(nullptr));
         }},
        openedByAnother<GenErrorsDlg>("errors"),
        {"selector",
         [](ZetoCam::System& system, ZetoCam::Device&) {
             return std::make_unique<ZetoCameraSelectorDialog>(&system, nullptr, false);
         }},
        openedByAnother<SetIpDialog>("address"),
        onCamera<ZetoCamConfig>("config"),
        openedByAnother<AboutDialog>("about"),
        onCamera<ZetoCamConfigFrameABDialog>("frameab"),
        onCamera<ZetoCamConfigTriggerDialog>("trigger"),
        onCamera<ZetoCamConfigPulseDialog>("pulse"),
        onCamera<ZetoCamConfigStrobeDialog>("strobe"),
        onCamera<ZetoCamConfigOutputDialog>("output"),
        onCamera<ZetoCamConfigColorDialog>("color"),
    };
    return windows;
}

void addAllWindows()
{
    QTest::addColumn<WindowKind>("window");
    for (const WindowKind& window : allWindows())
        QTest::newRow(window.name) << window;
}

QList<QWidget*> partsOf(const QWidget& window)
{
    QList<QWidget*> parts = window.findChildren<QWidget*>();
    const auto isQtsOwn = [&](const QWidget* part) {
        return !part->isVisibleTo(&window) || part->objectName().startsWith(QLatin1String("qt_"));
    };
    parts.erase(std::remove_if(parts.begin(), parts.end(), isQtsOwn), parts.end());
    return parts;
}
