#include "camerainfo.h"

#include "addresstext.h"
#include "interfaceparams.h"
#include "selectortexts.h"

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QString macFeature(const InterfaceParams& params, const char* name)
{
    const auto address = params.integer(name);
    return address ? capitalMacText(static_cast<quint64>(*address)) : QString();
}

QString ipv4Feature(const InterfaceParams& params, const char* name)
{
    const auto address = params.integer(name);
    return address ? ipv4Text(static_cast<quint32>(*address)) : QString();
}

QVector<InfoLine> identity(ZetoCam::DeviceInfo& camera)
{
    return {
        {SelectorTexts::tr("Display name"), text(camera.GetDisplayName())},
        {SelectorTexts::tr("Vendor"), text(camera.GetVendor())},
        {SelectorTexts::tr("Model"), text(camera.GetModel())},
        {SelectorTexts::tr("Serial number"), text(camera.GetSerialNumber())},
        {SelectorTexts::tr("Version"), text(camera.GetVersion())},
        {SelectorTexts::tr("User name"), text(camera.GetUserName())},
    };
}

InfoLine access(ZetoCam::DeviceInfo& camera)
{
    const int32_t status = camera.GetAccessStatus();
    return {SelectorTexts::tr("Access status"), accessStatusText(status), !isOpenable(status)};
}

InfoLine usbVersion(ZetoCam::DeviceInfo& camera)
{
    const auto version = InterfaceParams::about(camera).text("DeviceUSBVersionDetected");
    return {SelectorTexts::tr("USB Version"), version.value_or(QString())};
}

QVector<InfoLine> networkLines(ZetoCam::DeviceInfo& camera)
{
    return {
        {SelectorTexts::tr("MAC Address"), macFeature(InterfaceParams::about(camera), "GevDeviceMACAddress")},
        {SelectorTexts::tr("IP Address"), ipv4Text(camera.GetIPAddress())},
        {SelectorTexts::tr("Netmask"), ipv4Text(camera.GetSubnetMask())},
        {SelectorTexts::tr("Gateway"), ipv4Text(camera.GetGateway())},
    };
}

QVector<InfoLine> networkLines(ZetoCam::Interface& shown)
{
    const InterfaceParams params(shown);
    return {
        {SelectorTexts::tr("MAC Address"), macFeature(params, "GevInterfaceMACAddress")},
        {SelectorTexts::tr("IP Address"), ipv4Feature(params, "GevInterfaceSubnetIPAddress")},
        {SelectorTexts::tr("Netmask"), ipv4Feature(params, "GevInterfaceSubnetMask")},
    };
}

} // namespace

QVector<InfoLine> cameraInfo(ZetoCam::DeviceInfo& camera)
{
    ZetoCam::Interface* const owner = camera.GetInterface();
    const int32_t type = owner ? owner->GetType() : ZetoCam::InterfaceCustom;
    QVector<InfoLine> lines = identity(camera);
    if (type == ZetoCam::InterfaceUSB3Vision)
        lines << usbVersion(camera);
    lines << access(camera);
    if (type == ZetoCam::InterfaceGigEVision)
        lines << networkLines(camera);
    return lines;
}

QVector<InfoLine> interfaceInfo(ZetoCam::Interface& shown)
{
    const int32_t type = shown.GetType();
    QVector<InfoLine> lines = {
        {SelectorTexts::tr("Description"), text(shown.GetDescription())},
        {SelectorTexts::tr("Type"), interfaceTypeText(type)},
        {SelectorTexts::tr("Version"), text(shown.GetVersion())},
    };
    if (type == ZetoCam::InterfaceGigEVision)
        lines << networkLines(shown);
    return lines;
}

bool isOpenable(int32_t accessStatus)
{
    return accessStatus != ZetoCam::AccessStatusNoAccess &&
           accessStatus != ZetoCam::AccessStatusSubnetMismatch;
}

bool isOnNetwork(ZetoCam::DeviceInfo& camera)
{
    ZetoCam::Interface* const owner = camera.GetInterface();
    return owner && owner->GetType() == ZetoCam::InterfaceGigEVision;
}

QString accessStatusText(int32_t accessStatus)
{
    switch (accessStatus) {
    case ZetoCam::AccessStatusReadWrite:
        return SelectorTexts::tr("ReadWrite");
    case ZetoCam::AccessStatusReadOnly:
        return SelectorTexts::tr("ReadOnly");
    case ZetoCam::AccessStatusNoAccess:
        return SelectorTexts::tr("NO ACCESS");
    case ZetoCam::AccessStatusSubnetMismatch:
        return SelectorTexts::tr("IP Subnet Mismatch");
    default:
        return SelectorTexts::tr("Unknown");
    }
}

QString interfaceTypeText(int32_t interfaceType)
{
    switch (interfaceType) {
    case ZetoCam::InterfaceUSB3Vision:
        return SelectorTexts::tr("USB3 Vision");
    case ZetoCam::InterfaceGigEVision:
        return SelectorTexts::tr("GigE Vision");
    case ZetoCam::InterfaceCameraLink:
        return SelectorTexts::tr("CameraLink");
    case ZetoCam::InterfaceCoaXPress:
        return SelectorTexts::tr("CoaXPress");
    case ZetoCam::InterfaceHDSDI:
        return SelectorTexts::tr("HD-SDI");
    default:
        return SelectorTexts::tr("Custom");
    }
}

QString capitalMacText(quint64 address)
{
    return macText(address).toUpper();
}
