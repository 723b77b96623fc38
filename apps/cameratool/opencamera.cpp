#include "opencamera.h"

#include <ZetoCameraApi.h>

#include <QCoreApplication>

#include <memory>
#include <stdexcept>

namespace {

constexpr uint64_t searchTimeMs = 1000;

struct ListReleaser
{
    template <typename T>
    void operator()(ZetoCam::List<T>* list) const
    {
        list->Release();
    }
};

/// Calls \a visit for each element of \a released until it returns true.
template <typename T, typename Visit>
bool visitUntil(ZetoCam::List<T>* released, Visit visit)
{
    const std::unique_ptr<ZetoCam::List<T>, ListReleaser> list(released);
    for (T* each = list ? list->GetFirst() : nullptr; each; each = list->GetNext()) {
        if (visit(*each))
            return true;
    }
    return false;
}

ZetoCam::Device* openFirst(const QString& id)
{
    ZetoCam::System* const system = ZetoCam_GetSystem();
    ZetoCam::Device* device = nullptr;
    const auto open = [&](ZetoCam::DeviceInfo& info) {
        if (id.isEmpty() || id == QLatin1String(info.GetID()))
            device = ZetoCam_CreateDevice(&info, ZetoCam::AccessControl, nullptr);
        return device != nullptr;
    };
    const auto search = [&](ZetoCam::Interface& adapter) {
        adapter.ReEnumerateDevices(nullptr, searchTimeMs);
        return visitUntil(adapter.GetDeviceInfoList(), open);
    };
    if (system)
        visitUntil(system->GetInterfaceList(ZetoCam::InterfaceMaskAll), search);
    return device;
}

ZetoCam::Device* openCamera(const QString& id)
{
    if (id == QLatin1String("none"))
        return nullptr;
    ZetoCam::Device* const device = openFirst(id);
    if (!device) {
        const QString text =
            QCoreApplication::translate("OpenCamera", "Cannot open the camera \"%1\".").arg(id);
        throw std::runtime_error(text.toStdString());
    }
    return device;
}

} // namespace

OpenCamera::OpenCamera(const QString& id)
    : m_device(openCamera(id))
{
}

OpenCamera::~OpenCamera()
{
    if (m_device)
        m_device->Release();
}
