#include <ZetoCameraApi.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocameraselectordialog.h>
#include <ZetoGenParam.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QTreeView>

#include <cstdio>

namespace {

#define REQUIRE(condition)                                                                                   \
    if (!(condition)) {                                                                                      \
        std::fprintf(stderr, "failed: %s\n", #condition);                                                    \
        return false;                                                                                        \
    }

ZetoCam::DeviceInfo* firstCamera(ZetoCam::System& system)
{
    ZetoCam::InterfaceList* const interfaces = system.GetInterfaceList(ZetoCam::InterfaceMaskAll);
    ZetoCam::DeviceInfoList* const cameras = interfaces->GetFirst()->GetDeviceInfoList();
    ZetoCam::DeviceInfo* const first = cameras->GetFirst();
    cameras->Release();
    interfaces->Release();
    return first;
}

bool findsTheCamera(ZetoCam::System* system)
{
    ZetoGui::ZetoCameraSelectorDialog dialog(system, nullptr, false);
    dialog.show();
    const auto* const tree = dialog.findChild<QTreeView*>();
    REQUIRE(tree);
    const QModelIndex connection = tree->model()->index(0, 0);
    REQUIRE(connection.data().toString().contains("The maker's interface"));
    REQUIRE(tree->model()->index(0, 0, connection).data().toString().contains("The maker's camera"));
    return true;
}

bool configuresTheCamera(ZetoCam::Device* device)
{
    REQUIRE(device);
    const ZetoGui::ZetoCamConfigPulseDialog dialog(device);
    REQUIRE(dialog.isEnabled());
    ZetoGenParam::Int* const period = device->GetParameters(nullptr)->GetInt("PulseGenPeriod", nullptr);
    const auto shows = [&](int value) {
        const auto* const box = dialog.findChild<QWidget*>("spBoxPeriod")->findChild<QAbstractSpinBox*>();
        return box->text().toInt() == value;
    };
    REQUIRE(shows(42));
    REQUIRE(period->SetValue(77) == ZetoCam::Success);
    REQUIRE(shows(77));
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ZetoCam::System* const system = ZetoCam_GetSystem();
    ZetoCam::Device* const device =
        ZetoCam_CreateDevice(firstCamera(*system), ZetoCam::AccessControl, nullptr);
    return findsTheCamera(system) && configuresTheCamera(device) ? 0 : 1;
}
