#include <ZetoCameraApi.h>
#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <QApplication>

#include <cstdio>

/// The first camera of the first interface that has one.
static ZetoCam::Device* firstCamera(ZetoCam::System* system)
{
    ZetoCam::InterfaceList* interfaces = system->GetInterfaceList(0xffffffff);
    ZetoCam::Device* device = nullptr;
    for (auto* face = interfaces->GetFirst(); face && !device; face = interfaces->GetNext()) {
        bool changed = false;
        face->ReEnumerateDevices(&changed, 1000);
        ZetoCam::DeviceInfoList* infos = face->GetDeviceInfoList();
        if (ZetoCam::DeviceInfo* info = infos->GetFirst())
            device = ZetoCam_CreateDevice(info, ZetoCam::AccessControl, nullptr);
        infos->Release();
    }
    interfaces->Release();
    return device;
}

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    ZetoCam::Device* device = firstCamera(ZetoCam_GetSystem());
    if (!device)
        return 1;
    {
        ZetoGui::ZetoGenParamTreeView view(device->GetParameters(nullptr));
        view.show();
        std::printf("browsing %s\n", *view.saveState() ? "a camera" : "nothing");
    }
    device->Release();
    return 0;
}
