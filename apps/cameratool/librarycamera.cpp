#include "librarycamera.h"

#include "opencamera.h"

#include <ZetoCameraApi.h>
#include <ZetoGenParam.h>

#include <stdexcept>

namespace {

ZetoGenParam::Array& parametersOf(ZetoCam::Device* device)
{
    ZetoGenParam::Array* const parameters = device ? device->GetParameters(nullptr) : nullptr;
    if (!parameters)
        throw std::runtime_error("There is no camera to browse.");
    return *parameters;
}

class LibraryCamera final : public BrowsedCamera
{
public:
    explicit LibraryCamera(const QString& id)
        : m_camera(id)
        , m_parameters(parametersOf(m_camera.device()))
    {
    }

    GenApi::INodeMap& nodeMap() const override { return *m_parameters.GetNodeMap(0); }

    QString vendorName() const override { return text("DeviceVendorName"); }
    QString modelName() const override { return text("DeviceModelName"); }

private:
    QString text(const char* feature) const
    {
        ZetoGenParam::String* const param = m_parameters.GetString(feature, nullptr);
        return param ? QString::fromUtf8(param->GetValue(nullptr)) : QString();
    }

    const OpenCamera m_camera;
    ZetoGenParam::Array& m_parameters;
};

} // namespace

std::unique_ptr<BrowsedCamera> openLibraryCamera(const QString& id)
{
    return std::make_unique<LibraryCamera>(id);
}
