#include "ipconfiguration.h"

#include "camerainfo.h"
#include "interfaceparams.h"
#include "scopeddialog.h"
#include "selectortexts.h"
#include "setipdialog.h"
#include "subnetcheck.h"

#include <QMessageBox>

namespace {

/// Shows what the parameters say and suggests an address. \return whether all could be read
bool fill(SetIpDialog& dialog, const InterfaceParams& params)
{
    const auto adapterMac = params.integer("GevInterfaceMACAddress");
    const auto adapterIp = params.integer("GevInterfaceSubnetIPAddress");
    const auto mask = params.integer("GevInterfaceSubnetMask");
    const auto cameraMac = params.integer("GevDeviceMACAddress");
    const auto gateway = params.integer("GevDeviceForceGateway");
    if (!adapterMac || !adapterIp || !mask || !cameraMac || !gateway)
        return false;
    dialog.setNicMACAddress(static_cast<quint64>(*adapterMac));
    dialog.setNicIPAddress(static_cast<quint32>(*adapterIp));
    dialog.setNicNetmask(static_cast<quint32>(*mask));
    dialog.setMACAddress(static_cast<quint64>(*cameraMac));
    dialog.setIPAddress(addressBeside(static_cast<quint32>(*adapterIp)));
    dialog.setNetmask(static_cast<quint32>(*mask));
    dialog.setGateway(static_cast<quint32>(*gateway));
    return true;
}

bool isMeant(QWidget* parent)
{
    const ScopedDialog<QMessageBox> question(
        QMessageBox::Critical, SelectorTexts::tr("IP Configuration Warning"),
        SelectorTexts::tr("Specified IP Configuraion is not correct, camera may become undiscoverable\n"
                          "Press OK to skip the IP Configuration, or press Ignore to confirm"),
        QMessageBox::Ok | QMessageBox::Ignore, parent);
    question->setEscapeButton(QMessageBox::Ok);
    return question->exec() == QMessageBox::Ignore;
}

} // namespace

bool configureIp(ZetoCam::DeviceInfo& camera, QWidget* parent)
{
    if (!isOnNetwork(camera))
        return false;
    const InterfaceParams params = InterfaceParams::about(camera);
    const ScopedDialog<SetIpDialog> dialog(parent);
    if (!fill(*dialog, params))
        return false;
    if (dialog->exec() != QDialog::Accepted)
        return true;
    if (!(dialog->isIpValid() && dialog->isMaskValid()) && !isMeant(parent))
        return true;
    // With the parent the dialog and its values are gone.
    return !dialog ||
           camera.ForceIP(dialog->ipAddress(), dialog->netmask(), dialog->gateway()) == ZetoCam::Success;
}
