#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include "zetocamconfigtriggerdialog_p.h"

#include <QCloseEvent>

namespace ZetoGui {

void ZetoCamConfigTriggerDialogPrivate::bindFeatures()
{
    mapper.MapEnum(findEnum("TriggerSource"), ui.cmBoxTriggerSource);
    mapper.MapEnum(findEnum("TriggerActivation"), ui.cmBoxTriggerEdge);
    mapper.MapEnum(findEnum("TriggerDebounce"), ui.cmBoxTriggerDebounce);
    mapper.MapEnum(findEnum("TriggerMode"), ui.chBoxTriggerEnable);
    mapper.MapCommand(findCommand("TriggerSoftware"), ui.pushBtnSoftwareTrigger);

    const auto rules = [this] { applyRules(); };
    connect(ui.chBoxTriggerEnable, &QCheckBox::stateChanged, connections(), rules);
    connect(ui.cmBoxTriggerSource, qOverload<int>(&QComboBox::currentIndexChanged), connections(), rules);
    applyRules();
}

void ZetoCamConfigTriggerDialogPrivate::applyRules()
{
    const bool on = ui.chBoxTriggerEnable->isChecked();
    for (QComboBox* const combo : {ui.cmBoxTriggerSource, ui.cmBoxTriggerEdge, ui.cmBoxTriggerDebounce})
        mapper.SetAllowed(combo, on);
    const bool isSoftware = ui.cmBoxTriggerSource->currentText() == QLatin1String("Software");
    mapper.SetAllowed(ui.pushBtnSoftwareTrigger, on && isSoftware);
}

ZetoCamConfigTriggerDialog::ZetoCamConfigTriggerDialog(ZetoCam::Device* device, QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCamConfigTriggerDialogPrivate>(this))
{
    SetDevice(device);
}

ZetoCamConfigTriggerDialog::~ZetoCamConfigTriggerDialog() = default;

bool ZetoCamConfigTriggerDialog::SetDevice(ZetoCam::Device* device)
{
    return d_func()->SetDevice(device);
}

void ZetoCamConfigTriggerDialog::closeEvent(QCloseEvent* event)
{
    emit closing();
    QDialog::closeEvent(event);
}

} // namespace ZetoGui
